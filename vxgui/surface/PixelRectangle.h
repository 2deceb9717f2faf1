#pragma once

#include <algorithm>
#include <cstdint>

namespace vxgui {

/// A rectangle of pixels, ends included, forced into a surface; ends of -1 are the last. It is
/// empty where an end lies before its start. `width` and `height` are above 0.
struct PixelRectangle {
    int32_t left, right;
    int32_t lowRow, highRow;  ///< rows of memory, the bottom one of the picture first

    /// `yStart` and `yEnd` count from the top.
    PixelRectangle(int32_t width, int32_t height, int32_t xStart, int32_t yStart, int32_t xEnd,
                   int32_t yEnd)
        : left(std::clamp(xStart, 0, width - 1)),
          right(End(xEnd, width)),
          lowRow(height - 1 - End(yEnd, height)),
          highRow(height - 1 - std::clamp(yStart, 0, height - 1)) {}

private:
    static int32_t End(int32_t end, int32_t size) {
        return end == -1 ? size - 1 : std::clamp(end, 0, size - 1);
    }
};

}  // namespace vxgui
