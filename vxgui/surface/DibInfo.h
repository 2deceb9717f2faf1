#pragma once

#include "vxgui/base/Rounding.h"
#include "vxgui/platform/gdi_types.h"

namespace vxgui {

/// A bitmap header as it came from elsewhere, with all that the platform may look for behind it:
/// the rest of the longest header, 124 bytes, three masks, and the colours of one of few bits.
struct StoredHeader {
    gdi::BITMAPINFOHEADER header{};
    uint8_t behind[124 - sizeof(gdi::BITMAPINFOHEADER) + 12 + 256 * sizeof(gdi::RGBQUAD)]{};
};

/// Whether nothing is to be looked for behind a header: neither masks nor colours.
inline bool IsBare(const gdi::BITMAPINFOHEADER& header) {
    return header.biSize == sizeof header && header.biBitCount > 8 &&
           header.biCompression == gdi::BI_RGB;
}

/// The bitmap header of a surface: 32 bits a pixel, bottom row first. The image size wraps, as
/// the creating call refuses what is too large.
inline gdi::BITMAPINFO DibInfo(int32_t width, int32_t height) {
    gdi::BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(gdi::BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biSizeImage = static_cast<DWORD>(WrapMul(WrapMul(height, width), 4));
    return info;
}

}  // namespace vxgui
