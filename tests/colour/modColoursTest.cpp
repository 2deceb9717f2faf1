#include "vxgui/colour/modColours.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/colour/Reference.h"

namespace vxgui {
namespace {

constexpr int32_t Signed(uint32_t value) { return static_cast<int32_t>(value); }

TEST(OleColors, NoneIsASystemColour) {
    for (uint32_t value : {0u, 5u, 0x7FFFFFFFu, 0x80000000u, 0x80000005u, 0x80000017u, 0x80000018u,
                           0x80000019u, 0xFFFFFFFFu}) {
        EXPECT_FALSE(IsOleSystemColor(Signed(value))) << std::hex << value;
    }
}

TEST(OleColors, AreReducedToTheirLow24Bits) {
    HANDLE palette = nullptr;
    EXPECT_EQ(TranslateOleColor(Signed(0x80000005)), 5);
    EXPECT_EQ(TranslateOleColor(Signed(0xFF123456), &palette), 0x123456);
    EXPECT_EQ(palette, nullptr);
    EXPECT_EQ(TranslateOleColor(-1), 0xFFFFFF);
}

TEST(Packing, RedOfAColorRefReachesTheRedOfAnArgbValue) {
    EXPECT_EQ(MakeARGBFromColorRef(0x563412, 0x78), 0x78123456);
    EXPECT_EQ(MakeARGBFromColorRef(0x0000FF, 255), Signed(0xFFFF0000));
    EXPECT_EQ(MakeARGBFromColorRef(0xFF0000, 0), 0x000000FF);
}

TEST(Packing, QuotientsOfNegativeNumbersTruncateTowardsZero) {
    // -2147483643 / 256 is -8388607.98, and -8388607 is 0xFF800001.
    EXPECT_EQ(MakeARGBFromColorRef(Signed(0x80000005), 0), 0x00050101);
    EXPECT_EQ(MakeARGBFromColorRef(Signed(0x80000000), 0), 0);
    EXPECT_EQ(MakeARGBFromColorRef(-1, 0), 0x00FF0000);
}

TEST(Packing, OleColoursLoseTheirTopByteFirst) {
    EXPECT_EQ(MakeARGBFromOleColor(Signed(0x80000005), 255), Signed(0xFF050000));
    EXPECT_EQ(MakeARGBFromOleColor(-1, 1), 0x01FFFFFF);
}

TEST(Packing, ColorRefOfAPixelDropsTheAlpha) {
    EXPECT_EQ(ColorRefFromARGB({1, 2, 3, 4}, false), 0x010203);
}

TEST(Packing, ColorRefOfAPremultipliedPixelIsScaledUp) {
    for (int alpha = 1; alpha < 256; ++alpha) {
        for (int c = 0; c <= alpha; ++c) {
            const auto byte = static_cast<uint8_t>(c);
            const int64_t expected = reference::RoundedQuotient(c * 255, alpha);
            ASSERT_NEAR(ColorRefFromARGB({0, 0, byte, static_cast<uint8_t>(alpha)}, true), expected,
                        // The factor is rounded before the product, so exact halves may differ.
                        (c * 255 * 2) % alpha == 0 ? 1 : 0)
                << c << " of " << alpha;
        }
    }
    EXPECT_EQ(ColorRefFromARGB({64, 32, 128, 128}, true), 0x8040FF);
}

TEST(Packing, ChannelsAboveTheAlphaAreHeldTo255) {
    EXPECT_EQ(ColorRefFromARGB({255, 1, 200, 1}, true), 0xFFFFFF);
}

TEST(Packing, ClearPixelGivesBlack) { EXPECT_EQ(ColorRefFromARGB({9, 9, 9, 0}, true), 0); }

TEST(ScaleHLSValue, AgreesWithItsFormulaForEveryValueAndStep) {
    for (int value = 0; value <= 240; ++value) {
        for (int n = -1200; n <= 1200; ++n) {
            for (bool scale : {false, true}) {
                ASSERT_EQ(ScaleHLSValue(static_cast<int16_t>(value), n, scale),
                          reference::Scaled(value, n, scale))
                    << value << ", " << n;
            }
        }
    }
}

TEST(ScaleHLSValue, ByNothingIsTheValueItselfEvenBesideTheScale) {
    EXPECT_EQ(ScaleHLSValue(100, 0, true), 100);
    EXPECT_EQ(ScaleHLSValue(300, 0, false), 300);
    EXPECT_EQ(ScaleHLSValue(-5, 0, true), -5);
}

TEST(ScaleHLSValue, IsClampedToTheScale) {
    EXPECT_EQ(ScaleHLSValue(240, 1000, true), 240);
    EXPECT_EQ(ScaleHLSValue(240, 1, false), 240);
    EXPECT_EQ(ScaleHLSValue(239, 8, false), 240);
    EXPECT_EQ(ScaleHLSValue(10, -2000, true), 0);
    EXPECT_EQ(ScaleHLSValue(10, -2000, false), 0);
    EXPECT_EQ(ScaleHLSValue(240, 32767, true), 240);
}

TEST(ScaleHLSValue, EndOfTheScaleCountsOneAboveIt) {
    EXPECT_EQ(ScaleHLSValue(0, 500, true), 120);  // half of 241 is 120.5
    EXPECT_EQ(ScaleHLSValue(1, 500, true), 121);
}

TEST(ScaleHLSValue, AbsurdStepsWrapAndStayOnTheScale) {
    for (int32_t n : {std::numeric_limits<int32_t>::min(), std::numeric_limits<int32_t>::max()}) {
        for (bool scale : {false, true}) {
            const int16_t value = ScaleHLSValue(240, n, scale);
            EXPECT_GE(value, 0);
            EXPECT_LE(value, 240);
        }
    }
}

int64_t RoundedProduct(int64_t x, float p) {
    const double product = static_cast<double>(x) * static_cast<double>(p);
    return std::lrint(product);
}

int64_t ExpectedDarker(int64_t rgb, float p) {
    const reference::HLS hls = reference::FromColorRef(rgb);
    const int64_t x = (hls.lum * 667) / 1000;
    return reference::ToColorRef(hls.hue, x - RoundedProduct(x, p), hls.sat);
}

int64_t ExpectedLighter(int64_t rgb, float p) {
    const reference::HLS hls = reference::FromColorRef(rgb);
    const int64_t x = reference::Scaled(hls.lum, 500, true);
    return reference::ToColorRef(hls.hue, hls.lum + RoundedProduct(x - hls.lum, p), hls.sat);
}

TEST(Shades, AgreeWithTheirFormulasOverTheColourCube) {
    for (int32_t rgb = 0; rgb <= 0xFFFFFF; rgb += 257) {
        for (float p : {0.0F, 0.25F, 0.5F, 0.77F, 1.0F}) {
            if (DarkenColorRef(rgb, p) != ExpectedDarker(rgb, p) ||
                LightenColorRef(rgb, p) != ExpectedLighter(rgb, p)) {
                FAIL() << std::hex << rgb << ", " << p;
            }
        }
    }
}

TEST(Shades, DarkestIsBlackAndLightestOfBlackIsTheMiddleGrey) {
    EXPECT_EQ(DarkenColorRef(0x336699, 1.0F), 0);
    EXPECT_EQ(LightenColorRef(0, 1.0F), 0x7F7F7F);  // 120 * 255 / 240
}

struct Sector {
    int32_t hue;
    int r, g, b;  // for t = 128, u = 64
};
/// Half of the way through each sector.
const Sector kSectors[] = {
    {20, 255, 64, 0},    {60, 255, 192, 0},   {100, 191, 255, 64},
    {140, 64, 191, 192}, {180, 128, 64, 255}, {220, 255, 0, 127},
};

TEST(RybWheel, HasSixSectors) {
    for (const Sector& sector : kSectors) {
        uint8_t r, g, b;
        HueToRybColor(sector.hue, r, g, b);
        EXPECT_EQ(r, sector.r) << sector.hue;
        EXPECT_EQ(g, sector.g) << sector.hue;
        EXPECT_EQ(b, sector.b) << sector.hue;
    }
}

TEST(RybWheel, AgreesWithItsTableForEveryHue) {
    for (int32_t hue = -1000; hue <= 1000; ++hue) {
        const int32_t turned = ((hue % 240) + 240) % 240;
        const auto t = static_cast<int>(reference::RoundedQuotient(turned % 40 * 255, 40));
        const int u = t / 2;
        const int table[6][3] = {{255, u, 0},       {255, u + 128, 0},
                                 {255 - u, 255, u}, {128 - u, 255 - u, u + 128},
                                 {t, 128 - u, 255}, {255, 0, 255 - t}};
        uint8_t r, g, b;
        HueToRybColor(hue, r, g, b);
        const auto& expected = table[turned / 40];
        ASSERT_EQ(r, expected[0]) << hue;
        ASSERT_EQ(g, expected[1]) << hue;
        ASSERT_EQ(b, expected[2]) << hue;
    }
}

TEST(RybWheel, FarHuesTurnAround) {
    uint8_t r, g, b;
    HueToRybColor(std::numeric_limits<int32_t>::min(), r, g, b);  // -128 after whole turns: 112
    EXPECT_EQ((ARGB{b, g, r, 0}), (ARGB{102, 255, 153, 0}));
}

}  // namespace
}  // namespace vxgui
