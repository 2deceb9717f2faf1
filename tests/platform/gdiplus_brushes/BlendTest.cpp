#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/platform/gdiplus_brushes/BrushFixture.h"

namespace vxgui::gdiplus {
namespace {

// The blend functions of one kind of gradient, and a brush from black at the left to white that
// shows its first 100 places in 100 pixels of row 100.
struct Kind {
    const char* name;
    GpBrush* (*make)();
    GpStatus (*count)(GpBrush*, INT*);
    GpStatus (*get)(GpBrush*, REAL*, REAL*, INT);
    GpStatus (*set)(GpBrush*, const REAL*, const REAL*, INT);
    GpStatus (*presetCount)(GpBrush*, INT*);
    GpStatus (*getPreset)(GpBrush*, ARGB*, REAL*, INT);
    GpStatus (*setPreset)(GpBrush*, const ARGB*, const REAL*, INT);
    GpStatus (*sigma)(GpBrush*, REAL, REAL);
    GpStatus (*linear)(GpBrush*, REAL, REAL);
    GpStatus (*setGamma)(GpBrush*, BOOL);
    GpStatus (*getGamma)(GpBrush*, BOOL*);
};

void PrintTo(const Kind& kind, std::ostream* out) { *out << kind.name; }

GpBrush* MakeLine() {
    GpBrush* brush = nullptr;
    const GpPointF from{0, 0}, to{100, 0};
    GdipCreateLineBrush(&from, &to, 0xFF000000, 0xFFFFFFFF, WrapModeTile, &brush);
    return brush;
}

GpBrush* MakePath() {
    GpBrush* brush = nullptr;
    const GpPointF points[] = {{0, 0}, {200, 0}, {200, 200}, {0, 200}};
    GdipCreatePathGradient(points, 4, WrapModeClamp, &brush);
    const ARGB black = 0xFF000000;
    INT one = 1;
    GdipSetPathGradientSurroundColorsWithCount(brush, &black, &one);
    GdipSetPathGradientCenterColor(brush, 0xFFFFFFFF);
    return brush;
}

const Kind kKinds[] = {
    {"Line", MakeLine, GdipGetLineBlendCount, GdipGetLineBlend, GdipSetLineBlend,
     GdipGetLinePresetBlendCount, GdipGetLinePresetBlend, GdipSetLinePresetBlend,
     GdipSetLineSigmaBlend, GdipSetLineLinearBlend, GdipSetLineGammaCorrection,
     GdipGetLineGammaCorrection},
    {"PathGradient", MakePath, GdipGetPathGradientBlendCount, GdipGetPathGradientBlend,
     GdipSetPathGradientBlend, GdipGetPathGradientPresetBlendCount, GdipGetPathGradientPresetBlend,
     GdipSetPathGradientPresetBlend, GdipSetPathGradientSigmaBlend, GdipSetPathGradientLinearBlend,
     GdipSetPathGradientGammaCorrection, GdipGetPathGradientGammaCorrection},
};

class GdiplusBlend : public test::BrushFixture, public testing::WithParamInterface<Kind> {
protected:
    GdiplusBlend() : brush_(Keep(GetParam().make())) {}

    // The colours at (i + 0.5) / 100.
    std::vector<uint32_t> Colors() {
        const auto picture = Paint(brush_, 100, 101);
        return {picture.pixels.begin() + 100 * 100, picture.pixels.end()};
    }
    template <class Share>
    void ExpectShares(Share share, double tolerance = 2.5) {
        const std::vector<uint32_t> colors = Colors();
        for (size_t i = 0; i < 100; ++i) {
            const double place = (static_cast<double>(i) + 0.5) / 100;
            EXPECT_NEAR(colors[i] & 255, share(place) * 255, tolerance) << i;
        }
    }
    INT Count() {
        INT count = -1;
        EXPECT_EQ(GetParam().count(brush_, &count), Ok);
        return count;
    }

