#pragma once

#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

constexpr int BitsPerPixel(PixelFormat format) { return format >> 8 & 0xFF; }
constexpr bool IsIndexed(PixelFormat format) { return format & PixelFormatIndexed; }
constexpr bool HasAlpha(PixelFormat format) { return format & PixelFormatAlpha; }

/// Channels of 16 bits, which hold linear light from 0 to 8192.
constexpr bool IsDeep(PixelFormat format) {
    return format == PixelFormat48bppRGB || format == PixelFormat64bppARGB ||
           format == PixelFormat64bppPARGB;
}

/// True for the formats that have a name.
bool IsPixelFormat(PixelFormat format);

/// The bytes that hold a row, without padding.
constexpr size_t RowBytes(PixelFormat format, size_t width) {
    return (width * static_cast<size_t>(BitsPerPixel(format)) + 7) / 8;
}
/// The same, padded to 4 bytes as rows of bitmaps are.
constexpr size_t PaddedRowBytes(PixelFormat format, size_t width) {
    return (RowBytes(format, width) + 3) / 4 * 4;
}

}  // namespace vxgui::gdiplus
