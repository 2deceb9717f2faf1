#pragma once

#include "vxgui/platform/gdiplus/Vec.h"

namespace vxgui::gdiplus {

/// What `polygons` fill, by outlines that don't cross; holes run the other way, so that either fill
/// mode fills the same.
Polygons United(const Polygons& polygons, FillMode mode);
/// What both fill: `a` by winding, `b` by `mode`.
Polygons Intersected(const Polygons& a, const Polygons& b, FillMode mode);

/// True for a point that `polygons` fill. Left and upper edges belong to them, right and lower ones
/// don't.
bool Fills(const Polygons& polygons, Vec point, FillMode mode);

/// The part of a convex polygon where Dot(p - `origin`, `normal`) <= `limit`.
Polygon CutConvex(const Polygon& polygon, Vec origin, Vec normal, double limit);

}  // namespace vxgui::gdiplus
