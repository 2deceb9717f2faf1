#pragma once

#include "vxgui/platform/gdiplus/Graphics.h"

namespace vxgui::gdiplus {

/// Sets every pixel of the clip.
void ClearTo(Graphics& graphics, ARGB color);

/// Fills a rectangle in world coordinates. With edges that lie on pixels it is exact; an empty or
/// negative one draws nothing.
GpStatus FillRectangle(Graphics& graphics, const Brush& brush, const GpRectF& rect);

}  // namespace vxgui::gdiplus
