#pragma once

#include <functional>

#include "tools/vxgui/Sheet.h"

namespace vxgui::tool {

/// Paints with transparency, which drawing alone doesn't leave in the alpha byte: `paint` is called
/// for a black and for a white ground, and what shines through of them says how opaque a pixel is.
/// Straight colours.
void PaintTransparent(Sheet& sheet, const std::function<void(Sheet&)>& paint);

}  // namespace vxgui::tool
