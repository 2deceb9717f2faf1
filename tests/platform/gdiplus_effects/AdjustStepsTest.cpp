#include <cmath>

#include "tests/platform/gdiplus_effects/AttributesFixture.h"

namespace vxgui::gdiplus {
namespace {

using GdiplusAdjustSteps = test::AttributesFixture;
constexpr ColorAdjustType kBitmap = ColorAdjustTypeBitmap;

TEST_F(GdiplusAdjustSteps, ThresholdMakesChannelsFullOrNothing) {
    ASSERT_EQ(GdipSetImageAttributesThreshold(attributes_, kBitmap, 1, 0.7f), Ok);
    EXPECT_EQ(Adjusted(0x40E632DC), 0x40FF00FFu);
    for (uint32_t i = 0; i < 256; ++i) {
        const uint32_t expected = static_cast<REAL>(i) > 0.7f * 255 ? 0xFF0000FFu : 0xFF000000u;
        EXPECT_EQ(Adjusted(0xFF000000 | i), expected) << i;
    }
    ASSERT_EQ(GdipSetImageAttributesThreshold(attributes_, kBitmap, 0, 0), Ok);
    EXPECT_EQ(Adjusted(0x40E632DC), 0x40E632DCu);
    EXPECT_EQ(GdipSetImageAttributesThreshold(nullptr, kBitmap, 1, 0.5f), InvalidParameter);
}

TEST_F(GdiplusAdjustSteps, GammaRaisesEveryChannelAndLeavesAlpha) {
    ASSERT_EQ(GdipSetImageAttributesGamma(attributes_, kBitmap, 1, 2.2f), Ok);
    for (uint32_t i = 0; i < 256; ++i) {
        const auto raised = static_cast<uint32_t>(
            std::floor(255 * std::pow(i / 255.0, static_cast<double>(2.2f)) + 0.5));
        EXPECT_EQ(Adjusted(0x7F000000 | i << 8), 0x7F000000u | raised << 8) << i;
    }
    EXPECT_EQ(GdipSetImageAttributesGamma(attributes_, kBitmap, 1, 0), InvalidParameter);
    ASSERT_EQ(GdipSetImageAttributesGamma(attributes_, kBitmap, 0, 0), Ok);
    EXPECT_EQ(Adjusted(0xFF808080), 0xFF808080u);
}

TEST_F(GdiplusAdjustSteps, NoOpTurnsTheOthersOffUntilItIsCleared) {
    GdipSetImageAttributesThreshold(attributes_, kBitmap, 1, 0.5f);
    ASSERT_EQ(GdipSetImageAttributesNoOp(attributes_, kBitmap, 1), Ok);
    EXPECT_EQ(Adjusted(0xFF818181), 0xFF818181u);
    ASSERT_EQ(GdipSetImageAttributesNoOp(attributes_, kBitmap, 0), Ok);
    EXPECT_EQ(Adjusted(0xFF818181), 0xFFFFFFFFu);
    EXPECT_EQ(GdipSetImageAttributesNoOp(attributes_, ColorAdjustTypeAny, 1), InvalidParameter);
}

TEST_F(GdiplusAdjustSteps, KeysClearWhatLiesBetweenThem) {
    ASSERT_EQ(GdipSetImageAttributesColorKeys(attributes_, kBitmap, 1, 0xFF102030, 0xFF405060), Ok);
    EXPECT_EQ(Adjusted(0xFF102030), 0u);
    EXPECT_EQ(Adjusted(0xFF405060), 0u);
    EXPECT_EQ(Adjusted(0x80203040), 0u);
    for (uint32_t outside : {0xFF0F2030u, 0xFF415060u, 0xFF101F30u, 0xFF10202Fu, 0xFF405061u}) {
        EXPECT_EQ(Adjusted(outside), outside);
    }
    EXPECT_EQ(GdipSetImageAttributesColorKeys(attributes_, kBitmap, 1, 0xFF000001, 0xFF00FF00),
              InvalidParameter);
    ASSERT_EQ(GdipSetImageAttributesColorKeys(attributes_, kBitmap, 0, 0, 0), Ok);
    EXPECT_EQ(Adjusted(0xFF102030), 0xFF102030u);
}

TEST_F(GdiplusAdjustSteps, RemapReplacesExactColours) {
    const ColorMap map[] = {{0xFFFF0000, 0xFF00FF00}, {0x80000000, 0}, {0xFFFF0000, 1}};
    ASSERT_EQ(GdipSetImageAttributesRemapTable(attributes_, kBitmap, 1, 3, map), Ok);
    EXPECT_EQ(Adjusted(Colors{0xFFFF0000, 0xFEFF0000, 0x80000000}),
              (Colors{0xFF00FF00, 0xFEFF0000, 0}));
    EXPECT_EQ(GdipSetImageAttributesRemapTable(attributes_, kBitmap, 1, 0, map), InvalidParameter);
    EXPECT_EQ(GdipSetImageAttributesRemapTable(attributes_, kBitmap, 1, 1, nullptr),
              InvalidParameter);
    ASSERT_EQ(GdipSetImageAttributesRemapTable(attributes_, kBitmap, 0, 0, nullptr), Ok);
    EXPECT_EQ(Adjusted(0xFFFF0000), 0xFFFF0000u);
}

TEST_F(GdiplusAdjustSteps, OutputChannelShowsAPlateAsItPrints) {
    // Ink of 0xFFC08040: black 63, cyan 0, magenta 64, yellow 128.
    constexpr uint32_t kPlates[] = {0xFFFFFFFF, 0xFFBFBFBF, 0xFF7F7F7F, 0xFFC0C0C0};
    for (int channel = 0; channel < 4; ++channel) {
        ASSERT_EQ(GdipSetImageAttributesOutputChannel(attributes_, kBitmap, 1,
                                                      static_cast<ColorChannelFlags>(channel)),
                  Ok);
        EXPECT_EQ(Adjusted(0xFFC08040), kPlates[channel]) << channel;
    }
    EXPECT_EQ(GdipSetImageAttributesOutputChannel(attributes_, kBitmap, 1, ColorChannelFlagsLast),
              InvalidParameter);
    ASSERT_EQ(GdipSetImageAttributesOutputChannel(attributes_, kBitmap, 0, ColorChannelFlagsC), Ok);
    EXPECT_EQ(Adjusted(0xFFC08040), 0xFFC08040u);
}

TEST_F(GdiplusAdjustSteps, AColorProfileChangesNoPixelAndNeedsAName) {
    EXPECT_EQ(GdipSetImageAttributesOutputChannelColorProfile(attributes_, kBitmap, 1, u"p.icm"),
              Ok);
    EXPECT_EQ(Adjusted(0xFFC08040), 0xFFC08040u);
    EXPECT_EQ(GdipSetImageAttributesOutputChannelColorProfile(attributes_, kBitmap, 1, nullptr),
              InvalidParameter);
    EXPECT_EQ(GdipSetImageAttributesOutputChannelColorProfile(attributes_, kBitmap, 0, nullptr),
              Ok);
}

TEST_F(GdiplusAdjustSteps, StepsFollowTheirOrder) {
    // The key is judged before the remap, the matrix works on its result, then gamma, threshold.
    GdipSetImageAttributesColorKeys(attributes_, kBitmap, 1, 0xFF0000FF, 0xFF0000FF);
    const ColorMap map[] = {{0xFF00FF00, 0xFF0000FF}, {0xFFFF0000, 0xFF404040}};
    GdipSetImageAttributesRemapTable(attributes_, kBitmap, 1, 2, map);
    ColorMatrix twice{};
    for (int i = 0; i < 3; ++i) twice.m[i][i] = 2;
    twice.m[3][3] = 1;
    GdipSetImageAttributesColorMatrix(attributes_, kBitmap, 1, &twice, nullptr,
                                      ColorMatrixFlagsDefault);
    GdipSetImageAttributesGamma(attributes_, kBitmap, 1, 2);
    EXPECT_EQ(Adjusted(0xFF0000FF), 0u);
    EXPECT_EQ(Adjusted(0xFF00FF00), 0xFF0000FFu);
    EXPECT_EQ(Adjusted(0xFFFF0000), 0xFF404040u);  // 0x40 doubled is 0x80, whose square is 0x40
    GdipSetImageAttributesThreshold(attributes_, kBitmap, 1, 0.3f);
    EXPECT_EQ(Adjusted(0xFFFF0000), 0xFF000000u);
    GdipSetImageAttributesOutputChannel(attributes_, kBitmap, 1, ColorChannelFlagsK);
    EXPECT_EQ(Adjusted(0xFFFF0000), 0xFF000000u);
    EXPECT_EQ(Adjusted(0xFFFFFFFF), 0xFFFFFFFFu);
}

}  // namespace
}  // namespace vxgui::gdiplus
