#pragma once

#include <span>

#include "vxgui/platform/gdi/DeviceContext.h"
#include "vxgui/platform/gdi/shapes/Path.h"

namespace vxgui::gdi {

/// Draws the lines between the points with the context's pen. A pen of one pixel leaves out the
/// last point; a wider one is round and covers both ends.
void Stroke(const DeviceContext& dc, std::span<const PathPoint> points);

/// The outline of what a round pen `width` pixels wide covers on its way.
Path WideLine(PathPoint from, PathPoint to, int width);

}  // namespace vxgui::gdi
