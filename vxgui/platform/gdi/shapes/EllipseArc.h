#pragma once

#include <vector>

#include "vxgui/platform/gdi/shapes/Path.h"

namespace vxgui::gdi {

/// A part of an ellipse. Angles are the ellipse's parameter in radians; they grow clockwise on
/// the screen, since y grows downwards.
struct EllipseArc {
    PathPoint centre;
    double radiusX = 0;
    double radiusY = 0;
    double start = 0;
    double sweep = 0;  ///< below 0 for anticlockwise; never beyond a full turn
};

/// The arc that the interface describes: inside [left, right - 1] x [top, bottom - 1] of the
/// ordered `box`, from the ray through `from` to the ray through `to`. Rays that coincide give
/// the whole ellipse. `box` must not be empty.
EllipseArc ArcInBox(const RECT& box, POINT from, POINT to, bool clockwise);

/// The arc as straight lines, start and end included, no further than 1/32 pixel from the curve
/// for any radius that a bitmap can show. The ellipse's four extreme points are always corners.
std::vector<PathPoint> Flatten(const EllipseArc& arc);

}  // namespace vxgui::gdi
