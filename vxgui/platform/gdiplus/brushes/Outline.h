#pragma once

#include <span>
#include <vector>

#include "vxgui/pixels/Shade.h"
#include "vxgui/platform/gdiplus/Path.h"

namespace vxgui::gdiplus {

/// A corner of a path whose curves became lines, with the colour there.
struct OutlineCorner {
    GpPointF point;
    Shade shade;
};
/// A closed figure.
using OutlineFigure = std::vector<OutlineCorner>;

/// A path's figures with colours of its points; the last colour counts for the points that have
/// none, and along a curve they mix from end to end.
std::vector<OutlineFigure> OutlineOf(const PathPoints& path, std::span<const ARGB> colors,
                                     ShadeScale scale);

/// The centroid of the area that a path encloses; the mean of its points when it encloses none.
GpPointF CentroidOf(const PathPoints& path);

}  // namespace vxgui::gdiplus
