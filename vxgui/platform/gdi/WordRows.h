#pragma once

#include <optional>

#include "vxgui/platform/gdi/DeviceContext.h"

namespace vxgui::gdi {

/// A rectangle of a target, and where in the source its own corner comes from.
struct PlainArea {
    int32_t x, y, width, height, sourceX, sourceY;
};

/// Rows of words in two 32-bit bitmaps, each above the next in both.
struct WordRows {
    const uint8_t* source;
    ptrdiff_t sourceStride;
    uint8_t* target;
    ptrdiff_t targetStride;
    int32_t width, height;

    /// Calls `run(source, target, count)` in the order of memory; rows that lie one behind the
    /// other in both are one.
    template <class Run>
    void ForEachRun(Run&& run) const;

private:
    /// More pixels at once than are worth it, and few enough for a count of bytes in 32 bits.
    static constexpr int64_t kLongestRun = 1 << 24;

    template <class Run>
    void Call(ptrdiff_t row, int32_t count, Run& run) const {
        run(reinterpret_cast<const uint32_t*>(source + row * sourceStride),
            reinterpret_cast<uint32_t*>(target + row * targetStride), count);
    }
};

template <class Run>
void WordRows::ForEachRun(Run&& run) const {
    const ptrdiff_t bytes = ptrdiff_t{width} * 4;
    if (sourceStride == targetStride && (targetStride == bytes || targetStride == -bytes) &&
        int64_t{width} * height <= kLongestRun) {
        return Call(targetStride > 0 ? 0 : height - 1, width * height, run);
    }
    for (int32_t row = 0; row < height; ++row) Call(row, width, run);
}

/// The words of a blit that is what most are: neither scaled nor mirrored, from one 32-bit bitmap
/// to another apart from it, all inside both and not clipped. None for any other, and for one
/// without an inside.
std::optional<WordRows> WholeWordRows(const DeviceContext& dc, const PixelTarget& source,
                                      const PlainArea& area);

/// Copies the words of such a blit. False, with nothing done, for any other.
bool CopyWholeWordRows(const DeviceContext& dc, const PixelTarget& source, const PlainArea& area);

}  // namespace vxgui::gdi
