#include "tests/platform/gdiplus_graphics/GraphicsFixture.h"

namespace vxgui::gdiplus {
namespace {

using GdiplusModes = test::GraphicsFixture;

template <class Mode>
using Setter = GpStatus (*)(GpGraphics*, Mode);
template <class Mode>
using Getter = GpStatus (*)(GpGraphics*, Mode*);

/// `stored[i]` is what comes back of mode `i`; the last of them is the largest mode there is.
template <class Mode>
void ExpectModes(GpGraphics* graphics, Setter<Mode> set, Getter<Mode> get, Mode initially,
                 std::vector<int> stored) {
    Mode mode{};
    EXPECT_EQ(get(graphics, &mode), Ok);
    EXPECT_EQ(mode, initially);
    for (size_t i = 0; i < stored.size(); ++i) {
        EXPECT_EQ(set(graphics, static_cast<Mode>(i)), Ok);
        EXPECT_EQ(get(graphics, &mode), Ok);
        EXPECT_EQ(static_cast<int>(mode), stored[i]);
    }
    EXPECT_EQ(set(graphics, static_cast<Mode>(-1)), InvalidParameter);
    EXPECT_EQ(set(graphics, static_cast<Mode>(stored.size())), InvalidParameter);
    EXPECT_EQ(set(nullptr, Mode{}), InvalidParameter);
    EXPECT_EQ(get(nullptr, &mode), InvalidParameter);
    EXPECT_EQ(get(graphics, nullptr), InvalidParameter);
    EXPECT_EQ(get(graphics, &mode), Ok);
    EXPECT_EQ(static_cast<int>(mode), stored.back());
}

TEST_F(GdiplusModes, OfCompositingAreKept) {
    ExpectModes(onBitmap_, GdipSetCompositingMode, GdipGetCompositingMode,
                CompositingModeSourceOver, {0, 1});
    ExpectModes(onBitmap_, GdipSetCompositingQuality, GdipGetCompositingQuality,
                CompositingQualityDefault, {0, 1, 2, 3, 4});
}

TEST_F(GdiplusModes, ThatNameAQualityAreKeptAsWhatTheyStandFor) {
    ExpectModes(onBitmap_, GdipSetSmoothingMode, GdipGetSmoothingMode, SmoothingModeNone,
                {3, 3, 4, 3, 4, 5});
    ExpectModes(onBitmap_, GdipSetInterpolationMode, GdipGetInterpolationMode,
                InterpolationModeBilinear, {3, 3, 7, 3, 4, 5, 6, 7});
}

TEST_F(GdiplusModes, OfPixelOffsetAreKept) {
    ExpectModes(onBitmap_, GdipSetPixelOffsetMode, GdipGetPixelOffsetMode, PixelOffsetModeDefault,
                {0, 1, 2, 3, 4});
}

TEST_F(GdiplusModes, OfTextAreKept) {
    ExpectModes(onBitmap_, GdipSetTextRenderingHint, GdipGetTextRenderingHint,
                TextRenderingHintSystemDefault, {0, 1, 2, 3, 4, 5});
    ExpectModes(onBitmap_, GdipSetTextContrast, GdipGetTextContrast, UINT{4},
                {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
}

TEST_F(GdiplusModes, IncludeTheRenderingOrigin) {
    INT x = 7, y = 7;
    ASSERT_EQ(GdipGetRenderingOrigin(onBitmap_, &x, &y), Ok);
    EXPECT_EQ(x, 0);
    EXPECT_EQ(y, 0);
    ASSERT_EQ(GdipSetRenderingOrigin(onBitmap_, 3, -4), Ok);
    ASSERT_EQ(GdipGetRenderingOrigin(onBitmap_, &x, &y), Ok);
    EXPECT_EQ(x, 3);
    EXPECT_EQ(y, -4);
    EXPECT_EQ(GdipGetRenderingOrigin(onBitmap_, nullptr, &y), InvalidParameter);
    EXPECT_EQ(GdipSetRenderingOrigin(nullptr, 0, 0), InvalidParameter);
}

TEST_F(GdiplusModes, CopyTheSourceInsteadOfBlending) {
    ASSERT_EQ(GdipGraphicsClear(onBitmap_, kBlue), Ok);
    ASSERT_EQ(GdipSetCompositingMode(onBitmap_, CompositingModeSourceCopy), Ok);
    ASSERT_EQ(GdipFillRectangleI(onBitmap_, Solid(0x80FF0000), 1, 1, 3, 3), Ok);
    ASSERT_EQ(GdipFillRectangleI(onBitmap_, Solid(0), 5, 1, 3, 3), Ok);
    test::TestPicture expected = Box(1, 1, 4, 4, 0x80FF0000, kBlue);
    for (int y = 1; y < 4; ++y) {
        for (int x = 5; x < 8; ++x) expected.At(x, y) = 0;
    }
    ExpectSame(OnBitmap(), expected);
}

TEST_F(GdiplusModes, SmoothTheEdgesThatLieWithinPixels) {
    ASSERT_EQ(GdipSetSmoothingMode(onContext_, SmoothingModeAntiAlias), Ok);
    ASSERT_EQ(GdipSetPixelOffsetMode(onContext_, PixelOffsetModeHalf), Ok);
    ASSERT_EQ(GdipFillRectangle(onContext_, Solid(0xFFFFFFFF), 2.5f, 1, 3, 2), Ok);
    const test::TestPicture picture = OnContext();
    EXPECT_NEAR(picture.At(2, 1) >> 24, 128, 2);
    EXPECT_EQ(picture.At(3, 1), 0xFFFFFFFFu);
    EXPECT_NEAR(picture.At(5, 2) >> 24, 128, 2);
    EXPECT_EQ(picture.At(6, 1), 0u);
}

TEST_F(GdiplusModes, FillWholePixelsExactlyUnderAntialiasing) {
    ASSERT_EQ(GdipSetSmoothingMode(onContext_, SmoothingModeAntiAlias), Ok);
    ASSERT_EQ(GdipFillRectangleI(onContext_, Solid(kRed), 2, 1, 3, 2), Ok);
    ExpectSame(OnContext(), Box(2, 1, 5, 3, kRed));
}

}  // namespace
}  // namespace vxgui::gdiplus
