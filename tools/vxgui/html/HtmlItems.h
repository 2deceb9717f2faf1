#pragma once

#include <kainjow/mustache.hpp>

#include "vxgui/theme/skin/Skin.h"

namespace vxgui::tool {

/// The items of a skin for the page's template: what there is to know of each, and pictures of all
/// states at three sizes. The pictures are painted at a scale; sizes are those of scale 1.
kainjow::mustache::data HtmlItems(const Skin& skin, double scale);

}  // namespace vxgui::tool
