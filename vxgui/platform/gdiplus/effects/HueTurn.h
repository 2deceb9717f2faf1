#pragma once

#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// Channels from 0 to 1.
struct PureColor {
    double red, green, blue;
};

/// The full colour at an angle of the wheel: 0 is red, 120 green, 240 blue.
PureColor PureHue(double degrees);

/// A straight pixel with its hue turned and its saturation and lightness (of the double cone of
/// hue, lightness and saturation) changed by shares from -1 to 1. Saturation is multiplied, so that
/// a gray stays one; lightness moves towards 0 by a negative share, towards full by a positive one.
ARGB WithHue(ARGB pixel, double degrees, double saturation, double lightness);

}  // namespace vxgui::gdiplus
