#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// The pixels of the formats with 16 bits a channel: light, not its perceived strength, from 0 to
/// 8192; the alpha on the same scale. The curve to 8 bits is that of sRGB (IEC 61966-2-1).
namespace vxgui::gdiplus {

constexpr uint16_t kLinearOne = 8192;

/// As in memory.
struct LinearPixel {
    uint16_t blue, green, red, alpha;
};

/// An 8-bit pixel survives the way there and back.
LinearPixel ToLinear(ARGB color);
/// Values above 8192 count as 8192.
ARGB FromLinear(const LinearPixel& pixel);

LinearPixel Premultiplied(const LinearPixel& pixel);
LinearPixel Straight(const LinearPixel& pixel);

}  // namespace vxgui::gdiplus
