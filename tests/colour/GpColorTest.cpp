#include "vxgui/colour/GpColor.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

#include "tests/colour/Reference.h"
#include "vxgui/base/Ref.h"

namespace vxgui {
namespace {

constexpr int32_t Argb(uint32_t value) { return static_cast<int32_t>(value); }

Ref<GpColor> ColorOf(uint32_t value) {
    Ref<GpColor> color = New<GpColor>();
    color->Value(Argb(value));
    return color;
}

/// Colours over the whole cube, with alphas that change too.
template <class Check>
void ForManyColours(Check check, uint32_t step = 7919) {
    for (uint32_t rgb = 0; rgb <= 0xFFFFFF; rgb += step) check(rgb | (rgb * 37) << 24);
    for (uint32_t grey = 0; grey < 256; ++grey) check(grey * 0x010101 | 0xFF000000);
}

/// The COLORREF of an ARGB value: red and blue change places.
int64_t Swapped(int64_t rgb) {
    return rgb % 256 * 65536 + rgb / 256 % 256 * 256 + rgb / 65536 % 256;
}

// The calculation sees the low 24 bits as they lie, and the top byte stays.
int32_t Shaded(uint32_t value, int64_t lowBits) {
    return Argb((value & 0xFF000000) | static_cast<uint32_t>(lowBits));
}
int32_t WithLuminance(uint32_t value, int64_t (*luminance)(int64_t)) {
    const reference::HLS hls = reference::FromColorRef(value & 0xFFFFFF);
    return Shaded(value, reference::ToColorRef(hls.hue, luminance(hls.lum), hls.sat));
}

TEST(GpColor, NewOneIsOpaqueBlack) {
    const Ref<GpColor> color = New<GpColor>();
    EXPECT_EQ(color->Value(), -16777216);
    EXPECT_EQ(color->Alpha(), 255);
    EXPECT_EQ(color->Red() + color->Green() + color->Blue(), 0);
}

TEST(GpColor, FieldsAndValueAreTheSameBytes) {
    const Ref<GpColor> color = New<GpColor>();
    color->Color(0x11, 0x22, 0x33, 0x44);
    EXPECT_EQ(color->Value(), 0x11223344);
    color->Alpha(0xAA);
    color->Red(0xBB);
    color->Green(0xCC);
    color->Blue(0xDD);
    EXPECT_EQ(color->Value(), Argb(0xAABBCCDD));
    color->Value(0x01020304);
    EXPECT_EQ(color->Alpha(), 1);
    EXPECT_EQ(color->Red(), 2);
    EXPECT_EQ(color->Green(), 3);
    EXPECT_EQ(color->Blue(), 4);
    EXPECT_EQ(color->MakeARGB(), (ARGB{4, 3, 2, 1}));
}

TEST(GpColor, FromColorRefIsOpaqueUnlessToldOtherwise) {
    const Ref<GpColor> color = New<GpColor>();
    color->Alpha(3);
    color->FromColorRef(0x332211);
    EXPECT_EQ(color->Value(), Argb(0xFF112233));
    color->FromColorRef(0x332211, 7);
    EXPECT_EQ(color->Value(), Argb(0x07112233));
}

TEST(GpColor, FromColorRefTruncatesTowardsZero) {
    const Ref<GpColor> color = New<GpColor>();
    color->FromColorRef(Argb(0x80000005));
    EXPECT_EQ(color->Value(), Argb(0xFF050101));
}

TEST(GpColor, ToColorRefLosesTheAlpha) {
    EXPECT_EQ(ColorOf(0x80112233)->ToColorRef(), 0x332211);
    EXPECT_EQ(ColorOf(0x00112233)->ToColorRef(), 0x332211);
}

TEST(GpColor, ScalesAreThoseOfItsColorRef) {
    ForManyColours([](uint32_t value) {
        const Ref<GpColor> color = ColorOf(value);
        const reference::HLS hls = reference::FromColorRef(Swapped(value & 0xFFFFFF));
        ASSERT_EQ(color->hue(), hls.hue) << std::hex << value;
        ASSERT_EQ(color->Luminance(), hls.lum) << std::hex << value;
        ASSERT_EQ(color->Saturation(), hls.sat) << std::hex << value;
    });
}

TEST(GpColor, SettersReplaceOneComponentAndKeepTheAlpha) {
    const auto packed = [](uint32_t value, int64_t colorRef) {
        return Shaded(value, Swapped(colorRef));
    };
    ForManyColours([&](uint32_t value) {
        const reference::HLS hls = reference::FromColorRef(Swapped(value & 0xFFFFFF));
        for (int16_t to : {0, 1, 40, 119, 120, 121, 160, 240}) {
            const Ref<GpColor> hue = ColorOf(value), lum = ColorOf(value), sat = ColorOf(value);
            hue->hue(to);
            lum->Luminance(to);
            sat->Saturation(to);
            ASSERT_EQ(hue->Value(), packed(value, reference::ToColorRef(to, hls.lum, hls.sat)));
            ASSERT_EQ(lum->Value(), packed(value, reference::ToColorRef(hls.hue, to, hls.sat)));
            ASSERT_EQ(sat->Value(), packed(value, reference::ToColorRef(hls.hue, hls.lum, to)));
        }
    });
}

TEST(GpColor, NegativeHueWrapsAsSixteenBits) {
    const Ref<GpColor> color = ColorOf(0x40FF0000);
    color->hue(-20);
    EXPECT_EQ(color->Value(), Shaded(0x40000000, Swapped(reference::ToColorRef(-20, 120, 240))));
}

TEST(GpColor, GreyHasTheAchromaticHueAndNoSaturation) {
    for (uint32_t grey = 0; grey < 256; ++grey) {
        const Ref<GpColor> color = ColorOf(0xFF000000 | grey * 0x010101);
        EXPECT_EQ(color->hue(), 160);
        EXPECT_EQ(color->Saturation(), 0);
    }
}

TEST(GpColor, FullSaturationTurnsGreyIntoBlue) {
    const Ref<GpColor> color = ColorOf(0xFF808080);
    color->Saturation(240);
    EXPECT_EQ(color->hue(), 160);
    EXPECT_EQ(color->Value(), Argb(0xFF0000FF));
}

TEST(GpColor, BrightnessIsTheWeightedSumRoundedHalfToEven) {
    ForManyColours([](uint32_t value) {
        const int64_t sum =
            (value >> 8 & 255) * 587 + (value >> 16 & 255) * 299 + (value & 255) * 114;
        ASSERT_EQ(ColorOf(value)->Brightness(), reference::RoundedQuotient(sum, 1000));
    });
    EXPECT_EQ(ColorOf(0xFFFFFFFF)->Brightness(), 255);
    EXPECT_EQ(ColorOf(0xFF00FF00)->Brightness(), 150);  // 149.685
}

TEST(GpColor, ShadesTreatTheLowBitsAsTheyLie) {
    ForManyColours([](uint32_t value) {
        const Ref<GpColor> color = ColorOf(value);
        const auto darker = [](int64_t lum, double p) {
            const int64_t x = lum * 667 / 1000;
            return x - std::lrint(static_cast<double>(x) * p);
        };
        const auto lighter = [](int64_t lum, double p) {
            const int64_t x = reference::Scaled(lum, 500, true);
            return lum + std::lrint(static_cast<double>(x - lum) * p);
        };
        const reference::HLS hls = reference::FromColorRef(value & 0xFFFFFF);
        const auto shade = [&](int64_t lum) {
            return Shaded(value, reference::ToColorRef(hls.hue, lum, hls.sat));
        };
        ASSERT_EQ(color->Dark(), shade(darker(hls.lum, 0.5))) << std::hex << value;
        ASSERT_EQ(color->Darker(0.25F), shade(darker(hls.lum, 0.25))) << std::hex << value;
        ASSERT_EQ(color->DarkDark(), shade(darker(hls.lum, 1))) << std::hex << value;
        ASSERT_EQ(color->Light(), shade(lighter(hls.lum, 0.5))) << std::hex << value;
        ASSERT_EQ(color->Lighter(0.75F), shade(lighter(hls.lum, 0.75))) << std::hex << value;
        ASSERT_EQ(color->LightLight(), shade(lighter(hls.lum, 1))) << std::hex << value;
        ASSERT_EQ(color->Value(), Argb(value));
    });
}

TEST(GpColor, DarkDarkIsBlackWithTheColoursOwnAlpha) {
    ForManyColours(
        [](uint32_t value) { ASSERT_EQ(ColorOf(value)->DarkDark(), Argb(value & 0xFF000000)); });
}

TEST(GpColor, LightLightOfBlackIsTheMiddleGrey) {
    EXPECT_EQ(ColorOf(0x55000000)->LightLight(), 0x557F7F7F);
}

TEST(GpColor, AdjustmentsAgreeWithTheirFormulas) {
    ForManyColours([](uint32_t value) {
        const Ref<GpColor> color = ColorOf(value);
        const reference::HLS hls = reference::FromColorRef(value & 0xFFFFFF);
        for (int16_t n : {-1500, -1000, -400, -1, 1, 300, 1000, 2000}) {
            for (bool scale : {false, true}) {
                const int64_t lum = reference::Scaled(hls.lum, n, scale, true);
                const int64_t sat = reference::Scaled(hls.sat, n, scale);
                ASSERT_EQ(color->AdjustLuma(n, scale),
                          Shaded(value, reference::ToColorRef(hls.hue, lum, hls.sat)));
                ASSERT_EQ(color->AdjustSatu(n, scale),
                          Shaded(value, reference::ToColorRef(hls.hue, hls.lum, sat)));
            }
        }
        ASSERT_EQ(color->AdjustLuma(0, true), Argb(value));
    });
}

TEST(GpColor, AdjustHueTurnsByTheRemainderWithItsSign) {
    ForManyColours([](uint32_t value) {
        const reference::HLS hls = reference::FromColorRef(value & 0xFFFFFF);
        for (int16_t n : {-32768, -500, -240, -100, -1, 0, 1, 80, 240, 1000, 32767}) {
            const auto sum = static_cast<int16_t>(hls.hue + n);
            ASSERT_EQ(ColorOf(value)->AdjustHue(n),
                      Shaded(value, reference::ToColorRef(sum % 240, hls.lum, hls.sat)))
                << std::hex << value << ", " << std::dec << n;
        }
    });
}

TEST(GpColor, AdjustHueByNothingIsTheRoundTrip) {
    bool differs = false;
    ForManyColours([&](uint32_t value) {
        const int32_t expected = WithLuminance(value, [](int64_t lum) { return lum; });
        ASSERT_EQ(ColorOf(value)->AdjustHue(0), expected);
        differs |= expected != Argb(value);
    });
    EXPECT_TRUE(differs);
}

TEST(GpColor, ComplementIsTheOppositeHueAtFullSaturation) {
    ForManyColours([](uint32_t value) {
        const Ref<GpColor> color = ColorOf(value);
        const int64_t expected = reference::ToColorRef(color->hue() + 120, 120, 240);
        ASSERT_EQ(color->ComplementaryColor(true), expected);
        ASSERT_EQ(color->ComplementaryColor(), Shaded(value, Swapped(expected)));
    });
}

TEST(GpColor, ComplementOfBlackIsAColour) {
    const Ref<GpColor> black = New<GpColor>();
    EXPECT_EQ(black->ComplementaryColor(true), reference::ToColorRef(280, 120, 240));
    EXPECT_EQ(black->ComplementaryColor(true), 0x00FFFF);
    EXPECT_EQ(black->ComplementaryColor(), Argb(0xFFFFFF00));
}

TEST(GpColor, ComplementOnThePaintersWheel) {
    EXPECT_EQ(ColorOf(0x33FF0000)->ComplementaryColorRYB(true), 0x80FF80);  // hue 0 gives 120
    EXPECT_EQ(ColorOf(0x330000FF)->ComplementaryColorRYB(true), 0x0080FF);  // 160 gives 40
    EXPECT_EQ(ColorOf(0x330000FF)->ComplementaryColorRYB(), 0x33FF8000);
    EXPECT_EQ(ColorOf(0x3300FF00)->ComplementaryColorRYB(true), 0xFF00FF);  // 80 gives 200
}

int InvertedHue(int h) {
    if (h >= 0 && h <= 20) return h + 80;
    if (h >= 220 && h <= 240) return h - 160;
    if (h >= 20 && h <= 60) return h + 80;
    if (h >= 60 && h <= 120) return h - 80;
    if (h >= 120 && h <= 200) return h + 80;
    return h;
}

int32_t ExpectedInvert(uint32_t value) {
    const reference::HLS hls = reference::FromColorRef(Swapped(value & 0xFFFFFF));
    return Shaded(value, Swapped(reference::ToColorRef(InvertedHue(hls.hue), hls.lum, hls.sat)));
}

TEST(GpColor, InvertMovesTheHueByItsTableAndKeepsTheAlpha) {
    for (int hue = 0; hue <= 240; ++hue) {
        for (int lum : {60, 120, 180}) {
            const auto rgb = static_cast<uint32_t>(Swapped(reference::ToColorRef(hue, lum, 240)));
            for (uint32_t alpha : {0x00000000u, 0x80000000u, 0xFF000000u}) {
                ASSERT_EQ(ColorOf(alpha | rgb)->Invert(), ExpectedInvert(alpha | rgb)) << hue;
            }
        }
    }
    ForManyColours([](uint32_t value) {
        ASSERT_EQ(ColorOf(value)->Invert(), ExpectedInvert(value)) << std::hex << value;
    });
}

struct InvertRow {
    uint32_t value, inverted;
};
/// Pure colours of the rows, and one that none of them holds.
const InvertRow kInversions[] = {
    {0xFFFF0000, 0xFF00FF00},  // hue 0 becomes 80
    {0xFFFFFF00, 0xFF00FFFF},  // 40 becomes 120
    {0xFF00FF00, 0xFFFF0000},  // 80 becomes 0
    {0xFF00FFFF, 0xFFFFFF00},  // 120 becomes 40: the row before holds it too
    {0xFF0000FF, 0xFFFF0000},  // 160 becomes 240
};

TEST(GpColor, InvertOfPureColours) {
    for (const InvertRow& row : kInversions) {
        EXPECT_EQ(ColorOf(row.value)->Invert(), Argb(row.inverted)) << std::hex << row.value;
    }
}

TEST(GpColor, HuesBetween201And219AreLeftAlone) {
    for (int hue = 202; hue <= 218; ++hue) {
        const auto rgb = static_cast<uint32_t>(Swapped(reference::ToColorRef(hue, 120, 240)));
        const Ref<GpColor> color = ColorOf(rgb);
        ASSERT_GT(color->hue(), 200);
        ASSERT_LT(color->hue(), 220);
        const reference::HLS hls = reference::FromColorRef(Swapped(rgb));
        EXPECT_EQ(color->Invert(), Swapped(reference::ToColorRef(hls.hue, hls.lum, hls.sat)));
    }
}

int64_t Weighted(int64_t value) {
    return value / 256 % 256 * 587 + value / 65536 % 256 * 299 + value % 256 * 114;
}

/// The whole search, by the shades of the object itself.
int32_t ExpectedDiff(uint32_t value) {
    const Ref<GpColor> scratch = ColorOf(static_cast<uint32_t>(ExpectedInvert(value)));
    const int64_t own = Weighted(value & 0xFFFFFF);
    const auto apart = [&](int32_t color) { return std::abs(own - Weighted(color & 0xFFFFFF)); };
    int32_t color = scratch->Value();
    if (apart(color) >= 125000) return color;
    for (int i = 1; i <= 100; ++i) {
        const auto p = static_cast<float>(i / 100.0);
        color = own < 127501 ? scratch->Lighter(p) : scratch->Darker(p);
        if (apart(color) >= 125000) return color;
    }
    return color;
}

TEST(GpColor, DiffIsTheFirstShadeThatStandsOut) {
    ForManyColours(
        [](uint32_t value) {
            const int32_t expected = ExpectedDiff(value);
            ASSERT_EQ(ColorOf(value)->Diff(), expected) << std::hex << value;
            ASSERT_EQ(ColorOf(value)->Diff(true), Swapped(expected & 0xFFFFFF));
        },
        660001);
}

TEST(GpColor, DiffOfBlackIsTheFirstGreyThatStandsOut) {
    // Luminance 118 is the grey 125; round(120 * 0.98) is 118.
    EXPECT_EQ(New<GpColor>()->Diff(), Argb(0xFF7D7D7D));
    EXPECT_EQ(New<GpColor>()->Diff(true), 0x7D7D7D);
}

TEST(GpColor, DiffOfWhiteIsDark) {
    const Ref<GpColor> white = ColorOf(0xFFFFFFFF);
    const Ref<GpColor> diff = ColorOf(static_cast<uint32_t>(white->Diff()));
    EXPECT_LE(diff->Brightness(), 130);
    EXPECT_EQ(diff->Alpha(), 255);
}

TEST(GpColor, ResultsLeaveTheObject) {
    const Ref<GpColor> color = ColorOf(0x80336699);
    color->Diff();
    color->Invert();
    color->ComplementaryColor();
    color->ComplementaryColorRYB();
    color->Light();
    color->AdjustHue(50);
    EXPECT_EQ(color->Value(), Argb(0x80336699));
}

}  // namespace
}  // namespace vxgui
