#include "vxgui/colour/ColorAdjust_HSL.h"

#include <gtest/gtest.h>

#include <cmath>

#include "vxgui/base/Ref.h"

namespace vxgui {
namespace {

struct Hls {
    float h, l, s;
    bool operator==(const Hls&) const = default;
};

Hls FromRgb(int r, int g, int b) {
    Hls value;
    ColorAdjust_HSL::RGBtoHLS(r, g, b, value.h, value.l, value.s);
    return value;
}

struct Rgb {
    int32_t r, g, b;
    bool operator==(const Rgb&) const = default;
};
void PrintTo(const Rgb& c, std::ostream* out) { *out << c.r << " " << c.g << " " << c.b; }

Rgb ToRgb(float h, float l, float s) {
    Rgb value;
    ColorAdjust_HSL::HLStoRGB(h, l, s, value.r, value.g, value.b);
    return value;
}

/// The rules for one colour, in the order in which they are given.
Rgb ReferenceToRgb(float h, float l, float s) {
    while (h < -1) h = h + 6;
    while (h >= 5) h = h - 6;
    s = std::min(std::max(s, 0.0F), 1.0F);
    l = std::min(std::max(l, 0.0F), 1.0F);
    const auto round = [](double v) {
        return static_cast<int32_t>(
            std::nearbyint(static_cast<double>(static_cast<float>(v)) * 255));
    };
    if (s == 0) return {round(l), round(l), round(l)};
    const auto lo = static_cast<float>(l <= 0.5 ? (1 - static_cast<double>(s)) * l
                                                : l - (1 - static_cast<double>(l)) * s);
    const auto hi = static_cast<float>(2 * static_cast<double>(l) - lo);
    const auto w = static_cast<double>(static_cast<float>(static_cast<double>(hi) - lo));
    const double x = h;
    if (x < 0) return {round(hi), round(lo), round(lo - w * x)};
    if (x < 1) return {round(hi), round(w * x + lo), round(lo)};
    if (x < 2) return {round(lo - w * (x - 2)), round(hi), round(lo)};
    if (x < 3) return {round(lo), round(hi), round(w * (x - 2) + lo)};
    if (x < 4) return {round(lo), round(lo - w * (x - 4)), round(hi)};
    return {round(w * (x - 4) + lo), round(lo), round(hi)};
}

TEST(ColorAdjustHsl, TheHuesOfTheSixPureColours) {
    EXPECT_EQ(FromRgb(255, 0, 0), (Hls{0, 0.5F, 1}));
    EXPECT_EQ(FromRgb(255, 255, 0), (Hls{1, 0.5F, 1}));
    EXPECT_EQ(FromRgb(0, 255, 0), (Hls{2, 0.5F, 1}));
    EXPECT_EQ(FromRgb(0, 255, 255), (Hls{3, 0.5F, 1}));
    EXPECT_EQ(FromRgb(0, 0, 255), (Hls{4, 0.5F, 1}));
    EXPECT_EQ(FromRgb(255, 0, 255), (Hls{-1, 0.5F, 1}));
}

TEST(ColorAdjustHsl, AGreyHasHueFourAndNoSaturation) {
    for (int grey = 0; grey < 256; ++grey) {
        EXPECT_EQ(FromRgb(grey, grey, grey), (Hls{4, static_cast<float>(grey / 255.0), 0}));
    }
}

TEST(ColorAdjustHsl, SaturationDependsOnTheSideOfTheMiddle) {
    EXPECT_FLOAT_EQ(FromRgb(51, 0, 0).s, 1);
    EXPECT_FLOAT_EQ(FromRgb(102, 51, 51).s, 1.0F / 3);
    EXPECT_FLOAT_EQ(FromRgb(255, 204, 204).s, 1);
    EXPECT_FLOAT_EQ(FromRgb(204, 153, 153).s, 1.0F / 3);
}

TEST(ColorAdjustHsl, EveryHueComesBackToItsColour) {
    for (float h = -13; h < 13; h += 0.125F) {
        for (float l = -0.25F; l <= 1.25F; l += 0.125F) {
            for (float s = -0.25F; s <= 1.25F; s += 0.25F) {
                EXPECT_EQ(ToRgb(h, l, s), ReferenceToRgb(h, l, s)) << h << " " << l << " " << s;
            }
        }
    }
}

TEST(ColorAdjustHsl, EveryColourSurvivesTheRoundTrip) {
    for (int r = 0; r < 256; r += 5) {
        for (int g = 0; g < 256; g += 5) {
            for (int b = 0; b < 256; b += 5) {
                const Hls value = FromRgb(r, g, b);
                EXPECT_EQ(ToRgb(value.h, value.l, value.s), (Rgb{r, g, b}));
            }
        }
    }
}

TEST(ColorAdjustHsl, AbsurdHuesEnd) {
    ToRgb(3e30F, 0.5F, 1);
    ToRgb(-3e30F, 0.5F, 1);
    ToRgb(HUGE_VALF, 0.5F, 1);
    ToRgb(std::nanf(""), std::nanf(""), std::nanf(""));
    EXPECT_EQ(ToRgb(600000, 0.5F, 1), ToRgb(0, 0.5F, 1));
}

ARGB Transformed(ARGB source, bool colourize, float hue, float saturation, float lightness) {
    const auto adjust = New<ColorAdjust_HSL>();
    adjust->Colourize(colourize);
    adjust->hue(hue);
    adjust->Saturation(saturation);
    adjust->Lightness(lightness);
    ARGB target{1, 2, 3, 4};
    adjust->TransColor(source, target);
    return target;
}

TEST(ColorAdjustHsl, AllAtZeroGivesTheSourceWithTheTargetsAlpha) {
    EXPECT_EQ(Transformed({10, 200, 30, 99}, false, 0, 0, 0), (ARGB{10, 200, 30, 4}));
}

TEST(ColorAdjustHsl, MoreSaturationLeavesAGreyGrey) {
    EXPECT_EQ(Transformed({77, 77, 77, 0}, false, 0, 0.8F, 0), (ARGB{77, 77, 77, 4}));
    EXPECT_EQ(Transformed({77, 77, 77, 0}, false, 2.5F, -0.8F, 0), (ARGB{77, 77, 77, 4}));
}

TEST(ColorAdjustHsl, SaturationGoesToFullAndToNone) {
    EXPECT_EQ(Transformed({51, 51, 102, 0}, false, 0, 1, 0), (ARGB{0, 0, 153, 4}));
    EXPECT_EQ(Transformed({51, 51, 103, 0}, false, 0, -1, 0), (ARGB{77, 77, 77, 4}));
}

TEST(ColorAdjustHsl, LightnessGoesToWhiteAndToBlack) {
    EXPECT_EQ(Transformed({51, 51, 102, 0}, false, 0, 0, 1), (ARGB{255, 255, 255, 4}));
    EXPECT_EQ(Transformed({51, 51, 102, 0}, false, 0, 0, -1), (ARGB{0, 0, 0, 4}));
    EXPECT_EQ(Transformed({101, 101, 101, 0}, false, 0, 0, 0.5F), (ARGB{178, 178, 178, 4}));
}

TEST(ColorAdjustHsl, TheHueTurnsInSixths) {
    EXPECT_EQ(Transformed({0, 0, 255, 0}, false, 2, 0, 0), (ARGB{0, 255, 0, 4}));
    EXPECT_EQ(Transformed({0, 0, 255, 0}, false, -2, 0, 0), (ARGB{255, 0, 0, 4}));
}

TEST(ColorAdjustHsl, ColourizeTakesHueAndSaturationAsTheyAreAndIgnoresLightness) {
    EXPECT_EQ(Transformed({0, 0, 255, 0}, true, 2, 1, 0), (ARGB{0, 255, 0, 4}));
    EXPECT_EQ(Transformed({0, 0, 255, 0}, true, 2, 1, -1), (ARGB{0, 255, 0, 4}));
    EXPECT_EQ(Transformed({102, 102, 102, 0}, true, 4, 0.5F, 0), (ARGB{153, 51, 51, 4}));
}

TEST(ColorAdjustHsl, HasNoConfigurationToShow) { New<ColorAdjust_HSL>()->ShowConfiguration(); }

}  // namespace
}  // namespace vxgui
