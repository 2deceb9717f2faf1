#pragma once

#include "vxgui/platform/gdiplus/Bitmap.h"

namespace vxgui::gdiplus {

struct Conversion {
    PixelFormat format;
    DitherType dither;
    PaletteType paletteType;  ///< tells ordered dithering how far the colours lie apart
    Palette palette;          ///< for indexed formats
    REAL alphaThreshold;      ///< in percent: what is less opaque becomes clear
};

/// Brings the bitmap into another format, in which alpha has one bit where the format or its
/// palette has no more.
void ConvertFormat(Bitmap& bitmap, const Conversion& conversion);

}  // namespace vxgui::gdiplus
