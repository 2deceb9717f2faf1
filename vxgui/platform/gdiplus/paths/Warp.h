#pragma once

#include <array>
#include <optional>

#include "vxgui/platform/gdiplus/Path.h"
#include "vxgui/platform/gdiplus/Vec.h"

namespace vxgui::gdiplus {

/// Takes a rectangle to any quadrilateral.
class Warp {
public:
    /// The corners that the rectangle's go to: upper left, upper right, lower left, lower right.
    using Corners = std::array<Vec, 4>;

    /// In perspective, straight lines stay straight; bilinear, only those along the rectangle's
    /// sides do.
    Warp(const GpRectF& source, const Corners& corners, WarpMode mode);
    Vec Map(Vec point) const;

private:
    Vec source_, size_;
    // (across u + down v + both uv + start) / (pull . (u, v) + 1)
    Vec start_, across_, down_, both_, pull_;
};

/// The path with all its lines and curves as lines where the warp takes them, no line further than
/// `flatness` from its place.
PathPoints Warped(const PathPoints& path, const Warp& warp, const Affine& after, double flatness);

}  // namespace vxgui::gdiplus
