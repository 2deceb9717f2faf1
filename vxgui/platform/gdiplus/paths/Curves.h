#pragma once

#include <vector>

#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// Each gives the points of Bezier pieces that follow each other: a start, then three a piece.
using CurvePoints = std::vector<GpPointF>;

/// The arc of the ellipse in `box` between two rays from its middle, in degrees clockwise from the
/// x axis; a piece spans a quarter of the ellipse at most. A sweep is at most one turn.
CurvePoints ArcCurve(const GpRectF& box, REAL startAngle, REAL sweepAngle);

/// The cardinal spline through `segments` + 1 points from `first` on. At a point it runs along the
/// line between the neighbours, and the handles are `tension` / 3 of that line long; the outermost
/// points of the whole list are their own neighbours.
CurvePoints SplineCurve(const std::vector<GpPointF>& points, size_t first, size_t segments,
                        REAL tension);
/// The same in a ring, which ends where it began.
CurvePoints ClosedSplineCurve(const std::vector<GpPointF>& points, REAL tension);

}  // namespace vxgui::gdiplus
