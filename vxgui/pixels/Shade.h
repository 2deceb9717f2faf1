#pragma once

#include <cstdint>

#include "vxgui/base/Export.h"

namespace vxgui {

/// A straight colour from 0 to 1, ready for mixing: as it is stored, or as light.
struct Shade {
    float red, green, blue, alpha;
};

inline Shade Mix(const Shade& a, const Shade& b, float share) {
    return {a.red + (b.red - a.red) * share, a.green + (b.green - a.green) * share,
            a.blue + (b.blue - a.blue) * share, a.alpha + (b.alpha - a.alpha) * share};
}

/// How strong the light of a stored value is: the value to the power of 2.2, and the way back.
enum class ShadeScale { Stored, Light };

VXPLATFORM_API Shade ShadeOf(uint32_t color, ShadeScale scale);
/// A premultiplied 32-bit pixel, rounded.
VXPLATFORM_API uint32_t PixelOf(const Shade& shade, ShadeScale scale);

}  // namespace vxgui
