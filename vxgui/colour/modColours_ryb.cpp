#include "vxgui/base/Rounding.h"
#include "vxgui/colour/modColours.h"

namespace vxgui {

void HueToRybColor(int32_t hue, uint8_t& r, uint8_t& g, uint8_t& b) {
    hue %= 240;
    if (hue < 0) hue += 240;
    const auto t = RoundHalfEven<uint8_t>(hue % 40 / 40.0 * 255.0);
    const auto u = static_cast<uint8_t>(t / 2);
    const auto set = [&](int32_t red, int32_t green, int32_t blue) {
        r = static_cast<uint8_t>(red);
        g = static_cast<uint8_t>(green);
        b = static_cast<uint8_t>(blue);
    };
    switch (hue / 40) {
        case 0:
            return set(255, u, 0);
        case 1:
            return set(255, u + 128, 0);
        case 2:
            return set(255 - u, 255, u);
        case 3:
            return set(128 - u, 255 - u, u + 128);
        case 4:
            return set(t, 128 - u, 255);
        default:
            return set(255, 0, 255 - t);
    }
}

}  // namespace vxgui
