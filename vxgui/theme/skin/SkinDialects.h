#pragma once

#include "vxgui/theme/skin/Skin.h"

namespace vxgui {

// Each fills a skin from a define file that has been read without a problem.
bool IsThemeSet(core7::DefineFile& file);
void LoadThemeSet(Skin& skin);
bool IsUisSkin(core7::DefineFile& file);
void LoadUisSkin(Skin& skin);

/// Fills a skin from a style of a module.
void LoadStyle(Skin& skin);

}  // namespace vxgui
