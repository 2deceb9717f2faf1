#pragma once

#include "vxgui/platform/gdiplus/strokes/Lines.h"

namespace vxgui::gdiplus {

bool IsAnchor(LineCap cap);
/// From the tip of an arrow anchor to its base.
double LengthOfArrow(double width);
/// The shape of a cap for a line of a width, convex; empty for a flat end. Squares, rounds and
/// triangles reach half a width beyond the end. Anchors lie around it, twice as wide as the line;
/// an arrow's tip is at the end.
Polygon ShapeOf(const PlacedCap& cap, double width, double tolerance);

/// The corners of an arc from `middle` + `start` turned by `angle`, both ends included, with chords
/// within `tolerance`.
void AddArc(Polygon& polygon, Vec middle, Vec start, double angle, double tolerance);

}  // namespace vxgui::gdiplus
