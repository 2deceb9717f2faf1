#include "vxgui/colour/ColorHls.h"

#include <algorithm>
#include <array>

#include "vxgui/base/Rounding.h"
#include "vxgui/colour/modColours.h"

namespace vxgui {

namespace {

constexpr uint16_t kAchromaticHue = 160;

/// Divisions by numbers that aren't known beforehand were most of the time: 2^31 / d, rounded up,
/// is near enough to divide what is below 2^16 by up to 510.
class Reciprocals {
public:
    constexpr Reciprocals() {
        for (uint32_t d = 1; d < kSize; ++d) of_[d] = ((1U << kShift) + d - 1) / d;
    }
    uint32_t Quotient(int32_t dividend, int32_t divisor) const {
        return static_cast<uint32_t>(
            static_cast<uint64_t>(dividend) * of_[static_cast<size_t>(divisor)] >> kShift);
    }

private:
    static constexpr int kShift = 31;
    static constexpr uint32_t kSize = 511;
    std::array<uint32_t, kSize> of_{};
};
constexpr Reciprocals kReciprocals;

int32_t Quotient(int32_t dividend, int32_t divisor) {
    return static_cast<int32_t>(kReciprocals.Quotient(dividend, divisor));
}

int32_t SaturationOf(int32_t maximum, int32_t minimum, int32_t luminance) {
    const int32_t spread = maximum - minimum, sum = maximum + minimum;
    const int32_t room = luminance <= 120 ? sum : 510 - sum;
    return Quotient(spread * 240 + room / 2, room);
}

// The choices are among numbers, so that no jump depends on the colour.
int32_t HueOf(int32_t red, int32_t green, int32_t blue, int32_t maximum, int32_t spread) {
    const auto delta = [&](int32_t channel) {
        return Quotient((maximum - channel) * 40 + spread / 2, spread);
    };
    const bool isRed = red == maximum, isGreen = green == maximum;
    const int32_t start = isRed ? 0 : isGreen ? 80 : 160;
    const int32_t behind = isRed ? blue : isGreen ? red : green;
    const int32_t ahead = isRed ? green : isGreen ? blue : red;
    const int32_t hue = start + delta(behind) - delta(ahead);
    return hue + (hue < 0 ? 240 : 0) - (hue > 240 ? 240 : 0);
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

/// How far a channel is on its way up, of 40, at the distances from -80 to 320 around the circle:
/// it rises, stays and falls.
class Ways {
public:
    constexpr Ways() {
        for (int32_t i = 0; i < kSize; ++i) {
            const int32_t hue = i - kBefore, h = hue > 240 ? hue - 240 : hue;
            of_[static_cast<size_t>(i)] =
                static_cast<uint8_t>(std::clamp(std::min(h, 160 - h), 0, 40));
        }
    }
    uint32_t At(int32_t hue) const { return of_[static_cast<size_t>(hue + kBefore)]; }

private:
    static constexpr int32_t kBefore = 80, kSize = 401;
    std::array<uint8_t, kSize> of_{};
};
constexpr Ways kWays;

/// The colour of values on the scale. The steps truncate; what divides both sides is taken out.
int32_t OnScale(int32_t hue, uint32_t luminance, uint32_t saturation) {
    const uint32_t share = (luminance * saturation + 120) / 240;
    const uint32_t m2 = luminance + (luminance <= 120 ? share : saturation - share);
    const uint32_t m1 = 2 * luminance - m2, spread = m2 - m1;
    const auto channel = [&](int32_t turn) {
        const uint32_t part = m1 + (spread * kWays.At(hue + turn) + 20) / 40;
        return static_cast<int32_t>((part * 17 + 8) / 16);
    };
    return ColorRefOf(channel(80), channel(0), channel(-80));
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
    if (hue <= 240 && lum <= 240 && sat <= 240) return OnScale(hue, luminance, saturation);
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
