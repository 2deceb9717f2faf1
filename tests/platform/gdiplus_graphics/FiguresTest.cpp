#include <algorithm>

#include "tests/platform/gdiplus_graphics/GraphicsFixture.h"

namespace vxgui::gdiplus {
namespace {

/// Each figure is drawn by its own call and as a path; the pictures are the same.
class GdiplusFigures : public test::GraphicsFixture {
protected:
    GdiplusFigures() {
        GdipCreatePen1(kRed, 1, UnitWorld, &pen_);
        GdipCreatePath(FillModeAlternate, &path_);
        GdipSetSmoothingMode(onBitmap_, SmoothingModeAntiAlias);
    }
    ~GdiplusFigures() override {
        GdipDeletePen(pen_);
        GdipDeletePath(path_);
    }

    test::TestPicture Taken() {
        test::TestPicture picture = OnBitmap();
        GdipGraphicsClear(onBitmap_, 0);
        return picture;
    }
    void ExpectStroked(GpStatus status) {
        EXPECT_EQ(status, Ok);
        const test::TestPicture drawn = Taken();
        EXPECT_EQ(GdipDrawPath(onBitmap_, pen_, path_), Ok);
        ExpectSame(drawn, Taken());
        EXPECT_NE(std::count(drawn.pixels.begin(), drawn.pixels.end(), 0u),
                  static_cast<ptrdiff_t>(drawn.pixels.size()));
    }
    void ExpectFilled(GpStatus status) {
        EXPECT_EQ(status, Ok);
        const test::TestPicture drawn = Taken();
        EXPECT_EQ(GdipFillPath(onBitmap_, brush_, path_), Ok);
        ExpectSame(drawn, Taken());
        EXPECT_NE(std::count(drawn.pixels.begin(), drawn.pixels.end(), kBlue), 0);
    }

    GpPen* pen_ = nullptr;
    GpPath* path_ = nullptr;
    GpBrush* const brush_ = Solid(kBlue);
};

TEST_F(GdiplusFigures, IncludeEllipses) {
    GdipAddPathEllipse(path_, 1, 2, 8, 6);
    ExpectStroked(GdipDrawEllipse(onBitmap_, pen_, 1, 2, 8, 6));
    ExpectStroked(GdipDrawEllipseI(onBitmap_, pen_, 1, 2, 8, 6));
    ExpectFilled(GdipFillEllipse(onBitmap_, brush_, 1, 2, 8, 6));
    ExpectFilled(GdipFillEllipseI(onBitmap_, brush_, 1, 2, 8, 6));
    EXPECT_EQ(GdipDrawEllipse(onBitmap_, nullptr, 1, 2, 8, 6), InvalidParameter);
    EXPECT_EQ(GdipDrawEllipseI(nullptr, pen_, 1, 2, 8, 6), InvalidParameter);
    EXPECT_EQ(GdipFillEllipse(onBitmap_, nullptr, 1, 2, 8, 6), InvalidParameter);
    EXPECT_EQ(GdipFillEllipseI(nullptr, brush_, 1, 2, 8, 6), InvalidParameter);
}

TEST_F(GdiplusFigures, IncludeArcs) {
    GdipAddPathArc(path_, 1, 1, 9, 7, 20, 200);
    ExpectStroked(GdipDrawArc(onBitmap_, pen_, 1, 1, 9, 7, 20, 200));
    ExpectStroked(GdipDrawArcI(onBitmap_, pen_, 1, 1, 9, 7, 20, 200));
    EXPECT_EQ(GdipDrawArc(nullptr, pen_, 1, 1, 9, 7, 20, 200), InvalidParameter);
    EXPECT_EQ(GdipDrawArcI(onBitmap_, nullptr, 1, 1, 9, 7, 20, 200), InvalidParameter);
}

TEST_F(GdiplusFigures, IncludePies) {
    GdipAddPathPie(path_, 1, 1, 9, 7, 20, 200);
    ExpectStroked(GdipDrawPie(onBitmap_, pen_, 1, 1, 9, 7, 20, 200));
    ExpectStroked(GdipDrawPieI(onBitmap_, pen_, 1, 1, 9, 7, 20, 200));
    ExpectFilled(GdipFillPie(onBitmap_, brush_, 1, 1, 9, 7, 20, 200));
    ExpectFilled(GdipFillPieI(onBitmap_, brush_, 1, 1, 9, 7, 20, 200));
    EXPECT_EQ(GdipDrawPie(onBitmap_, nullptr, 1, 1, 9, 7, 20, 200), InvalidParameter);
    EXPECT_EQ(GdipDrawPieI(nullptr, pen_, 1, 1, 9, 7, 20, 200), InvalidParameter);
    EXPECT_EQ(GdipFillPie(nullptr, brush_, 1, 1, 9, 7, 20, 200), InvalidParameter);
    EXPECT_EQ(GdipFillPieI(onBitmap_, nullptr, 1, 1, 9, 7, 20, 200), InvalidParameter);
}

TEST_F(GdiplusFigures, IncludePolygons) {
    const GpPointF points[] = {{1, 1}, {10, 3}, {6, 8}};
    const GpPoint pointsI[] = {{1, 1}, {10, 3}, {6, 8}};
    GdipAddPathPolygon(path_, points, 3);
    ExpectStroked(GdipDrawPolygon(onBitmap_, pen_, points, 3));
    ExpectStroked(GdipDrawPolygonI(onBitmap_, pen_, pointsI, 3));
    ExpectFilled(GdipFillPolygon(onBitmap_, brush_, points, 3, FillModeAlternate));
    ExpectFilled(GdipFillPolygonI(onBitmap_, brush_, pointsI, 3, FillModeWinding));
    EXPECT_EQ(GdipDrawPolygon(onBitmap_, pen_, points, 1), InvalidParameter);
    EXPECT_EQ(GdipDrawPolygonI(onBitmap_, pen_, nullptr, 3), InvalidParameter);
    EXPECT_EQ(GdipFillPolygon(onBitmap_, brush_, points, 0, FillModeAlternate), InvalidParameter);
    EXPECT_EQ(GdipFillPolygonI(onBitmap_, brush_, pointsI, 3, static_cast<FillMode>(2)),
              InvalidParameter);
}

TEST_F(GdiplusFigures, IncludeBezierCurves) {
    const GpPointF points[] = {{1, 8}, {2, 1}, {6, 9}, {10, 2}};
    const GpPoint pointsI[] = {{1, 8}, {2, 1}, {6, 9}, {10, 2}};
    GdipAddPathBeziers(path_, points, 4);
    ExpectStroked(GdipDrawBezier(onBitmap_, pen_, 1, 8, 2, 1, 6, 9, 10, 2));
    ExpectStroked(GdipDrawBezierI(onBitmap_, pen_, 1, 8, 2, 1, 6, 9, 10, 2));
    ExpectStroked(GdipDrawBeziers(onBitmap_, pen_, points, 4));
    ExpectStroked(GdipDrawBeziersI(onBitmap_, pen_, pointsI, 4));
    EXPECT_EQ(GdipDrawBezier(nullptr, pen_, 0, 0, 0, 0, 0, 0, 0, 0), InvalidParameter);
    EXPECT_EQ(GdipDrawBezierI(onBitmap_, nullptr, 0, 0, 0, 0, 0, 0, 0, 0), InvalidParameter);
    EXPECT_EQ(GdipDrawBeziers(onBitmap_, pen_, points, 3), InvalidParameter);
    EXPECT_EQ(GdipDrawBeziersI(onBitmap_, pen_, nullptr, 4), InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
