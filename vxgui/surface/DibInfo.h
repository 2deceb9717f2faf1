#pragma once

#include "vxgui/base/Rounding.h"
#include "vxgui/platform/gdi_types.h"

namespace vxgui {

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
