#pragma once

#include <optional>

#include "vxgui/platform/gdi/PixelTarget.h"

namespace vxgui::gdi {

/// What a published bitmap header says, checked.
struct DibForm {
    // Not the compiler's, which would clear the colours that hardly any picture has.
    DibForm() {}

    int32_t width = 0;   ///< above 0
    int32_t height = 0;  ///< above 0
    bool bottomUp = true;
    int depth = 0;                     ///< 1, 8, 24 or 32
    int64_t stride = 0;                ///< bytes a row: a multiple of 4
    std::optional<ColorTable> colors;  ///< up to 8 bits

    int64_t Size() const { return stride * height; }
    /// The colours, where the depth has any.
    const ColorTable* Colors() const { return depth <= 8 && colors ? &*colors : nullptr; }
    /// `rows` rows of this form at `bits`, top row first or last as the form says.
    PixelTarget View(const void* bits, int32_t rows) const;
};

/// Bytes a row takes in memory; every row starts at a multiple of `alignment` bytes.
constexpr int64_t RowBytes(int64_t width, int depth, int64_t alignment) {
    const int64_t unit = alignment * 8;
    return (width * depth + unit - 1) / unit * alignment;
}

/// The number of colours that stand behind a header.
int DibColorCount(const BITMAPINFOHEADER& header);
/// Where the colours stand: behind the header and, with BI_BITFIELDS, its three masks.
size_t DibColorOffset(const BITMAPINFOHEADER& header);

/// Reads the header of `info`. False for a size that isn't above 0 (a height may be below it, for
/// top row first), another depth, compression, masks other than the plain ones, or colours other
/// than `DIB_RGB_COLORS`.
bool ReadDibHeader(const BITMAPINFO* info, UINT usage, DibForm* form);
/// The same, with the colour table that must follow the header for depths up to 8.
bool ReadDib(const BITMAPINFO* info, UINT usage, DibForm* form);

}  // namespace vxgui::gdi
