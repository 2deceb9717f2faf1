#include <algorithm>
#include <cmath>

#include "tests/platform/gdiplus_effects/EffectFixture.h"

namespace vxgui::gdiplus {
namespace {

using GdiplusEffectColors = test::EffectFixture;

TEST_F(GdiplusEffectColors, MatrixIsThatOfImageAttributes) {
    ColorMatrix swap{};
    swap.m[0][2] = swap.m[1][1] = swap.m[2][0] = 1;
    swap.m[3][3] = 0.5f;
    EXPECT_EQ(Applied(Make(test::kMatrix, swap), 0xFF112233), 0x80332211u);
}

TEST_F(GdiplusEffectColors, TablesReplaceEachChannel) {
    ColorLUTParams tables;
    for (int i = 0; i < 256; ++i) {
        tables.lutB.Colors[i] = static_cast<BYTE>(255 - i);
        tables.lutG.Colors[i] = static_cast<BYTE>(i / 2);
        tables.lutR.Colors[i] = 7;
        tables.lutA.Colors[i] = static_cast<BYTE>(i ^ 1);
    }
    EXPECT_EQ(Applied(Make(test::kLut, tables), 0xFF804020), 0xFE0720DFu);
}

TEST_F(GdiplusEffectColors, BrightnessShiftsAndContrastSpreads) {
    const auto make = [&](int brightness, int contrast) {
        return Make(test::kBrightness, BrightnessContrastParams{brightness, contrast});
    };
    EXPECT_EQ(Applied(make(20, 0), 0x80102030), 0x80243444u);
    EXPECT_EQ(Applied(make(-32, 0), 0x80102030), 0x80000010u);
    EXPECT_EQ(Applied(make(255, 0), 0xFF000000), 0xFFFFFFFFu);
    EXPECT_EQ(Applied(make(0, -100), 0xFF0080FF), 0xFF808080u);
    EXPECT_EQ(Applied(make(0, 100), 0xFF7F80FF), 0xFF00FFFFu);
    EXPECT_EQ(Applied(make(0, 50), 0xFF40A0C0), 0xFF01C1FFu);  // twice as far from the middle
}

TEST_F(GdiplusEffectColors, HueTurnsAndGraysStayGray) {
    const auto make = [&](int hue, int saturation, int lightness) {
        return Make(test::kHue, HueSaturationLightnessParams{hue, saturation, lightness});
    };
    EXPECT_EQ(Applied(make(120, 0, 0), 0xFFFF0000), 0xFF00FF00u);
    EXPECT_EQ(Applied(make(-120, 0, 0), 0x80FF0000), 0x800000FFu);
    EXPECT_EQ(Applied(make(180, 0, 0), 0xFFFF0000), 0xFF00FFFFu);
    EXPECT_EQ(Applied(make(90, 100, 0), 0xFF808080), 0xFF808080u);
    EXPECT_EQ(Applied(make(0, -100, 0), 0xFFFF0000), 0xFF808080u);
    EXPECT_EQ(Applied(make(0, 0, 100), 0xFF123456), 0xFFFFFFFFu);
    EXPECT_EQ(Applied(make(0, 0, -100), 0xFF123456), 0xFF000000u);
}

TEST_F(GdiplusEffectColors, AFullTurnOfHueLeavesEveryColour) {
    CGpEffect* half = Make(test::kHue, HueSaturationLightnessParams{180, 0, 0});
    const test::TestPicture sample = test::EffectSample();
    const auto twice = Applied(half, Applied(half, sample));
    EXPECT_TRUE(test::ComparePictures(twice, sample, 1).Equal());
}

TEST_F(GdiplusEffectColors, LevelsStretchWhatLiesBetween) {
    const auto make = [&](int highlight, int midtone, int shadow) {
        return Make(test::kLevels, LevelsParams{highlight, midtone, shadow});
    };
    EXPECT_EQ(Applied(make(80, 0, 0), 0xFFCC6600), 0xFFFF8000u);
    EXPECT_EQ(Applied(make(100, 0, 20), 0xFF33FF99), 0xFF00FF80u);
    EXPECT_EQ(Applied(make(50, 0, 50), 0xFF7F80FF), 0xFF00FFFFu);  // a step
    const uint32_t lighter = Applied(make(100, 50, 0), 0xFF808080) & 255;
    EXPECT_EQ(lighter, static_cast<uint32_t>(std::lround(255 * std::sqrt(128 / 255.0))));
    EXPECT_LT(Applied(make(100, -50, 0), 0xFF808080) & 255, 80u);
}

TEST_F(GdiplusEffectColors, TintStrengthensAHueOfThePublishedWheel) {
    struct Case {
        int hue;
        int shift;  // of the channel that grows most
    };
    for (const Case& of : {Case{0, 0}, Case{120, 8}, Case{-120, 16}}) {
        const uint32_t tinted = Applied(Make(test::kTint, TintParams{of.hue, 60}), 0xFF808080);
        for (int shift = 0; shift < 24; shift += 8) {
            const uint32_t channel = tinted >> shift & 255;
            EXPECT_TRUE(shift == of.shift ? channel > 0x80 : channel < 0x80) << of.hue;
        }
    }
    const uint32_t cyan = Applied(Make(test::kTint, TintParams{60, 60}), 0xFF808080);
    EXPECT_EQ(cyan & 255, cyan >> 8 & 255);
    EXPECT_LT(cyan >> 16 & 255, 0x80u);
    const uint32_t lessBlue = Applied(Make(test::kTint, TintParams{0, -60}), 0xFF808080);
    EXPECT_LT(lessBlue & 255, 0x80u);
    EXPECT_EQ(Applied(Make(test::kTint, TintParams{90, 0}), 0x12345678), 0x12345678u);
}

TEST_F(GdiplusEffectColors, BalanceShiftsEachPair) {
    EXPECT_EQ(Applied(Make(test::kBalance, ColorBalanceParams{40, -40, 100}), 0xFF404040),
              0xFF730DC0u);
}

TEST_F(GdiplusEffectColors, RedEyesLoseTheirRedInsideTheirArea) {
    RedEyeCorrectionParams params{1, {0, 0, 2, 1}};
    const test::TestPicture eyes{3, 1, {0xFFE01020, 0xFFC0B0A0, 0xFFE01020}};
    const auto corrected = Applied(Make(test::kRedEye, params), eyes);
    EXPECT_EQ(corrected.pixels, (std::vector<uint32_t>{0xFF181020, 0xFFC0B0A0, 0xFFE01020}));
}

TEST_F(GdiplusEffectColors, FurtherRedEyesFollowTheRecord) {
    struct TwoEyes {
        int32_t count = 2;
        gdi::RECT areas[2] = {{0, 0, 1, 1}, {2, 0, 3, 1}};
    };
    CGpEffect* effect = Make(test::kRedEye, TwoEyes{});
    const test::TestPicture eyes{3, 1, {0xFFE01020, 0xFFE01020, 0xFFE01020}};
    EXPECT_EQ(Applied(effect, eyes).pixels,
              (std::vector<uint32_t>{0xFF181020, 0xFFE01020, 0xFF181020}));
    UINT size = 0;
    EXPECT_EQ(GdipGetEffectParameterSize(effect, &size), Ok);
    EXPECT_EQ(size, sizeof(TwoEyes));
}

TEST_F(GdiplusEffectColors, AreasOfRedEyesBelongToTheBitmapNotToThePart) {
    CGpEffect* effect = Make(test::kRedEye, RedEyeCorrectionParams{1, {2, 0, 3, 1}});
    const test::TestPicture eyes{4, 1, std::vector<uint32_t>(4, 0xFFE01020)};
    gdi::RECT part{1, 0, 4, 1};
    const auto corrected = Applied(effect, eyes, &part);
    EXPECT_EQ(corrected.At(1, 0), 0xFFE01020u);
    EXPECT_EQ(corrected.At(2, 0), 0xFF181020u);
}

TEST_F(GdiplusEffectColors, EveryCurveRisesAndLeavesOtherChannels) {
    test::TestPicture ramp{256, 1, {}};
    for (uint32_t i = 0; i < 256; ++i) ramp.pixels.push_back(0x40000000 | i * 0x010101);
    for (int adjustment = 0; adjustment < 8; ++adjustment) {
        const int low = adjustment >= 6 ? 0 : adjustment < 2 ? -255 : -100;
        const int high = adjustment >= 6 || adjustment < 2 ? 255 : 100;
        for (int value : {low, low / 2, high / 3, high}) {
            const ColorCurveParams params{static_cast<CurveAdjustments>(adjustment),
                                          CurveChannelGreen, value};
            const auto curved = Applied(Make(test::kCurve, params), ramp);
            for (int i = 0; i < 256; ++i) {
                const uint32_t pixel = curved.At(i, 0);
                EXPECT_EQ(pixel & 0xFFFF00FF, ramp.At(i, 0) & 0xFFFF00FF);
                EXPECT_GE(pixel >> 8 & 255, curved.At(std::max(i - 1, 0), 0) >> 8 & 255);
            }
        }
    }
}

TEST_F(GdiplusEffectColors, CurvesDoWhatTheirNamesSay) {
    const auto gray = [&](CurveAdjustments adjustment, int value, uint32_t tone) {
        const ColorCurveParams params{adjustment, CurveChannelAll, value};
        return Applied(Make(test::kCurve, params), 0xFF000000 | tone * 0x010101) & 255;
    };
    EXPECT_EQ(gray(AdjustExposure, 128, 50), 100u);
    EXPECT_EQ(gray(AdjustExposure, -128, 50), 25u);
    EXPECT_GT(gray(AdjustDensity, 100, 50), 50u);
    EXPECT_EQ(gray(AdjustContrast, 100, 100), 0u);
    EXPECT_GT(gray(AdjustHighlight, 100, 170), 190u);
    EXPECT_LT(gray(AdjustHighlight, 100, 40), 50u);
    EXPECT_GT(gray(AdjustShadow, 100, 60), 80u);
    EXPECT_LT(gray(AdjustShadow, -100, 60), 40u);
    EXPECT_GT(gray(AdjustMidtone, 50, 128), 170u);
    EXPECT_EQ(gray(AdjustWhiteSaturation, 200, 200), 255u);
    EXPECT_EQ(gray(AdjustWhiteSaturation, 200, 100), 128u);
    EXPECT_EQ(gray(AdjustBlackSaturation, 50, 50), 0u);
    EXPECT_EQ(gray(AdjustBlackSaturation, 50, 255), 255u);
    for (const auto adjustment : {AdjustHighlight, AdjustShadow, AdjustMidtone, AdjustDensity}) {
        EXPECT_EQ(gray(adjustment, 80, 0), 0u);
        EXPECT_EQ(gray(adjustment, 80, 255), 255u);
    }
}

TEST_F(GdiplusEffectColors, BlurSpreadsAPointEvenly) {
    test::TestPicture point{21, 21, std::vector<uint32_t>(441, 0xFF000000)};
    point.At(10, 10) = 0xFFFFFFFF;
    const auto blurred = Applied(Make(test::kBlur, BlurParams{4, 0}), point);
    EXPECT_GT(blurred.At(10, 10) & 255, blurred.At(11, 10) & 255);
    for (int d = 1; d <= 6; ++d) {
        EXPECT_EQ(blurred.At(10 + d, 10), blurred.At(10 - d, 10));
        EXPECT_EQ(blurred.At(10, 10 + d), blurred.At(10 + d, 10));
    }
    EXPECT_EQ(blurred.At(15, 10), 0xFF000000u);  // no further than the radius
}

TEST_F(GdiplusEffectColors, BlurKeepsOpaqueEdgesUnlessTheyMayFade) {
    const test::TestPicture white{12, 12, std::vector<uint32_t>(144, 0xFFFFFFFF)};
    EXPECT_EQ(Applied(Make(test::kBlur, BlurParams{5, 0}), white).pixels, white.pixels);
    const auto faded = Applied(Make(test::kBlur, BlurParams{5, 1}), white);
    EXPECT_LT(faded.At(0, 6) >> 24, 200u);
    EXPECT_EQ(faded.At(0, 6) & 0xFFFFFF, 0xFFFFFFu);
}

TEST_F(GdiplusEffectColors, SharpenRaisesTheContrastOfAnEdge) {
    test::TestPicture edge{20, 4, {}};
    for (int i = 0; i < 80; ++i) edge.pixels.push_back(i % 20 < 10 ? 0x80404040 : 0x80C0C0C0);
    const auto sharp = Applied(Make(test::kSharpen, SharpenParams{3, 100}), edge);
    EXPECT_LT(sharp.At(9, 2) & 255, 0x40u);
    EXPECT_GT(sharp.At(10, 2) & 255, 0xC0u);
    EXPECT_EQ(sharp.At(2, 2), 0x80404040u);
    EXPECT_EQ(sharp.At(17, 2), 0x80C0C0C0u);
}

// The sample, and all eleven effects on it, six to a row.
TEST_F(GdiplusEffectColors, AllEffectsLookAsTheyDid) {
    constexpr int kSide = 64;
    const test::TestPicture sample = test::EffectSample(kSide);
    ColorMatrix sepia{};
    for (int i = 0; i < 3; ++i) {
        sepia.m[0][i] = 0.393f - 0.04f * static_cast<float>(i);
        sepia.m[1][i] = 0.769f - 0.1f * static_cast<float>(i);
        sepia.m[2][i] = 0.189f - 0.03f * static_cast<float>(i);
    }
    sepia.m[3][3] = 1;
    ColorLUTParams steps;
    for (int i = 0; i < 256; ++i) {
        const auto step = static_cast<BYTE>(i / 64 * 85);
        steps.lutB.Colors[i] = steps.lutG.Colors[i] = steps.lutR.Colors[i] = step;
        steps.lutA.Colors[i] = static_cast<BYTE>(i);
    }
    const ColorCurveParams curve{AdjustMidtone, CurveChannelRed, 60};
    const RedEyeCorrectionParams eye{1, {38, 38, 60, 60}};
    CGpEffect* const effects[] = {
        Make(test::kBlur, BlurParams{6, 1}),
        Make(test::kSharpen, SharpenParams{4, 90}),
        Make(test::kMatrix, sepia),
        Make(test::kLut, steps),
        Make(test::kBrightness, BrightnessContrastParams{20, 40}),
        Make(test::kHue, HueSaturationLightnessParams{60, 20, 10}),
        Make(test::kLevels, LevelsParams{80, 20, 15}),
        Make(test::kTint, TintParams{-60, 70}),
        Make(test::kBalance, ColorBalanceParams{40, -20, -60}),
        Make(test::kRedEye, eye),
        Make(test::kCurve, curve),
    };
    test::TestPicture sheet{6 * kSide, 2 * kSide,
                            std::vector<uint32_t>(static_cast<size_t>(12 * kSide * kSide))};
    const auto show = [&](const test::TestPicture& picture, int at) {
        for (int y = 0; y < kSide; ++y) {
            for (int x = 0; x < kSide; ++x) {
                sheet.At(at % 6 * kSide + x, at / 6 * kSide + y) = picture.At(x, y);
            }
        }
    };
    show(sample, 0);
    for (int i = 0; i < 11; ++i) show(Applied(effects[i], sample), i + 1);
    test::ExpectGolden("gdiplus/effects", sheet, 1);
}

}  // namespace
}  // namespace vxgui::gdiplus
