#include "vxgui/colour/ColorHls.h"

#include <algorithm>

#include "vxgui/base/Rounding.h"
#include "vxgui/colour/modColours.h"

namespace vxgui {

namespace {

constexpr uint16_t kAchromaticHue = 160;

int32_t SaturationOf(int32_t maximum, int32_t minimum, int32_t luminance) {
    const int32_t spread = maximum - minimum, sum = maximum + minimum;
    const int32_t room = luminance <= 120 ? sum : 510 - sum;
    return (spread * 240 + room / 2) / room;
}

int32_t HueOf(int32_t red, int32_t green, int32_t blue, int32_t maximum, int32_t spread) {
    const auto delta = [&](int32_t channel) {
        return ((maximum - channel) * 40 + spread / 2) / spread;
    };
    int32_t hue = 0;
    if (red == maximum) {
        hue = delta(blue) - delta(green);
    } else if (green == maximum) {
        hue = 80 + delta(red) - delta(blue);
    } else {
        hue = 160 + delta(green) - delta(red);
    }
    if (hue < 0) return hue + 240;
    return hue > 240 ? hue - 240 : hue;
}

/// (a * b + half) / divisor. Values outside the scale make it wrap.
int32_t Share(int32_t a, int32_t b, int32_t half, int32_t divisor) {
    return WrapAdd(WrapMul(a, b), half) / divisor;
}

/// One channel, 0 to 240, at its distance around the circle of hues.
int32_t Part(int32_t m1, int32_t m2, uint16_t hue) {
    const int32_t h = hue > 240 ? hue - 240 : hue;
    if (h < 40) return m1 + Share(m2 - m1, h, 20, 40);
    if (h < 120) return m2;
    if (h < 160) return m1 + Share(m2 - m1, 160 - h, 20, 40);
    return m1;
}

}  // namespace

void ColorRGBToHLS(int32_t rgb, uint16_t* hue, uint16_t* luminance, uint16_t* saturation) {
    const int32_t red = RedOf(rgb), green = GreenOf(rgb), blue = BlueOf(rgb);
    const auto [minimum, maximum] = std::minmax({red, green, blue});
    *luminance = static_cast<uint16_t>(((maximum + minimum) * 240 + 255) / 510);
    *saturation = 0;
    *hue = kAchromaticHue;
    if (maximum == minimum) return;
    *saturation = static_cast<uint16_t>(SaturationOf(maximum, minimum, *luminance));
    *hue = static_cast<uint16_t>(HueOf(red, green, blue, maximum, maximum - minimum));
}

int32_t ColorHLSToRGB(uint16_t hue, uint16_t luminance, uint16_t saturation) {
    const int32_t lum = luminance, sat = saturation;
    if (sat == 0) {
        const int32_t grey = lum * 255 / 240;
        return ColorRefOf(grey, grey, grey);
    }
    const int32_t m2 =
        lum <= 120 ? Share(lum, 240 + sat, 120, 240) : lum + sat - Share(lum, sat, 120, 240);
    const int32_t m1 = 2 * lum - m2;
    const auto channel = [&](int32_t turn) {
        return Share(Part(m1, m2, static_cast<uint16_t>(hue + turn)), 255, 120, 240);
    };
    return ColorRefOf(channel(80), channel(0), channel(-80));
}

int32_t ColorAdjustLuma(int32_t rgb, int32_t n, bool fScale) {
    if (n == 0) return rgb;
    const Hls hls = HlsFromColorRef(rgb);
    const int16_t luminance =
        ScaleHLSValue(static_cast<int16_t>(hls.luminance), n, fScale, ScaleRounding::Truncate);
    return ColorHLSToRGB(hls.hue, static_cast<uint16_t>(luminance), hls.saturation);
}

}  // namespace vxgui
