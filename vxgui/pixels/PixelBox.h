#pragma once

#include <cstdint>
#include <optional>

namespace vxgui {

/// A rectangle of pixels in memory order, ends included.
struct PixelBox {
    int32_t left, top, right, bottom;

    /// The box as the pixel filters are given theirs: the first corner must lie in the picture,
    /// else there is none; a second one that is under 1 or outside is the last column or row.
    static constexpr std::optional<PixelBox> Of(int32_t width, int32_t height, int32_t x0,
                                                int32_t y0, int32_t x1, int32_t y1) {
        if (x0 < 0 || x0 >= width || y0 < 0 || y0 >= height) return std::nullopt;
        return PixelBox{x0, y0, Last(x1, width), Last(y1, height)};
    }
    static constexpr int32_t Last(int32_t end, int32_t size) {
        return end < 1 || end >= size ? size - 1 : end;
    }
    constexpr bool IsEmpty() const { return left > right || top > bottom; }
};

}  // namespace vxgui
