#include "vxgui/platform/gdiplus/effects/HueTurn.h"

#include <algorithm>
#include <cmath>

namespace vxgui::gdiplus {
namespace {

struct HueLightnessSaturation {
    double hue, lightness, saturation;
};

double HueOf(const PureColor& c, double high, double spread) {
    if (spread <= 0) return 0;
    if (high == c.red) return 60 * (c.green - c.blue) / spread;
    if (high == c.green) return 60 * (c.blue - c.red) / spread + 120;
    return 60 * (c.red - c.green) / spread + 240;
}

HueLightnessSaturation Taken(const PureColor& c) {
    const double high = std::max({c.red, c.green, c.blue}),
                 low = std::min({c.red, c.green, c.blue});
    const double lightness = (high + low) / 2, spread = high - low;
    const double room = 1 - std::abs(2 * lightness - 1);
    return {HueOf(c, high, spread), lightness, room > 0 ? spread / room : 0};
}

PureColor Made(const HueLightnessSaturation& from) {
    const PureColor hue = PureHue(from.hue);
    const double chroma = (1 - std::abs(2 * from.lightness - 1)) * from.saturation;
    const auto channel = [&](double pure) { return (pure - 0.5) * chroma + from.lightness; };
    return {channel(hue.red), channel(hue.green), channel(hue.blue)};
}

double Moved(double value, double share) {
    return share < 0 ? value * (1 + share) : value + (1 - value) * share;
}

// A gray has no hue to strengthen.
double Saturated(double value, double share) {
    return share < 0 ? value * (1 + share) : std::min(1.0, value * (1 + share));
}

ARGB Byte(double value) { return static_cast<ARGB>(std::clamp(value, 0.0, 1.0) * 255 + 0.5); }

}  // namespace

PureColor PureHue(double degrees) {
    const double sixth = degrees / 60 - std::floor(degrees / 360) * 6;
    const auto channel = [&](double middle) {
        const double away = std::abs(std::remainder(sixth - middle, 6));
        return std::clamp(2 - away, 0.0, 1.0);
    };
    return {channel(0), channel(2), channel(4)};
}

ARGB WithHue(ARGB pixel, double degrees, double saturation, double lightness) {
    const PureColor color{(pixel >> 16 & 255) / 255.0, (pixel >> 8 & 255) / 255.0,
                          (pixel & 255) / 255.0};
    HueLightnessSaturation parts = Taken(color);
    parts.hue += degrees;
    parts.saturation = Saturated(parts.saturation, saturation);
    parts.lightness = Moved(parts.lightness, lightness);
    const PureColor made = Made(parts);
    return (pixel & 0xFF000000) | Byte(made.red) << 16 | Byte(made.green) << 8 | Byte(made.blue);
}

}  // namespace vxgui::gdiplus
