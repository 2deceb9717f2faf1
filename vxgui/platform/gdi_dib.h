#pragma once

#include "vxgui/base/Rounding.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui::gdi {

/// The header of a bottom-up DIB of 24 or 32 bits a pixel. The image size, of rows that are
/// padded to 4 bytes, wraps: the creating call refuses what is too large.
inline BITMAPINFO DibInfo(int32_t width, int32_t height, WORD bits = 32) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = bits;
    const int32_t stride = WrapAdd(WrapMul(width, bits), 31) / 32 * 4;
    info.bmiHeader.biSizeImage = static_cast<DWORD>(WrapMul(stride, height));
    return info;
}

/// Makes one; `*pixels` gets the first byte of its bottom row. Null on failure.
inline HBITMAP CreateDib(int32_t width, int32_t height, WORD bits, uint8_t** pixels) {
    const BITMAPINFO info = DibInfo(width, height, bits);
    void* memory = nullptr;
    const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &memory, nullptr, 0);
    *pixels = static_cast<uint8_t*>(memory);
    if (bitmap && !memory) DeleteObject(bitmap);
    return memory ? bitmap : nullptr;
}

}  // namespace vxgui::gdi
