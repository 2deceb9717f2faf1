#include <cstdlib>

#include "vxgui/base/Ref.h"
#include "vxgui/colour/ColorHls.h"
#include "vxgui/colour/GpColor.h"
#include "vxgui/colour/modColours.h"

namespace vxgui {

namespace {

/// What sets a text apart from its background: a difference of 125 in brightness, in thousandths.
constexpr int32_t kEnoughContrast = 125000;
/// Up to here a colour counts as dark, and a lighter one is looked for.
constexpr int32_t kMiddle = 127501;

bool StandsOut(int32_t weighted, int32_t color) {
    return std::abs(weighted - WeightedSum(ARGBFromValue(color))) >= kEnoughContrast;
}

struct HueTurn {
    int16_t first, last, turn;
};
/// The first row that holds the hue counts. None holds 201 to 219, and hues of 61 to 79 become
/// negative: both are meant.
constexpr HueTurn kInversion[] = {
    {0, 20, 80},   {220, 240, -160}, {20, 40, 80},    {40, 60, 80},
    {60, 80, -80}, {80, 100, -80},   {100, 120, -80}, {120, 200, 80},
};

int16_t InvertedHue(int16_t hue) {
    for (const HueTurn& row : kInversion) {
        if (hue >= row.first && hue <= row.last) return static_cast<int16_t>(hue + row.turn);
    }
    return hue;
}

Ref<GpColor> ColorOfValue(int32_t value) {
    Ref<GpColor> color = New<GpColor>();
    color->Value(value);
    return color;
}

}  // namespace

int32_t GpColor::ComplementaryColor(bool bColorRef) const {
    const int32_t color = ColorHLSToRGB(static_cast<uint16_t>(hue() + 120), 120, 240);
    return bColorRef ? color : MakeARGBFromColorRef(color, Alpha());
}

int32_t GpColor::ComplementaryColorRYB(bool bColorRef) const {
    uint8_t r, g, b;
    HueToRybColor(hue() + 120, r, g, b);
    const int32_t color = ColorRefOf(r, g, b);
    return bColorRef ? color : MakeARGBFromColorRef(color, Alpha());
}

int32_t GpColor::Invert() const {
    const Ref<GpColor> scratch = ColorOfValue(Value());
    scratch->hue(InvertedHue(scratch->hue()));
    return scratch->Value();
}

int32_t GpColor::Diff(bool bColorRef) const {
    const Ref<GpColor> scratch = ColorOfValue(Invert());
    const int32_t weighted = WeightedSum(argb_);
    int32_t color = scratch->Value();
    for (int i = 1; i <= 100 && !StandsOut(weighted, color); ++i) {
        const auto percent = static_cast<float>(i / 100.0);
        color = weighted < kMiddle ? scratch->Lighter(percent) : scratch->Darker(percent);
    }
    return bColorRef ? ColorRefFromARGB(ARGBFromValue(color), false) : color;
}

}  // namespace vxgui
