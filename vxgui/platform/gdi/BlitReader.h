#pragma once

#include "vxgui/platform/gdi/BlitGeometry.h"
#include "vxgui/platform/gdi/ScratchBlock.h"

namespace vxgui::gdi {

/// Reads the source pixels of a blit in the places where they are shown.
class BlitReader {
public:
    /// `geometry` is cut to the target and the source already and isn't empty.
    BlitReader(const PixelTarget& source, const BlitGeometry& geometry);

    /// Readies the reader; false when memory runs out. `target` is where the blit writes: a
    /// source that would be written to on the way is copied first.
    bool Prepare(const PixelTarget& target);

    /// Columns are neither scaled nor mirrored.
    bool Plain() const { return columns_ == nullptr; }
    /// Nor are rows.
    bool PlainRows() const { return rows_ == nullptr; }
    ptrdiff_t Stride() const { return source_.stride; }
    /// The first source pixel of a row's run; for a plain reader of at least 8 bits a pixel.
    const uint8_t* Address(int32_t x, int32_t y) const;
    /// Whether two rows of the target show the same source row.
    bool SameRow(int32_t y, int32_t other) const { return Row(y) == Row(other); }
    /// The words shown by the `count` pixels from (x, y) of the target rightwards.
    void Read(int32_t x, int32_t y, int32_t count, uint32_t* words) const;

private:
    bool Detach();
    bool Tabulate();
    int32_t Row(int32_t y) const {
        return rows_ ? rows_[y - geometry_.down.Low()]
                     : static_cast<int32_t>(geometry_.down.Source(y));
    }

    PixelTarget source_;
    BlitGeometry geometry_;
    ScratchBlock copy_;
    ScratchBlock table_;
    // The source column of each written column, and row of each written row; null for plain ones.
    const int32_t* columns_ = nullptr;
    const int32_t* rows_ = nullptr;
};

/// Whether two views have bytes in common.
bool ShareMemory(const PixelTarget& a, const PixelTarget& b);
/// Whether they are the same pixels in the same places.
bool SamePixels(const PixelTarget& a, const PixelTarget& b);

}  // namespace vxgui::gdi
