#pragma once

#include <array>

#include "vxgui/platform/gdi/PixelTarget.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui::gdi {

/// No vertex of a triangle lies farther out, either way, so that the sums fit 64 bits: the
/// determinant is below 2^47, and a weighted sum of 16-bit channels below 2^63.
constexpr LONG kFarthestVertex = 1 << 22;

/// A triangle whose colour runs evenly between its vertices. A lattice point on a left or top
/// edge belongs to it, one on a right or bottom edge doesn't.
class GradientTriangle {
public:
    GradientTriangle(const TRIVERTEX& a, const TRIVERTEX& b, const TRIVERTEX& c);

    /// The box around it; empty for vertices on one line.
    RECT Bounds() const;
    /// The pixels of row y, which must lie in the bounds: left included, right not.
    struct Run {
        int32_t left, right;
    };
    Run Row(int32_t y) const;
    /// The colour 0x00RRGGBB of one of its pixels.
    uint32_t Color(int32_t x, int32_t y) const;

private:
    using Corners = std::array<const TRIVERTEX*, 3>;
    const Corners corners_;
    const int64_t determinant_;
};

}  // namespace vxgui::gdi
