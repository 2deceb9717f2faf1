#pragma once

#include "vxgui/platform/gdiplus/Graphics.h"
#include "vxgui/platform/gdiplus/Path.h"
#include "vxgui/platform/gdiplus/Pen.h"

namespace vxgui::gdiplus {

/// Draws a path in world coordinates.
GpStatus FillShape(Graphics& graphics, const Brush& brush, const PathPoints& path, FillMode mode);
GpStatus StrokeShape(Graphics& graphics, const Pen& pen, const PathPoints& path);

/// One open figure through points, or a closed one for each rectangle.
PathPoints LinesThrough(const std::vector<GpPointF>& points);
PathPoints Outlines(const std::vector<GpRectF>& rects);

}  // namespace vxgui::gdiplus
