#pragma once

#include <cstdint>

#include "vxgui/base/Export.h"

namespace vxgui {

/// Channels of 0 to 255, as far as a formula doesn't leave them.
struct WheelColor {
    int32_t red, green, blue;
    bool operator==(const WheelColor&) const = default;
};

/// The pure colour of a hue in degrees. A hue outside 0 to 360 is brought in; 360 itself stays and
/// is red as 0 is.
VXGUI_LOCAL WheelColor PureHue(int32_t hue);

/// The values that a wheel shows. `hue` in degrees, the others in percent.
struct WheelValues {
    int32_t hue = 0;
    int32_t saturation = 0;
    int32_t lightness = 0;
    bool colourize = false;
};

/// The rings from the outside in: all hues, what becomes of them, and the same without the change
/// of saturation (or with it, under colourize, the one colour that all get).
constexpr int kWheelRings = 3;
VXGUI_LOCAL WheelColor RingColor(int ring, int32_t angle, const WheelValues& values);

}  // namespace vxgui
