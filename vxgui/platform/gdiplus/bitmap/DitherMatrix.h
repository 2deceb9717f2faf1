#pragma once

#include <vector>

#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// A square of thresholds that repeats over a picture.
struct DitherMatrix {
    int width = 1, height = 1;
    std::vector<int> ranks{0};  ///< each of 0 .. width * height - 1 once, row by row

    /// The threshold at a pixel, from just above -1/2 to just below 1/2.
    double At(INT x, INT y) const {
        const auto cell = static_cast<size_t>(y % height * width + x % width);
        return (ranks[cell] + 0.5) / (width * height) - 0.5;
    }
};

/// Ordered: dots as far apart as can be (B. Bayer, 1973). Spiral: a dot that grows from the middle
/// of its cell. Dual spiral: in a cell of two squares side by side, one dot grows while the other
/// shrinks. What has no matrix gives a single threshold of 0.
DitherMatrix MatrixOf(DitherType type);

}  // namespace vxgui::gdiplus
