#pragma once

#include <cstdint>

namespace vxgui {

/// A hue in degrees brought into 0 to 360. A full turn stays one.
constexpr int32_t HueInRange(int32_t hue) {
    if (hue < 0) return static_cast<int32_t>(hue + (359 - int64_t{hue}) / 360 * 360);
    return hue > 360 ? hue - (hue - 1) / 360 * 360 : hue;
}

}  // namespace vxgui
