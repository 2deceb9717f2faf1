#pragma once

#include "vxgui/platform/gdi/DeviceContext.h"
#include "vxgui/platform/gdi/shapes/EdgeColors.h"

namespace vxgui::gdi {

/// What an edge consists of.
struct EdgeLook {
    std::optional<EdgeColors> outer;
    std::optional<EdgeColors> inner;
    std::optional<int> middle;  ///< system colour
};

/// Draws the diagonal of `r` that ends in the corner which `flags` names, as one side of a shape
/// whose sides are drawn clockwise: the shape lies to the right of the way. So a line that ends
/// at the top has the colours of top and left, one that ends at the bottom those of the others;
/// the inner ring and the middle follow on the shape's side.
void DrawDiagonal(const DeviceContext& dc, const RECT& r, const EdgeLook& look, UINT flags);

}  // namespace vxgui::gdi
