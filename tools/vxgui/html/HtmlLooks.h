#pragma once

#include <kainjow/mustache.hpp>

#include "vxgui/theme/skin/Skin.h"

namespace vxgui::tool {

/// The colours of a skin for the page's template: its palette, and what its text styles add.
kainjow::mustache::data HtmlColours(const Skin& skin);

/// The fonts of a skin for the page's template, each with a sample in black.
kainjow::mustache::data HtmlFonts(const Skin& skin, double scale);

}  // namespace vxgui::tool
