#pragma once

#include "vxgui/platform/gdiplus/Path.h"

namespace vxgui::gdiplus {

/// Adds points to the figure that is open, with a line to the first of them unless the figure ends
/// there already; or begins a figure with them. `kind` is that of the points after the first.
void AddToFigure(Path& path, const std::vector<GpPointF>& points, PathPointType kind);
/// Adds a closed figure.
void AddClosedFigure(Path& path, const std::vector<GpPointF>& points, PathPointType kind);
/// Adds nothing for a rectangle without area.
void AddRectangleFigure(Path& path, const GpRectF& rect);
void AddPieFigure(Path& path, const GpRectF& box, REAL startAngle, REAL sweepAngle);

/// Adds all figures of another path. With `connect`, its first figure goes on from the open one,
/// when itself is open.
void AddFigures(Path& path, const Path& added, bool connect);

void CloseFigure(Path& path);
void CloseAllFigures(Path& path);

/// The index behind the last point of the figure that holds `first`.
size_t EndOfFigure(const PathPoints& path, size_t first);

/// The same lines the other way: the last figure comes first. A marker stays between the points
/// that it was between, one at the end stays at the end.
PathPoints Reversed(const PathPoints& path);

}  // namespace vxgui::gdiplus
