#include "tests/platform/gdiplus_graphics/GraphicsFixture.h"

namespace vxgui::gdiplus {
namespace {

class GdiplusShapes : public test::GraphicsFixture {
protected:
    GdiplusShapes() { EXPECT_EQ(GdipCreatePen1(kRed, 1, UnitWorld, &pen_), Ok); }
    ~GdiplusShapes() override { GdipDeletePen(pen_); }

    // The frame of one pixel around the box whose corners are drawn, too.
    static test::TestPicture Frame(int left, int top, int right, int bottom) {
        test::TestPicture picture = Box(left, top, right + 1, bottom + 1, kRed);
        for (int y = top + 1; y < bottom; ++y) {
            for (int x = left + 1; x < right; ++x) picture.At(x, y) = 0;
        }
        return picture;
    }
    // Clears what was drawn, after a look at it.
    void ExpectDrawn(const test::TestPicture& expected) {
        ExpectSame(OnContext(), expected);
        GdipGraphicsClear(onContext_, 0);
    }

    GpPen* pen_ = nullptr;
};

TEST_F(GdiplusShapes, DrawLinesThroughTheirPixels) {
    ASSERT_EQ(GdipDrawLine(onContext_, pen_, 2, 3, 8, 3), Ok);
    ExpectDrawn(Box(2, 3, 8, 4, kRed));
    ASSERT_EQ(GdipDrawLineI(onContext_, pen_, 4, 1, 4, 7), Ok);
    ExpectDrawn(Box(4, 1, 5, 7, kRed));
    EXPECT_EQ(GdipDrawLine(onContext_, nullptr, 0, 0, 1, 1), InvalidParameter);
    EXPECT_EQ(GdipDrawLineI(nullptr, pen_, 0, 0, 1, 1), InvalidParameter);
}

TEST_F(GdiplusShapes, DrawCrispLinesUnderAntialiasing) {
    GdipSetSmoothingMode(onContext_, SmoothingModeAntiAlias);
    ASSERT_EQ(GdipDrawRectangleI(onContext_, pen_, 1, 2, 6, 5), Ok);
    ExpectDrawn(Frame(1, 2, 7, 7));
}

TEST_F(GdiplusShapes, ComeInFromFarOutside) {
    ASSERT_EQ(GdipDrawLine(onContext_, pen_, -3e8f, 3, 4e9f, 3), Ok);
    ExpectDrawn(Box(0, 3, kWidth, 4, kRed));
    GdipSetSmoothingMode(onContext_, SmoothingModeAntiAlias);
    ASSERT_EQ(GdipFillRectangle(onContext_, Solid(kRed), -1e9f, 2.5f, 2e9f, 1e9f), Ok);
    EXPECT_EQ(OnContext().At(5, 9), kRed);
    EXPECT_EQ(OnContext().At(5, 2), 0u);
}

TEST_F(GdiplusShapes, DrawLinesOfSeveralPoints) {
    const GpPointF points[] = {{1, 1}, {8, 1}, {8, 6}};
    const GpPoint pointsI[] = {{1, 1}, {8, 1}, {8, 6}};
    test::TestPicture expected = Box(1, 1, 9, 2, kRed);
    for (int y = 2; y < 6; ++y) expected.At(8, y) = kRed;
    ASSERT_EQ(GdipDrawLines(onContext_, pen_, points, 3), Ok);
    ExpectDrawn(expected);
    ASSERT_EQ(GdipDrawLinesI(onContext_, pen_, pointsI, 3), Ok);
    ExpectDrawn(expected);
    EXPECT_EQ(GdipDrawLines(onContext_, pen_, points, 1), InvalidParameter);
    EXPECT_EQ(GdipDrawLinesI(onContext_, pen_, nullptr, 3), InvalidParameter);
}

TEST_F(GdiplusShapes, DrawRectanglesWithTheirFarEdges) {
    ASSERT_EQ(GdipDrawRectangle(onContext_, pen_, 2, 3, 5, 4), Ok);
    ExpectDrawn(Frame(2, 3, 7, 7));
    EXPECT_EQ(GdipDrawRectangle(onContext_, nullptr, 2, 3, 5, 4), InvalidParameter);
    EXPECT_EQ(GdipDrawRectangleI(nullptr, pen_, 2, 3, 5, 4), InvalidParameter);
}

TEST_F(GdiplusShapes, DrawSeveralRectangles) {
    const GpRectF rects[] = {{0, 0, 2, 2}, {5, 5, 3, 3}};
    const GpRect rectsI[] = {{0, 0, 2, 2}, {5, 5, 3, 3}};
    test::TestPicture expected = Frame(0, 0, 2, 2);
    const test::TestPicture second = Frame(5, 5, 8, 8);
    for (size_t i = 0; i < second.pixels.size(); ++i) expected.pixels[i] |= second.pixels[i];
    ASSERT_EQ(GdipDrawRectangles(onContext_, pen_, rects, 2), Ok);
    ExpectDrawn(expected);
    ASSERT_EQ(GdipDrawRectanglesI(onContext_, pen_, rectsI, 2), Ok);
    ExpectDrawn(expected);
    EXPECT_EQ(GdipDrawRectangles(onContext_, pen_, rects, 0), InvalidParameter);
    EXPECT_EQ(GdipDrawRectanglesI(onContext_, pen_, nullptr, 2), InvalidParameter);
}

TEST_F(GdiplusShapes, FillSeveralRectangles) {
    const GpRectF rects[] = {{0, 0, 3, 3}, {2, 2, 3, 3}};
    const GpRect rectsI[] = {{0, 0, 3, 3}, {2, 2, 3, 3}};
    test::TestPicture expected = Box(0, 0, 3, 3, kBlue);
    for (int y = 2; y < 5; ++y) {
        for (int x = 2; x < 5; ++x) expected.At(x, y) = kBlue;
    }
    ASSERT_EQ(GdipFillRectangles(onContext_, Solid(kBlue), rects, 2), Ok);
    ExpectDrawn(expected);
    ASSERT_EQ(GdipFillRectanglesI(onContext_, Solid(kBlue), rectsI, 2), Ok);
    ExpectDrawn(expected);
    EXPECT_EQ(GdipFillRectangles(onContext_, Solid(kBlue), nullptr, 2), InvalidParameter);
    EXPECT_EQ(GdipFillRectanglesI(onContext_, Solid(kBlue), rectsI, 0), InvalidParameter);
}

TEST_F(GdiplusShapes, FillAndDrawPathsByTheirFillMode) {
    GpPath* path = Nested();
    test::TestPicture ring = Box(1, 1, 9, 9, kBlue);
    for (int y = 3; y < 7; ++y) {
        for (int x = 3; x < 7; ++x) ring.At(x, y) = 0;
    }
    ASSERT_EQ(GdipFillPath(onContext_, Solid(kBlue), path), Ok);
    ExpectDrawn(ring);
    GdipSetPathFillMode(path, FillModeWinding);
    ASSERT_EQ(GdipFillPath(onContext_, Solid(kBlue), path), Ok);
    ExpectDrawn(Box(1, 1, 9, 9, kBlue));
    ASSERT_EQ(GdipDrawPath(onContext_, pen_, path), Ok);
    EXPECT_EQ(OnContext().At(9, 9), kRed);
    EXPECT_EQ(OnContext().At(7, 5), kRed);
    EXPECT_EQ(OnContext().At(5, 5), 0u);
    EXPECT_EQ(GdipFillPath(onContext_, Solid(kBlue), nullptr), InvalidParameter);
    EXPECT_EQ(GdipFillPath(onContext_, nullptr, path), InvalidParameter);
    EXPECT_EQ(GdipDrawPath(onContext_, pen_, nullptr), InvalidParameter);
    EXPECT_EQ(GdipDrawPath(nullptr, pen_, path), InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
