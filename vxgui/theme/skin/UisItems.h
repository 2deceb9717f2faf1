#pragma once

#include "vxgui/theme/skin/Skin.h"

namespace vxgui {

/// Fills a skin whose desktop is open with its items: the controls of the UIS file, which only a
/// skin in a folder has, the parts of the desktop, and what else the taskbar's file holds.
/// `taskbarLabel` names the taskbar's file in reports; the folder is empty for a style of a module.
/// Raises a `SkinError` when an image is missing or broken, or when there is no item at all.
void GatherUisItems(Skin& skin, const String& taskbarLabel, const String& folder);

}  // namespace vxgui
