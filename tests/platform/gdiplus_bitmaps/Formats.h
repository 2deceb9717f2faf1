#pragma once

#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

inline constexpr PixelFormat kIndexedFormats[] = {PixelFormat1bppIndexed, PixelFormat4bppIndexed,
                                                  PixelFormat8bppIndexed};
inline constexpr PixelFormat kColorFormats[] = {
    PixelFormat16bppRGB555, PixelFormat16bppRGB565, PixelFormat16bppARGB1555, PixelFormat24bppRGB,
    PixelFormat32bppRGB,    PixelFormat32bppARGB,   PixelFormat32bppPARGB,    PixelFormat48bppRGB,
    PixelFormat64bppARGB,   PixelFormat64bppPARGB,
};

}  // namespace vxgui::gdiplus