    GpBrush* brush_;
};

TEST_P(GdiplusBlend, IsEvenAtFirst) {
    EXPECT_EQ(Count(), 1);
    REAL factor = 0, place = 7;
    EXPECT_EQ(GetParam().get(brush_, &factor, &place, 1), Ok);
    EXPECT_EQ(factor, 1);
    EXPECT_EQ(place, 0);
    ExpectShares([](double place) { return place; });
}

TEST_P(GdiplusBlend, FollowsItsFactors) {
    const REAL factors[] = {0, 0.8f, 0.2f, 1}, places[] = {0, 0.25f, 0.5f, 1};
    ASSERT_EQ(GetParam().set(brush_, factors, places, 4), Ok);
    EXPECT_EQ(Count(), 4);
    REAL gotFactors[4], gotPlaces[4];
    EXPECT_EQ(GetParam().get(brush_, gotFactors, gotPlaces, 4), Ok);
    EXPECT_TRUE(std::ranges::equal(factors, gotFactors));
    EXPECT_TRUE(std::ranges::equal(places, gotPlaces));
    ExpectShares(
        [](double place) {
            if (place < 0.25) return place * 3.2;
            return place < 0.5 ? 0.8 - (place - 0.25) * 2.4 : 0.2 + (place - 0.5) * 1.6;
        },
        3.5);
}

TEST_P(GdiplusBlend, RefusesPlacesThatDoNotGoFrom0To1) {
    const REAL factors[] = {0, 0.5f, 1};
    const REAL late[] = {0.1f, 0.5f, 1}, early[] = {0, 0.5f, 0.9f}, falling[] = {0, -1, 1};
    for (const REAL* places : {late, early, falling}) {
        EXPECT_EQ(GetParam().set(brush_, factors, places, 3), InvalidParameter);
    }
    EXPECT_EQ(GetParam().set(brush_, factors, early, 0), InvalidParameter);
    EXPECT_EQ(GetParam().set(brush_, nullptr, early, 3), InvalidParameter);
    EXPECT_EQ(GetParam().set(nullptr, factors, early, 1), InvalidParameter);
    EXPECT_EQ(Count(), 1);
}

TEST_P(GdiplusBlend, GettersNeedRoom) {
    const REAL factors[] = {0, 0.5f, 1}, places[] = {0, 0.5f, 1};
    ASSERT_EQ(GetParam().set(brush_, factors, places, 3), Ok);
    REAL got[3];
    EXPECT_EQ(GetParam().get(brush_, got, got, 2), InsufficientBuffer);
    EXPECT_EQ(GetParam().get(brush_, got, nullptr, 3), InvalidParameter);
    EXPECT_EQ(GetParam().count(brush_, nullptr), InvalidParameter);
    ARGB color;
    EXPECT_EQ(GetParam().getPreset(brush_, &color, got, 1), WrongState);
}

TEST_P(GdiplusBlend, PresetsReplaceTheColours) {
    const ARGB colors[] = {0xFFFF0000, 0xFF00FF00, 0xFF0000FF};
    const REAL places[] = {0, 0.5f, 1};
    ASSERT_EQ(GetParam().setPreset(brush_, colors, places, 3), Ok);
    INT count = 0;
    EXPECT_EQ(GetParam().presetCount(brush_, &count), Ok);
    EXPECT_EQ(count, 3);
    ARGB gotColors[3];
    REAL gotPlaces[3];
    EXPECT_EQ(GetParam().getPreset(brush_, gotColors, gotPlaces, 3), Ok);
    EXPECT_TRUE(std::ranges::equal(colors, gotColors));
    EXPECT_TRUE(std::ranges::equal(places, gotPlaces));
    const std::vector<uint32_t> shown = Colors();
    for (size_t i = 0; i < 100; ++i) {
        const double place = (static_cast<double>(i) + 0.5) / 100;
        EXPECT_NEAR(shown[i] >> 16 & 255, std::max(0.0, 1 - 2 * place) * 255, 4) << i;
        EXPECT_NEAR(shown[i] >> 8 & 255, (1 - std::abs(2 * place - 1)) * 255, 4) << i;
        EXPECT_NEAR(shown[i] & 255, std::max(0.0, 2 * place - 1) * 255, 4) << i;
    }
}

TEST_P(GdiplusBlend, PresetsAtOnePlaceMakeAStep) {
    const ARGB colors[] = {0xFFFF0000, 0xFFFF0000, 0xFF0000FF, 0xFF0000FF};
    const REAL places[] = {0, 0.4f, 0.4f, 1};
    ASSERT_EQ(GetParam().setPreset(brush_, colors, places, 4), Ok);
    const std::vector<uint32_t> shown = Colors();
    EXPECT_EQ(shown[38], 0xFFFF0000u);
    EXPECT_EQ(shown[41], 0xFF0000FFu);
}

TEST_P(GdiplusBlend, ANewBlendEndsPresets) {
    const ARGB colors[] = {0xFFFF0000, 0xFF0000FF};
    const REAL places[] = {0, 1};
    ASSERT_EQ(GetParam().setPreset(brush_, colors, places, 2), Ok);
    ASSERT_EQ(GetParam().linear(brush_, 1, 1), Ok);
    INT count = -1;
    EXPECT_EQ(GetParam().presetCount(brush_, &count), Ok);
    EXPECT_EQ(count, 0);
    ExpectShares([](double place) { return place; });
}

TEST_P(GdiplusBlend, RefusesBadPresets) {
    const ARGB colors[] = {0, 0};
    const REAL places[] = {0, 0.5f}, whole[] = {0, 1};
    EXPECT_EQ(GetParam().setPreset(brush_, colors, places, 2), InvalidParameter);
    EXPECT_EQ(GetParam().setPreset(brush_, colors, whole, 1), InvalidParameter);
    EXPECT_EQ(GetParam().setPreset(brush_, nullptr, whole, 2), InvalidParameter);
    EXPECT_EQ(GetParam().presetCount(brush_, nullptr), InvalidParameter);
}

TEST_P(GdiplusBlend, TriangleRisesToItsFocusAndFalls) {
    ASSERT_EQ(GetParam().linear(brush_, 0.25f, 0.8f), Ok);
    EXPECT_EQ(Count(), 3);
    ExpectShares([](double p) { return 0.8 * (p < 0.25 ? p * 4 : (1 - p) / 0.75); }, 3.5);
    ASSERT_EQ(GetParam().linear(brush_, 0, 1), Ok);
    EXPECT_EQ(Count(), 2);
    ExpectShares([](double p) { return 1 - p; });
    EXPECT_EQ(GetParam().linear(brush_, 1.5f, 1), InvalidParameter);
    EXPECT_EQ(GetParam().linear(brush_, 0.5f, -1), InvalidParameter);
}

TEST_P(GdiplusBlend, BellRisesSmoothlyToItsFocusAndFalls) {
    ASSERT_EQ(GetParam().sigma(brush_, 0.5f, 1), Ok);
    EXPECT_EQ(Count(), 511);
    const std::vector<uint32_t> shown = Colors();
    EXPECT_LT(shown[0] & 255, 3u);
    EXPECT_GT(shown[49] & 255, 252u);
    for (size_t i = 1; i < 50; ++i) {
        EXPECT_GE(shown[i] & 255, shown[i - 1] & 255) << i;
        EXPECT_NEAR(shown[i] & 255, shown[99 - i] & 255, 4) << i;
    }
    EXPECT_NEAR(shown[24] & 255, 125, 8);  // half-way up
    ASSERT_EQ(GetParam().sigma(brush_, 0, 1), Ok);
    EXPECT_EQ(Count(), 256);
    ASSERT_EQ(GetParam().sigma(brush_, 1, 0.5f), Ok);
    EXPECT_EQ(Count(), 256);
    EXPECT_NEAR(Colors()[99] & 255, 127, 2);
    EXPECT_EQ(GetParam().sigma(brush_, -0.1f, 1), InvalidParameter);
    EXPECT_EQ(GetParam().sigma(brush_, 0.5f, 2), InvalidParameter);
}

TEST_P(GdiplusBlend, GammaCorrectionMixesLight) {
    BOOL on = 5;
    EXPECT_EQ(GetParam().getGamma(brush_, &on), Ok);
    EXPECT_EQ(on, 0);
    ASSERT_EQ(GetParam().setGamma(brush_, 1), Ok);
    EXPECT_EQ(GetParam().getGamma(brush_, &on), Ok);
    EXPECT_NE(on, 0);
    ExpectShares([](double place) { return std::pow(place, 1 / 2.2); });
    EXPECT_EQ(GetParam().setGamma(nullptr, 1), InvalidParameter);
    EXPECT_EQ(GetParam().getGamma(brush_, nullptr), InvalidParameter);
}

INSTANTIATE_TEST_SUITE_P(Kinds, GdiplusBlend, testing::ValuesIn(kKinds),
                         [](const auto& info) { return info.param.name; });

}  // namespace
}  // namespace vxgui::gdiplus
