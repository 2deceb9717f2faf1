#pragma once

#include <string>

#include "vxgui/theme/skin/Skin.h"

namespace vxgui::tool {

/// A skin as a page for browsers that needs nothing beside it: every item in every state, with its
/// margins, and palette, fonts and what the checks say. Pictures are painted at a scale and shown
/// at the size of scale 1.
std::string HtmlGallery(const Skin& skin, double scale);

}  // namespace vxgui::tool
