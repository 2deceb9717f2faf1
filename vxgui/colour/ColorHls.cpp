#include "vxgui/colour/ColorHls.h"

#include "vxgui/base/Rounding.h"
#include "vxgui/colour/ColorHlsTables.h"
#include "vxgui/colour/modColours.h"

namespace vxgui {

namespace {

using namespace hls_tables;

/// The hue of channels in an order, the middle one `part` of 40 from the highest.
uint16_t HueOf(size_t order, uint32_t part) {
    const Sector& sector = kToScale.sectors[order];
    const int32_t hue = (static_cast<int32_t>(part) ^ sector.flip) + sector.start;
    return static_cast<uint16_t>(hue + (hue < 0 ? kScale : 0));
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

/// The colour of values on the scale. The steps truncate; what divides both sides is taken out. The
/// highest channel is the luminance and half of the spread, the lowest one lacks as much of it.
int32_t OnScale(uint32_t hue, uint32_t luminance, uint32_t saturation) {
    const uint32_t share = (luminance * saturation + 120) / 240;
    const uint32_t half = luminance <= 120 ? share : saturation - share;
    const auto& [way, highest, middle, lowest] = kFromScale.hues[hue];
    const uint32_t between = luminance - half + (half * way + 10) / 20;
    return static_cast<int32_t>(kFromScale.channels[luminance + half] * highest +
                                kFromScale.channels[between] * middle +
                                kFromScale.channels[luminance - half] * lowest);
}

int32_t BesideScale(uint16_t hue, int32_t lum, int32_t sat) {
    const int32_t m2 =
        lum <= 120 ? Share(lum, 240 + sat, 120, 240) : lum + sat - Share(lum, sat, 120, 240);
    const int32_t m1 = 2 * lum - m2;
    const auto channel = [&](int32_t turn) {
        return Share(Part(m1, m2, static_cast<uint16_t>(hue + turn)), 255, 120, 240);
    };
    return ColorRefOf(channel(80), channel(0), channel(-80));
}

}  // namespace

void ColorRGBToHLS(int32_t rgb, uint16_t* hue, uint16_t* luminance, uint16_t* saturation) {
    const int32_t red = RedOf(rgb), green = GreenOf(rgb), blue = BlueOf(rgb);
    const int32_t more = red > green ? red : green, less = red > green ? green : red;
    const int32_t maximum = more > blue ? more : blue, minimum = less < blue ? less : blue;
    const auto sum = static_cast<uint32_t>(maximum + minimum);
    const auto spread = static_cast<uint32_t>(maximum - minimum);
    const auto distance = static_cast<uint32_t>(2 * maximum + minimum - red - green - blue);
    const size_t order = (red >= green) * 4u + (green >= blue) * 2u + (red >= blue);
    const uint8_t lum = kToScale.luminances[sum];
    *hue = HueOf(order, kToScale.parts[spread].Quotient(distance));
    *luminance = lum;
    *saturation = static_cast<uint16_t>(kToScale.saturations[sum].Quotient(spread));
}

int32_t ColorHLSToRGB(uint16_t hue, uint16_t luminance, uint16_t saturation) {
    if (saturation == 0) [[unlikely]] {
        const int32_t grey = luminance * 255 / 240;
        return ColorRefOf(grey, grey, grey);
    }
    const bool beside = hue > kScale || luminance > kScale || saturation > kScale;
    if (beside) [[unlikely]]
        return BesideScale(hue, luminance, saturation);
    return OnScale(hue, luminance, saturation);
}

int32_t ColorAdjustLuma(int32_t rgb, int32_t n, bool fScale) {
    if (n == 0) return rgb;
    const Hls hls = HlsFromColorRef(rgb);
    const int16_t luminance =
        ScaleHLSValue(static_cast<int16_t>(hls.luminance), n, fScale, ScaleRounding::Truncate);
    return ColorHLSToRGB(hls.hue, static_cast<uint16_t>(luminance), hls.saturation);
}

}  // namespace vxgui
