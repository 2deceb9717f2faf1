#include "tests/platform/gdiplus_geometry/GeometryTestSupport.h"

namespace vxgui::gdiplus {
namespace {

class PathHits : public GeometryTest {
protected:
    PathHits() { EXPECT_EQ(GdipCreatePath(FillModeAlternate, &path), Ok); }

    bool IsIn(REAL x, REAL y) {
        BOOL result = 7;
        EXPECT_EQ(GdipIsVisiblePathPoint(path, x, y, nullptr, &result), Ok);
        return result == 1;
    }
    bool IsOn(REAL x, REAL y, GpPen* pen) {
        BOOL result = 7;
        EXPECT_EQ(GdipIsOutlineVisiblePathPoint(path, x, y, pen, nullptr, &result), Ok);
        return result == 1;
    }

    OwnedPath path;
};

TEST_F(PathHits, LeftAndUpperEdgesBelongToTheFill) {
    EXPECT_EQ(GdipAddPathRectangle(path, 10, 20, 30, 40), Ok);
    EXPECT_TRUE(IsIn(10, 20));
    EXPECT_TRUE(IsIn(39.9f, 59.9f));
    EXPECT_FALSE(IsIn(40, 30));
    EXPECT_FALSE(IsIn(20, 60));
    EXPECT_FALSE(IsIn(9.9f, 30));
}

TEST_F(PathHits, TheFillModeCounts) {
    EXPECT_EQ(GdipAddPathRectangle(path, 0, 0, 30, 30), Ok);
    EXPECT_EQ(GdipAddPathRectangle(path, 10, 10, 10, 10), Ok);
    EXPECT_FALSE(IsIn(15, 15));
    EXPECT_EQ(GdipSetPathFillMode(path, FillModeWinding), Ok);
    EXPECT_TRUE(IsIn(15, 15));
    EXPECT_TRUE(IsIn(5, 5));
}

TEST_F(PathHits, CurvesCountAndOpenFiguresAreClosed) {
    EXPECT_EQ(GdipAddPathEllipse(path, 0, 0, 100, 100), Ok);
    EXPECT_TRUE(IsIn(15, 15));
    EXPECT_FALSE(IsIn(14, 14));
    const GpPointF open[] = {{200, 0}, {220, 0}, {220, 20}};
    EXPECT_EQ(GdipAddPathLine2(path, open, 3), Ok);
    EXPECT_TRUE(IsIn(215, 10));
    EXPECT_FALSE(IsIn(205, 10));
}

TEST_F(PathHits, IntegerPointsHitTheSame) {
    EXPECT_EQ(GdipAddPathRectangle(path, 0, 0, 10, 10), Ok);
    BOOL result = 7;
    EXPECT_EQ(GdipIsVisiblePathPointI(path, 5, 5, nullptr, &result), Ok);
    EXPECT_EQ(result, 1);
    EXPECT_EQ(GdipIsVisiblePathPointI(path, 10, 10, nullptr, &result), Ok);
    EXPECT_EQ(result, 0);
    const OwnedPen pen = NewPen(4);
    EXPECT_EQ(GdipIsOutlineVisiblePathPointI(path, 11, 5, pen, nullptr, &result), Ok);
    EXPECT_EQ(result, 1);
    EXPECT_EQ(GdipIsOutlineVisiblePathPointI(path, 5, 5, pen, nullptr, &result), Ok);
    EXPECT_EQ(result, 0);
}

TEST_F(PathHits, AStrokeIsAsWideAsItsPen) {
    EXPECT_EQ(GdipAddPathLine(path, 10, 10, 30, 10), Ok);
    const OwnedPen pen = NewPen(6);
    EXPECT_TRUE(IsOn(20, 12.9f, pen));
    EXPECT_FALSE(IsOn(20, 13.1f, pen));
    EXPECT_FALSE(IsOn(9.9f, 10, pen));
    EXPECT_EQ(GdipSetPenStartCap(pen, LineCapSquare), Ok);
    EXPECT_TRUE(IsOn(9.9f, 10, pen));
    EXPECT_EQ(GdipSetPenDashStyle(pen, DashStyleDot), Ok);
    EXPECT_TRUE(IsOn(13, 10, pen));
    EXPECT_FALSE(IsOn(19, 10, pen));
}

TEST_F(PathHits, AThinPenIsAPixelWide) {
    EXPECT_EQ(GdipAddPathLine(path, 10, 10, 30, 10), Ok);
    const OwnedPen pen = NewPen(0);
    EXPECT_TRUE(IsOn(20, 10.4f, pen));
    EXPECT_FALSE(IsOn(20, 10.6f, pen));
}

/// A graphics whose world is four times as large as its pixels.
class LargeWorld {
public:
    LargeWorld() {
        EXPECT_EQ(GdipCreateBitmapFromScan0(4, 4, 0, PixelFormat32bppARGB, nullptr, &bitmap_), Ok);
        EXPECT_EQ(GdipGetImageGraphicsContext(Image(), &graphics_), Ok);
        EXPECT_EQ(GdipScaleWorldTransform(graphics_, 4, 4, MatrixOrderPrepend), Ok);
    }
    ~LargeWorld() {
        GdipDeleteGraphics(graphics_);
        GdipDisposeImage(Image());
    }
    operator GpGraphics*() const { return graphics_; }

private:
    GpImage* Image() const { return reinterpret_cast<GpImage*>(bitmap_); }

