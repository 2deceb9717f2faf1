#include "vxgui/colour/WheelColors.h"

#include "vxgui/base/Rounding.h"
#include "vxgui/colour/HueDegrees.h"

namespace vxgui {
namespace {

int32_t Lit(int32_t channel, double lightness) {
    if (lightness > 0) return RoundHalfEven((1 - lightness) * channel + lightness * 255);
    if (lightness < 0) {
        return RoundHalfEven(lightness * 255 + 255 - (channel ^ 255) * (lightness + 1));
    }
    return channel;
}

int32_t Washed(int32_t channel, double saturation) {
    return RoundHalfEven(channel * saturation + RoundHalfEven((1 - saturation) * 128));
}

template <class Change>
WheelColor Each(WheelColor color, Change change) {
    return {change(color.red), change(color.green), change(color.blue)};
}

}  // namespace

WheelColor PureHue(int32_t hue) {
    const int32_t place = RoundHalfEven(HueInRange(hue) * 1530 / 360.0);
    if (place < 255) return {255, place, 0};
    if (place < 510) return {510 - place, 255, 0};
    if (place < 765) return {0, 255, place - 510};
    if (place < 1020) return {0, 1020 - place, 255};
    if (place < 1275) return {place - 1020, 0, 255};
    return {255, 0, 1530 - place};
}

WheelColor RingColor(int ring, int32_t angle, const WheelValues& values) {
    if (ring == 0) return PureHue(angle);
    const bool one = values.colourize && ring == 2;
    const double lightness = values.lightness / 100.0;
    const WheelColor lit = Each(PureHue(one ? values.hue : WrapAdd(values.hue, angle)),
                                [&](int32_t channel) { return Lit(channel, lightness); });
    if (ring == 2 && !values.colourize) return lit;
    const double saturation =
        values.colourize ? values.saturation / 100.0 : (values.saturation + 100) / 200.0;
    return Each(lit, [&](int32_t channel) { return Washed(channel, saturation); });
}

}  // namespace vxgui
