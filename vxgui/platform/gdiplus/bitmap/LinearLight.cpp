#include "vxgui/platform/gdiplus/bitmap/LinearLight.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "vxgui/base/Rounding.h"

namespace vxgui::gdiplus {
namespace {

double Light(double strength) {
    return strength <= 0.04045 ? strength / 12.92 : std::pow((strength + 0.055) / 1.055, 2.4);
}
double Strength(double light) {
    return light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
}

struct Curves {
    std::array<uint16_t, 256> light;
    std::array<uint8_t, kLinearOne + 1> strength;

    Curves() {
        for (size_t i = 0; i < light.size(); ++i) {
            light[i] = static_cast<uint16_t>(RoundHalfEven(Light(i / 255.0) * kLinearOne));
        }
        for (size_t i = 0; i < strength.size(); ++i) {
            strength[i] =
                static_cast<uint8_t>(RoundHalfEven(Strength(i / double{kLinearOne}) * 255));
        }
    }
};

const Curves& TheCurves() {
    static const Curves curves;
    return curves;
}

uint16_t Multiplied(uint32_t channel, uint32_t alpha) {
    return static_cast<uint16_t>((channel * alpha + kLinearOne / 2) / kLinearOne);
}
uint16_t Divided(uint32_t channel, uint32_t alpha) {
    return static_cast<uint16_t>(
        std::min<uint32_t>(kLinearOne, (channel * kLinearOne + alpha / 2) / alpha));
}

}  // namespace

LinearPixel ToLinear(ARGB color) {
    const auto& light = TheCurves().light;
    return {light[color & 255], light[color >> 8 & 255], light[color >> 16 & 255],
            static_cast<uint16_t>(((color >> 24) * kLinearOne + 127) / 255)};
}

ARGB FromLinear(const LinearPixel& pixel) {
    const auto& strength = TheCurves().strength;
    const auto channel = [&](uint16_t value) -> ARGB {
        return strength[std::min(value, kLinearOne)];
    };
    const ARGB alpha = (std::min(pixel.alpha, kLinearOne) * 255u + kLinearOne / 2) / kLinearOne;
    return alpha << 24 | channel(pixel.red) << 16 | channel(pixel.green) << 8 | channel(pixel.blue);
}

LinearPixel Premultiplied(const LinearPixel& pixel) {
    return {Multiplied(pixel.blue, pixel.alpha), Multiplied(pixel.green, pixel.alpha),
            Multiplied(pixel.red, pixel.alpha), pixel.alpha};
}

LinearPixel Straight(const LinearPixel& pixel) {
    if (pixel.alpha == 0) return {0, 0, 0, 0};
    return {Divided(pixel.blue, pixel.alpha), Divided(pixel.green, pixel.alpha),
            Divided(pixel.red, pixel.alpha), pixel.alpha};
}

}  // namespace vxgui::gdiplus