    GpBitmap* bitmap_ = nullptr;
    GpGraphics* graphics_ = nullptr;
};

TEST_F(PathHits, AGraphicsSaysHowLargeAPixelIs) {
    const LargeWorld graphics;
    EXPECT_EQ(GdipAddPathLine(path, 10, 10, 30, 10), Ok);
    const OwnedPen thin = NewPen(0), pixels = NewPen(8, UnitPixel), world = NewPen(8);
    const auto isOn = [&](REAL y, GpPen* pen) {
        BOOL result = 7;
        EXPECT_EQ(GdipIsOutlineVisiblePathPoint(path, 20, y, pen, graphics, &result), Ok);
        return result == 1;
    };
    EXPECT_TRUE(isOn(10.1f, thin));
    EXPECT_FALSE(isOn(10.2f, thin));
    EXPECT_TRUE(isOn(10.9f, pixels));
    EXPECT_FALSE(isOn(11.1f, pixels));
    EXPECT_TRUE(isOn(13.9f, world));
}

TEST_F(PathHits, FillsAreHitInTheWorldOfAGraphics) {
    const LargeWorld graphics;
    EXPECT_EQ(GdipAddPathEllipse(path, 0, 0, 100, 100), Ok);
    BOOL result = 7;
    EXPECT_EQ(GdipIsVisiblePathPoint(path, 15, 15, graphics, &result), Ok);
    EXPECT_EQ(result, 1);
    EXPECT_EQ(GdipIsVisiblePathPointI(path, 14, 14, graphics, &result), Ok);
    EXPECT_EQ(result, 0);
}

TEST_F(PathHits, BoundsTakeInTheSteeringPoints) {
    EXPECT_EQ(GdipAddPathBezier(path, 0, 0, -10, 20, 40, -30, 30, 0), Ok);
    GpRectF r{};
    EXPECT_EQ(GdipGetPathWorldBounds(path, &r, nullptr, nullptr), Ok);
    EXPECT_EQ(r.X, -10);
    EXPECT_EQ(r.Y, -30);
    EXPECT_EQ(r.Width, 50);
    EXPECT_EQ(r.Height, 50);
}

TEST_F(PathHits, BoundsTakeAMatrixAndAPen) {
    EXPECT_EQ(GdipAddPathRectangle(path, 0, 0, 10, 20), Ok);
    const OwnedPen pen = NewPen(2);
    GpRectF r{};
    EXPECT_EQ(GdipGetPathWorldBounds(path, &r, MatrixOf({2, 0, 0, 2, 100, 0}), nullptr), Ok);
    EXPECT_EQ(r.X, 100);
    EXPECT_EQ(r.Height, 40);
    EXPECT_EQ(GdipGetPathWorldBounds(path, &r, nullptr, pen), Ok);
    EXPECT_EQ(r.X, -20);
    EXPECT_EQ(r.Width, 50);
    EXPECT_EQ(GdipSetPenLineJoin(pen, LineJoinRound), Ok);
    EXPECT_EQ(GdipGetPathWorldBounds(path, &r, nullptr, pen), Ok);
    EXPECT_EQ(r.X, -2);
    EXPECT_EQ(r.Height, 24);
}

TEST_F(PathHits, IntegerBoundsAreRounded) {
    EXPECT_EQ(GdipAddPathRectangle(path, 0.6f, -0.6f, 10.4f, 20.5f), Ok);
    GpRect r{};
    EXPECT_EQ(GdipGetPathWorldBoundsI(path, &r, nullptr, nullptr), Ok);
    EXPECT_EQ(r.X, 1);
    EXPECT_EQ(r.Y, -1);
    EXPECT_EQ(r.Width, 10);
    EXPECT_EQ(r.Height, 21);
    EXPECT_EQ(GdipGetPathWorldBoundsI(path, nullptr, nullptr, nullptr), InvalidParameter);
}

TEST_F(PathHits, AnEmptyPathHasNoBoundsAndIsNowhere) {
    GpRectF r{1, 1, 1, 1};
    EXPECT_EQ(GdipGetPathWorldBounds(path, &r, nullptr, NewPen(9)), Ok);
    EXPECT_EQ(r.X, 0);
    EXPECT_EQ(r.Width, 0);
    EXPECT_FALSE(IsIn(0, 0));
    EXPECT_FALSE(IsOn(0, 0, NewPen(9)));
}

TEST_F(PathHits, NeedTheirArguments) {
    BOOL result = 7;
    GpRectF r{};
    const OwnedPen pen = NewPen(1);
    EXPECT_EQ(GdipGetPathWorldBounds(nullptr, &r, nullptr, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetPathWorldBounds(path, nullptr, nullptr, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetPathWorldBounds(path, &r, Forged<GpMatrix>(), nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetPathWorldBounds(path, &r, nullptr, Forged<GpPen>()), InvalidParameter);
    EXPECT_EQ(GdipIsVisiblePathPoint(nullptr, 0, 0, nullptr, &result), InvalidParameter);
    EXPECT_EQ(GdipIsVisiblePathPoint(path, 0, 0, nullptr, nullptr), InvalidParameter);
    EXPECT_EQ(GdipIsVisiblePathPoint(path, 0, 0, Forged<GpGraphics>(), &result), InvalidParameter);
    EXPECT_EQ(GdipIsVisiblePathPointI(nullptr, 0, 0, nullptr, &result), InvalidParameter);
    EXPECT_EQ(GdipIsOutlineVisiblePathPoint(path, 0, 0, nullptr, nullptr, &result),
              InvalidParameter);
    EXPECT_EQ(GdipIsOutlineVisiblePathPoint(path, 0, 0, pen, Forged<GpGraphics>(), &result),
              InvalidParameter);
    EXPECT_EQ(GdipIsOutlineVisiblePathPointI(path, 0, 0, pen, nullptr, nullptr), InvalidParameter);
    EXPECT_EQ(result, 7);
}

}  // namespace
}  // namespace vxgui::gdiplus
