#pragma once

#include "vxgui/platform/gdiplus/Graphics.h"
#include "vxgui/platform/gdiplus/text/LayoutCache.h"

namespace vxgui::gdiplus {

/// Draws a string that was laid out in `rect`, which clips it where the format says so.
GpStatus PaintString(Graphics& graphics, KeptLayout& kept, const GpRectF& rect,
                     const FormatSettings& format, const Brush& brush);

}  // namespace vxgui::gdiplus
