#include "vxgui/colour/ColorAdjust_HSL.h"

#include <algorithm>
#include <cmath>

#include "vxgui/base/Rounding.h"
#include "vxgui/frame/modUtilities.h"

// Named values have single precision, and the expressions between them double: where a result
// lies on a half, that decides.
namespace vxgui {

namespace {

float Single(double value) { return static_cast<float>(value); }

/// A hue of -1 up to, but without, 5.
float WrapHue(float h) {
    // Turns that single precision can't take off one by one go at once.
    if (std::abs(h) > 65536) h = std::fmod(h, 6.0F);
    while (h < -1) h = Single(h + 6.0);
    while (h >= 5) h = Single(h - 6.0);
    return h;
}

struct Channels {
    float r, g, b;
};

Channels ChannelsAt(double h, double lo, double hi) {
    const double w = Single(hi - lo);
    const auto make = [](double r, double g, double b) {
        return Channels{Single(r), Single(g), Single(b)};
    };
    if (h < 0) return make(hi, lo, lo - w * h);
    if (h < 1) return make(hi, w * h + lo, lo);
    if (h < 2) return make(lo - w * (h - 2), hi, lo);
    if (h < 3) return make(lo, hi, w * (h - 2) + lo);
    if (h < 4) return make(lo, lo - w * (h - 4), hi);
    return make(w * (h - 4) + lo, lo, hi);
}

uint8_t ToByte(int32_t channel) { return static_cast<uint8_t>(std::clamp(channel, 0, 255)); }

/// Moves `value` by a part of the way to 1, or of the way to 0 for a negative one.
float Moved(double value, double part) {
    if (part > 0) return Single((1 - value) * part + value);
    if (part < 0) return Single(value * part + value);
    return Single(value);
}

}  // namespace

ColorAdjust_HSL::ColorAdjust_HSL() { SetUpApartment(); }

void ColorAdjust_HSL::RGBtoHLS(int32_t r, int32_t g, int32_t b, float& h, float& l, float& s) {
    const double red = Single(r / 255.0);
    const double green = Single(g / 255.0);
    const double blue = Single(b / 255.0);
    const double max = std::max({red, green, blue});
    const double min = std::min({red, green, blue});
    l = Single((max + min) / 2);
    if (max == min) {
        s = 0;
        h = 4;  // and not 0: greys have the hue of blue
        return;
    }
    const double d = Single(max - min);
    s = Single(l <= 0.5F ? d / (max + min) : d / (2 - max - min));
    if (red == max) {
        h = Single((green - blue) / d);
    } else if (green == max) {
        h = Single((blue - red) / d + 2);
    } else {
        h = Single((red - green) / d + 4);
    }
}

void ColorAdjust_HSL::HLStoRGB(float h, float l, float s, int32_t& r, int32_t& g, int32_t& b) {
    s = std::clamp(s, 0.0F, 1.0F);
    l = std::clamp(l, 0.0F, 1.0F);
    Channels channels{l, l, l};
    if (s != 0) {
        const double light = l;
        const double lo = Single(light <= 0.5 ? (1.0 - s) * light : light - (1 - light) * s);
        const double hi = Single(2 * light - lo);
        channels = ChannelsAt(WrapHue(h), lo, hi);
    }
    r = RoundHalfEven(channels.r * 255.0);
    g = RoundHalfEven(channels.g * 255.0);
    b = RoundHalfEven(channels.b * 255.0);
}

void ColorAdjust_HSL::TransColor(ARGB& sARGB, ARGB& dARGB) {
    float h, l, s;
    int32_t r, g, b;
    RGBtoHLS(sARGB.Red, sARGB.Green, sARGB.Blue, h, l, s);
    if (colourize_) {
        HLStoRGB(hue_, l, saturation_, r, g, b);
    } else {
        if (s != 0) s = Moved(s, saturation_);  // a grey has no hue to bring out
        l = Moved(l, lightness_);
        HLStoRGB(Single(double{h} + hue_), l, s, r, g, b);
    }
    dARGB.Red = ToByte(r);
    dARGB.Green = ToByte(g);
    dARGB.Blue = ToByte(b);
}

}  // namespace vxgui
