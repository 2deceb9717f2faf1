#include "tests/platform/gdiplus_graphics/GraphicsFixture.h"

namespace vxgui::gdiplus {
namespace {

using GdiplusStates = test::GraphicsFixture;

InterpolationMode InterpolationOf(GpGraphics* graphics) {
    InterpolationMode mode{};
    GdipGetInterpolationMode(graphics, &mode);
    return mode;
}

TEST_F(GdiplusStates, NestAndForgetLaterOnes) {
    UINT first = 0, second = 0;
    ASSERT_EQ(GdipSaveGraphics(onBitmap_, &first), Ok);
    GdipSetInterpolationMode(onBitmap_, InterpolationModeNearestNeighbor);
    ASSERT_EQ(GdipSaveGraphics(onBitmap_, &second), Ok);
    GdipSetInterpolationMode(onBitmap_, InterpolationModeBicubic);
    EXPECT_NE(first, 0u);
    EXPECT_NE(first, second);
    ASSERT_EQ(GdipRestoreGraphics(onBitmap_, first), Ok);
    EXPECT_EQ(InterpolationOf(onBitmap_), InterpolationModeBilinear);
    EXPECT_EQ(GdipRestoreGraphics(onBitmap_, second), InvalidParameter);
    EXPECT_EQ(GdipRestoreGraphics(onBitmap_, first), InvalidParameter);
    EXPECT_EQ(GdipSaveGraphics(onBitmap_, nullptr), InvalidParameter);
    EXPECT_EQ(GdipSaveGraphics(nullptr, &first), InvalidParameter);
}

TEST_F(GdiplusStates, KeepWorldPageAndClip) {
    UINT state = 0;
    GdipSetClipRectI(onBitmap_, 0, 0, 6, 6, CombineModeReplace);
    GdipTranslateWorldTransform(onBitmap_, 1, 1, MatrixOrderPrepend);
    GdipSaveGraphics(onBitmap_, &state);
    GdipResetClip(onBitmap_);
    GdipResetWorldTransform(onBitmap_);
    GdipSetPageUnit(onBitmap_, UnitInch);
    ASSERT_EQ(GdipRestoreGraphics(onBitmap_, state), Ok);
    GdipFillRectangleI(onBitmap_, Solid(kRed), 0, 0, 20, 20);
    ExpectSame(OnBitmap(), Box(1, 1, 6, 6, kRed));
}

TEST_F(GdiplusStates, OfContainersStartAFreshWorldOnTopOfTheOldOne) {
    UINT container = 0;
    GdipTranslateWorldTransform(onBitmap_, 2, 1, MatrixOrderPrepend);
    GdipSetInterpolationMode(onBitmap_, InterpolationModeBicubic);
    ASSERT_EQ(GdipBeginContainer2(onBitmap_, &container), Ok);
    EXPECT_EQ(InterpolationOf(onBitmap_), InterpolationModeBicubic);
    GdipScaleWorldTransform(onBitmap_, 2, 2, MatrixOrderPrepend);
    GdipFillRectangleI(onBitmap_, Solid(kRed), 1, 1, 2, 2);
    ExpectSame(OnBitmap(), Box(4, 3, 8, 7, kRed));
    GdipResetWorldTransform(onBitmap_);
    GdipFillRectangleI(onBitmap_, Solid(kBlue), 0, 0, 1, 1);
    EXPECT_EQ(OnBitmap().At(2, 1), kBlue);
    ASSERT_EQ(GdipEndContainer(onBitmap_, container), Ok);
    EXPECT_EQ(GdipEndContainer(onBitmap_, container), InvalidParameter);
    EXPECT_EQ(GdipBeginContainer2(onBitmap_, nullptr), InvalidParameter);
}

TEST_F(GdiplusStates, OfContainersShowARectangleInAnother) {
    UINT container = 0;
    const GpRectF dst{2, 2, 8, 4}, src{10, 10, 4, 4};
    ASSERT_EQ(GdipBeginContainer(onBitmap_, &dst, &src, UnitPixel, &container), Ok);
    GdipFillRectangleI(onBitmap_, Solid(kRed), 11, 11, 2, 1);
    ExpectSame(OnBitmap(), Box(4, 3, 8, 4, kRed));
    ASSERT_EQ(GdipEndContainer(onBitmap_, container), Ok);
    const GpRect dstI{1, 1, 10, 8}, srcI{0, 0, 2, 2};
    ASSERT_EQ(GdipBeginContainerI(onBitmap_, &dstI, &srcI, UnitInch, &container), Ok);
    GdipGraphicsClear(onBitmap_, 0);
    GdipFillRectangleI(onBitmap_, Solid(kRed), 96, 96, 96, 96);
    ExpectSame(OnBitmap(), Box(6, 5, 11, 9, kRed));
    GdipEndContainer(onBitmap_, container);
}

TEST_F(GdiplusStates, OfContainersWantRectanglesAndUnits) {
    UINT container = 0;
    const GpRectF good{0, 0, 1, 1}, flat{0, 0, 0, 1};
    const GpRect goodI{0, 0, 1, 1};
    EXPECT_EQ(GdipBeginContainer(onBitmap_, nullptr, &good, UnitPixel, &container),
              InvalidParameter);
    EXPECT_EQ(GdipBeginContainer(onBitmap_, &good, &flat, UnitPixel, &container), InvalidParameter);
    EXPECT_EQ(GdipBeginContainer(onBitmap_, &good, &good, UnitDisplay, &container),
              InvalidParameter);
    EXPECT_EQ(GdipBeginContainer(onBitmap_, &good, &good, UnitPixel, nullptr), InvalidParameter);
    EXPECT_EQ(GdipBeginContainerI(onBitmap_, &goodI, nullptr, UnitPixel, &container),
              InvalidParameter);
}

TEST_F(GdiplusStates, OfContainersStayWithinTheClipAround) {
    UINT container = 0;
    GdipSetClipRectI(onBitmap_, 1, 1, 5, 5, CombineModeReplace);
    ASSERT_EQ(GdipBeginContainer2(onBitmap_, &container), Ok);
    GpRectF bounds{};
    GdipGetClipBounds(onBitmap_, &bounds);
    EXPECT_EQ(bounds.Width, 8388608);
    GdipSetClipRectI(onBitmap_, 3, 0, 20, 20, CombineModeReplace);
    GdipFillRectangleI(onBitmap_, Solid(kRed), 0, 0, 20, 20);
    ExpectSame(OnBitmap(), Box(3, 1, 6, 6, kRed));
    GdipEndContainer(onBitmap_, container);
}

}  // namespace
}  // namespace vxgui::gdiplus
