#include "tests/platform/gdiplus_graphics/GraphicsFixture.h"
#include "vxgui/platform/gdi_shapes.h"

namespace vxgui::gdiplus {
namespace {

class GdiplusClip : public test::GraphicsFixture {
protected:
    // Fills everything; what shows is the clip.
    test::TestPicture Shown() {
        GdipFillRectangleI(onBitmap_, Solid(kRed), -50, -50, 200, 200);
        return OnBitmap();
    }
    GpRectF Bounds() {
        GpRectF bounds{};
        EXPECT_EQ(GdipGetClipBounds(onBitmap_, &bounds), Ok);
        return bounds;
    }
};

void ExpectRect(const GpRectF& r, REAL x, REAL y, REAL width, REAL height) {
    EXPECT_FLOAT_EQ(r.X, x);
    EXPECT_FLOAT_EQ(r.Y, y);
    EXPECT_FLOAT_EQ(r.Width, width);
    EXPECT_FLOAT_EQ(r.Height, height);
}

TEST_F(GdiplusClip, CombinesRectanglesInEveryWay) {
    // One row of pixels from two clips: [1, 5) and then [3, 8).
    struct {
        CombineMode mode;
        const char* row;
    } const cases[] = {
        {CombineModeReplace, "...#####...."}, {CombineModeIntersect, "...##......."},
        {CombineModeUnion, ".#######...."},   {CombineModeXor, ".##..###...."},
        {CombineModeExclude, ".##........."}, {CombineModeComplement, ".....###...."},
    };
    for (const auto& c : cases) {
        GdipGraphicsClear(onBitmap_, 0);
        GdipSetClipRectI(onBitmap_, 1, 0, 4, 10, CombineModeReplace);
        ASSERT_EQ(GdipSetClipRectI(onBitmap_, 3, 0, 5, 10, c.mode), Ok);
        const test::TestPicture shown = Shown();
        std::string row;
        for (int x = 0; x < kWidth; ++x) row += shown.At(x, 4) == kRed ? '#' : '.';
        EXPECT_EQ(row, c.row);
        GdipResetClip(onBitmap_);
    }
}

TEST_F(GdiplusClip, CombinesWithWhatHasNoBounds) {
    struct {
        CombineMode mode;
        bool inside, outside;
    } const cases[] = {{CombineModeIntersect, true, false},
                       {CombineModeUnion, true, true},
                       {CombineModeXor, false, true},
                       {CombineModeExclude, false, true},
                       {CombineModeComplement, false, false}};
    for (const auto& c : cases) {
        GdipGraphicsClear(onBitmap_, 0);
        ASSERT_EQ(GdipSetClipRect(onBitmap_, 2, 2, 4, 4, c.mode), Ok);
        const test::TestPicture shown = Shown();
        EXPECT_EQ(shown.At(3, 3) == kRed, c.inside);
        EXPECT_EQ(shown.At(8, 8) == kRed, c.outside);
        GdipResetClip(onBitmap_);
    }
    EXPECT_EQ(GdipSetClipRect(onBitmap_, 0, 0, 1, 1, static_cast<CombineMode>(6)),
              InvalidParameter);
    EXPECT_EQ(GdipSetClipRectI(nullptr, 0, 0, 1, 1, CombineModeReplace), InvalidParameter);
}

TEST_F(GdiplusClip, StaysWhereItIsWhenTheWorldMoves) {
    GdipTranslateWorldTransform(onBitmap_, 2, 3, MatrixOrderPrepend);
    GdipSetClipRectI(onBitmap_, 0, 0, 4, 4, CombineModeReplace);
    GdipTranslateWorldTransform(onBitmap_, 3, 0, MatrixOrderPrepend);
    ExpectRect(Bounds(), -3, 0, 4, 4);
    GdipResetWorldTransform(onBitmap_);
    ExpectRect(Bounds(), 2, 3, 4, 4);
    ExpectSame(Shown(), Box(2, 3, 6, 7, kRed));
}

TEST_F(GdiplusClip, KeepsTheEdgesOfARectangleWithinPixels) {
    GdipSetClipRect(onBitmap_, 1.25f, 2.75f, 4.5f, 3, CombineModeReplace);
    ExpectRect(Bounds(), 1.25f, 2.75f, 4.5f, 3);
    GpRect rounded{};
    ASSERT_EQ(GdipGetClipBoundsI(onBitmap_, &rounded), Ok);
    EXPECT_EQ(rounded.X, 1);
    EXPECT_EQ(rounded.Y, 3);
    EXPECT_EQ(rounded.Width, 5);
    EXPECT_EQ(rounded.Height, 3);
    ExpectSame(Shown(), Box(2, 3, 6, 6, kRed));
    EXPECT_EQ(GdipGetClipBounds(onBitmap_, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetClipBoundsI(nullptr, &rounded), InvalidParameter);
}

TEST_F(GdiplusClip, HasNoBoundsWithoutAShape) {
    GdipScaleWorldTransform(onBitmap_, 2, 2, MatrixOrderPrepend);
    ExpectRect(Bounds(), -4194304, -4194304, 8388608, 8388608);
    GpRectF visible{};
    ASSERT_EQ(GdipGetVisibleClipBounds(onBitmap_, &visible), Ok);
    ExpectRect(visible, 0, 0, kWidth / 2, kHeight / 2);
    GdipSetClipRectI(onBitmap_, 1, 1, 100, 100, CombineModeReplace);
    GpRect rounded{};
    ASSERT_EQ(GdipGetVisibleClipBoundsI(onBitmap_, &rounded), Ok);
    EXPECT_EQ(rounded.X, 1);
    EXPECT_EQ(rounded.Width, 5);
    EXPECT_EQ(GdipGetVisibleClipBounds(onBitmap_, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetVisibleClipBoundsI(onBitmap_, nullptr), InvalidParameter);
}

TEST_F(GdiplusClip, FollowsAPath) {
    GpPath* path = Nested();
    ASSERT_EQ(GdipSetClipPath(onBitmap_, path, CombineModeReplace), Ok);
    test::TestPicture expected = Box(1, 1, 9, 9, kRed);
    for (int y = 3; y < 7; ++y) {
        for (int x = 3; x < 7; ++x) expected.At(x, y) = 0;
    }
    ExpectSame(Shown(), expected);
    ExpectRect(Bounds(), 1, 1, 8, 8);
    EXPECT_EQ(GdipSetClipPath(onBitmap_, nullptr, CombineModeReplace), InvalidParameter);
}

TEST_F(GdiplusClip, TurnsRectanglesWithTheWorld) {
    GdipTranslateWorldTransform(onBitmap_, 6, 0, MatrixOrderPrepend);
    GdipRotateWorldTransform(onBitmap_, 45, MatrixOrderPrepend);
    GdipSetClipRectI(onBitmap_, 0, 0, 6, 6, CombineModeReplace);
    const test::TestPicture shown = Shown();
    EXPECT_EQ(shown.At(6, 4), kRed);
    EXPECT_EQ(shown.At(1, 1), 0u);
    EXPECT_EQ(shown.At(11, 8), 0u);
}

TEST_F(GdiplusClip, IsTakenFromGraphicsAndRegions) {
    GdipSetClipRectI(onContext_, 2, 2, 3, 3, CombineModeReplace);
    ASSERT_EQ(GdipSetClipGraphics(onBitmap_, onContext_, CombineModeReplace), Ok);
    ExpectRect(Bounds(), 2, 2, 3, 3);
    EXPECT_EQ(GdipSetClipGraphics(onBitmap_, nullptr, CombineModeReplace), InvalidParameter);
    const gdi::HRGN region = gdi::CreateRectRgn(4, 1, 6, 9);
    ASSERT_EQ(GdipSetClipHrgn(onBitmap_, region, CombineModeIntersect), Ok);
    ExpectRect(Bounds(), 4, 2, 1, 3);
    gdi::DeleteObject(region);
    EXPECT_EQ(GdipSetClipHrgn(onBitmap_, region, CombineModeReplace), InvalidParameter);
}

TEST_F(GdiplusClip, MovesByTheWorldsUnits) {
    GdipSetClipRectI(onBitmap_, 1, 1, 3, 3, CombineModeReplace);
    GdipScaleWorldTransform(onBitmap_, 2, 1, MatrixOrderPrepend);
    ASSERT_EQ(GdipTranslateClip(onBitmap_, 1, 2), Ok);
    ASSERT_EQ(GdipTranslateClipI(onBitmap_, 1, 0), Ok);
    ExpectSame(Shown(), Box(5, 3, 8, 6, kRed));
    EXPECT_EQ(GdipTranslateClip(nullptr, 1, 1), InvalidParameter);
    EXPECT_EQ(GdipTranslateClipI(nullptr, 1, 1), InvalidParameter);
}

TEST_F(GdiplusClip, TellsWhatShows) {
    BOOL result = 7;
    EXPECT_EQ(GdipIsClipEmpty(onBitmap_, &result), Ok);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(GdipIsVisiblePoint(onBitmap_, 11.5f, 9.5f, &result), Ok);
    EXPECT_EQ(result, 1);
    EXPECT_EQ(GdipIsVisiblePointI(onBitmap_, 12, 9, &result), Ok);
    EXPECT_EQ(result, 0);
    GdipSetClipRectI(onBitmap_, 2, 2, 3, 3, CombineModeReplace);
    EXPECT_EQ(GdipIsVisibleRect(onBitmap_, 0, 0, 2, 2, &result), Ok);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(GdipIsVisibleRectI(onBitmap_, 0, 0, 3, 3, &result), Ok);
    EXPECT_EQ(result, 1);
    GdipSetClipRectI(onBitmap_, 20, 20, 3, 3, CombineModeReplace);
    EXPECT_EQ(GdipIsVisibleClipEmpty(onBitmap_, &result), Ok);
    EXPECT_EQ(result, 1);
    EXPECT_EQ(GdipIsClipEmpty(onBitmap_, &result), Ok);
    EXPECT_EQ(result, 0);
    GdipSetClipRectI(onBitmap_, 0, 0, 3, 3, CombineModeIntersect);
    EXPECT_EQ(GdipIsClipEmpty(onBitmap_, &result), Ok);
    EXPECT_EQ(result, 1);
    EXPECT_EQ(GdipIsClipEmpty(onBitmap_, nullptr), InvalidParameter);
    EXPECT_EQ(GdipIsVisibleClipEmpty(nullptr, &result), InvalidParameter);
    EXPECT_EQ(GdipIsVisiblePoint(onBitmap_, 0, 0, nullptr), InvalidParameter);
    EXPECT_EQ(GdipIsVisiblePointI(nullptr, 0, 0, &result), InvalidParameter);
    EXPECT_EQ(GdipIsVisibleRect(nullptr, 0, 0, 1, 1, &result), InvalidParameter);
    EXPECT_EQ(GdipIsVisibleRectI(onBitmap_, 0, 0, 1, 1, nullptr), InvalidParameter);
}

TEST_F(GdiplusClip, BoundsClearing) {
    GdipSetClipRectI(onBitmap_, 2, 2, 3, 3, CombineModeReplace);
    GdipGraphicsClear(onBitmap_, kGreen);
    ExpectSame(OnBitmap(), Box(2, 2, 5, 5, kGreen));
    EXPECT_EQ(GdipResetClip(nullptr), InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
