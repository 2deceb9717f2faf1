#include <algorithm>
#include <cmath>

#include "tests/platform/gdiplus_geometry/GeometryTestSupport.h"

namespace vxgui::gdiplus {
namespace {

class PathChanges : public GeometryTest {};

OwnedPath Square(REAL x, REAL y, REAL size) {
    OwnedPath path = NewPath();
    EXPECT_EQ(GdipAddPathRectangle(path, x, y, size, size), Ok);
    return path;
}

/// What the figures enclose, holes taken off.
double AreaOf(GpPath* path) {
    const auto points = PointsOf(path);
    const auto types = TypesOf(path);
    double area = 0;
    for (size_t first = 0; first < points.size();) {
        size_t end = first + 1;
        while (end < points.size() && (types[end] & 7) != 0) ++end;
        for (size_t i = first; i < end; ++i) {
            const GpPointF a = points[i], b = points[i + 1 < end ? i + 1 : first];
            area += (double{a.X} * b.Y - double{a.Y} * b.X) / 2;
        }
        first = end;
    }
    return std::abs(area);
}

GpRectF BoundsOf(GpPath* path) {
    GpRectF bounds{};
    EXPECT_EQ(GdipGetPathWorldBounds(path, &bounds, nullptr, nullptr), Ok);
    return bounds;
}

void ExpectBounds(GpPath* path, const GpRectF& expected, REAL tolerance = 1e-3f) {
    const GpRectF r = BoundsOf(path);
    EXPECT_NEAR(r.X, expected.X, tolerance);
    EXPECT_NEAR(r.Y, expected.Y, tolerance);
    EXPECT_NEAR(r.Width, expected.Width, tolerance);
    EXPECT_NEAR(r.Height, expected.Height, tolerance);
}

TEST_F(PathChanges, TransformMovesAllPoints) {
    const OwnedPath path = Square(1, 2, 3);
    EXPECT_EQ(GdipTransformPath(path, MatrixOf({2, 0, 0, 3, 10, 20})), Ok);
    ExpectPoints(path, {{12, 26}, {18, 26}, {18, 35}, {12, 35}});
    EXPECT_EQ(GdipTransformPath(path, nullptr), Ok);
    ExpectPoints(path, {{12, 26}, {18, 26}, {18, 35}, {12, 35}});
    EXPECT_EQ(GdipTransformPath(nullptr, nullptr), InvalidParameter);
    EXPECT_EQ(GdipTransformPath(path, Forged<GpMatrix>()), InvalidParameter);
}

TEST_F(PathChanges, FlattenStaysNearTheCurve) {
    for (const REAL flatness : {1.f, 0.25f, 0.01f}) {
        const OwnedPath path = NewPath();
        EXPECT_EQ(GdipAddPathEllipse(path, -100, -100, 200, 200), Ok);
        EXPECT_EQ(GdipFlattenPath(path, nullptr, flatness), Ok);
        const auto points = PointsOf(path);
        for (size_t i = 0; i + 1 < points.size(); ++i) {
            EXPECT_NEAR(std::hypot(points[i].X, points[i].Y), 100, 0.03);
            const REAL x = (points[i].X + points[i + 1].X) / 2;
            const REAL y = (points[i].Y + points[i + 1].Y) / 2;
            EXPECT_GT(std::hypot(x, y), 100 - flatness - 0.03);
        }
        const auto types = TypesOf(path);
        EXPECT_EQ(types.front(), 0);
        EXPECT_EQ(types.back(), 0x81);
        EXPECT_EQ(std::count(types.begin(), types.end(), 1), CountOf(path) - 2);
    }
}

TEST_F(PathChanges, FlattenNeedsFewerLinesWhenCoarse) {
    INT counts[2];
    for (int i = 0; i < 2; ++i) {
        const OwnedPath path = NewPath();
        EXPECT_EQ(GdipAddPathEllipse(path, 0, 0, 200, 200), Ok);
        EXPECT_EQ(GdipFlattenPath(path, nullptr, i == 0 ? 2.f : 0.1f), Ok);
        counts[i] = CountOf(path);
    }
    EXPECT_LT(counts[0], 30);
    EXPECT_GT(counts[1], 2 * counts[0]);
    EXPECT_LT(counts[1], 120);
}

TEST_F(PathChanges, FlattenLeavesLinesAndMarkersAndTakesAMatrix) {
    const OwnedPath path = Square(0, 0, 2);
    EXPECT_EQ(GdipAddPathBezier(path, 0, 0, 1, 0, 2, 0, 3, 0), Ok);
    EXPECT_EQ(GdipSetPathMarker(path), Ok);
    EXPECT_EQ(GdipFlattenPath(path, MatrixOf({1, 0, 0, 1, 5, 5}), 0.25f), Ok);
    ExpectPoints(path, {{5, 5}, {7, 5}, {7, 7}, {5, 7}, {5, 5}, {8, 5}});
    ExpectTypes(path, {0, 1, 1, 0x81, 0, 0x21});
    EXPECT_EQ(GdipFlattenPath(nullptr, nullptr, 0.25f), InvalidParameter);
    EXPECT_EQ(GdipFlattenPath(path, Forged<GpMatrix>(), 0.25f), InvalidParameter);
}

TEST_F(PathChanges, OutlineMergesWhatOverlaps) {
    const OwnedPath path = Square(0, 0, 10);
    EXPECT_EQ(GdipAddPathRectangle(path, 5, 5, 10, 10), Ok);
    EXPECT_EQ(GdipSetPathFillMode(path, FillModeWinding), Ok);
    EXPECT_EQ(GdipWindingModeOutline(path, nullptr, 0.25f), Ok);
    EXPECT_EQ(CountOf(path), 8);
    EXPECT_NEAR(AreaOf(path), 175, 1e-3);
    ExpectBounds(path, {0, 0, 15, 15});
}

TEST_F(PathChanges, OutlineKeepsTheHolesOfTheAlternateMode) {
    const OwnedPath path = Square(0, 0, 10);
    EXPECT_EQ(GdipAddPathRectangle(path, 5, 5, 10, 10), Ok);
    EXPECT_EQ(GdipAddPathRectangle(path, 2, 2, 2, 2), Ok);
    EXPECT_EQ(GdipWindingModeOutline(path, MatrixOf({1, 0, 0, 1, 100, 0}), 0.25f), Ok);
    EXPECT_NEAR(AreaOf(path), 146, 1e-3);
    ExpectBounds(path, {100, 0, 15, 15});
    FillMode mode = FillModeAlternate;
    EXPECT_EQ(GdipGetPathFillMode(path, &mode), Ok);
    EXPECT_EQ(mode, FillModeWinding);
    BOOL visible = 1;
    EXPECT_EQ(GdipIsVisiblePathPoint(path, 107, 7, nullptr, &visible), Ok);
    EXPECT_FALSE(visible);
    EXPECT_EQ(GdipIsVisiblePathPoint(path, 103, 3, nullptr, &visible), Ok);
    EXPECT_FALSE(visible);
    EXPECT_EQ(GdipIsVisiblePathPoint(path, 101, 1, nullptr, &visible), Ok);
    EXPECT_TRUE(visible);
}

TEST_F(PathChanges, OutlineNeedsAPathAndALiveMatrix) {
    EXPECT_EQ(GdipWindingModeOutline(nullptr, nullptr, 0.25f), InvalidParameter);
    EXPECT_EQ(GdipWindingModeOutline(NewPath(), Forged<GpMatrix>(), 0.25f), InvalidParameter);
    const OwnedPath empty = NewPath();
    EXPECT_EQ(GdipWindingModeOutline(empty, nullptr, 0.25f), Ok);
    EXPECT_EQ(CountOf(empty), 0);
}

TEST_F(PathChanges, WidenALineToItsStroke) {
    const OwnedPath path = NewPath();
    EXPECT_EQ(GdipAddPathLine(path, 10, 10, 30, 10), Ok);
    EXPECT_EQ(GdipWidenPath(path, NewPen(4), nullptr, 0.25f), Ok);
    EXPECT_EQ(CountOf(path), 4);
    ExpectBounds(path, {10, 8, 20, 4});
    EXPECT_EQ(TypesOf(path).back(), 0x81);
}

TEST_F(PathChanges, WidenAFigureToARing) {
    const OwnedPath path = Square(0, 0, 20);
    EXPECT_EQ(GdipWidenPath(path, NewPen(4), nullptr, 0.25f), Ok);
    EXPECT_EQ(CountOf(path), 8);
    ExpectBounds(path, {-2, -2, 24, 24});
    EXPECT_NEAR(AreaOf(path), 24 * 24 - 16 * 16, 0.01);
}

TEST_F(PathChanges, WidenTakesTheMatrixBeforeThePen) {
    const OwnedPath path = NewPath();
    EXPECT_EQ(GdipAddPathLine(path, 0, 0, 10, 0), Ok);
    EXPECT_EQ(GdipWidenPath(path, NewPen(2), MatrixOf({3, 0, 0, 3, 0, 0}), 0.25f), Ok);
    ExpectBounds(path, {0, -1, 30, 2});
}

TEST_F(PathChanges, WidenWithAThinPen) {
    const OwnedPath path = NewPath();
    EXPECT_EQ(GdipAddPathLine(path, 0, 0, 1, 0), Ok);
    EXPECT_EQ(GdipWidenPath(path, NewPen(0.125f), nullptr, 0.25f), Ok);
    ExpectBounds(path, {0, -0.0625f, 1, 0.125f}, 1e-5f);
}

TEST_F(PathChanges, WidenNeedsAPenAndALine) {
    const OwnedPath path = NewPath();
    const OwnedPen pen = NewPen(1);
    EXPECT_EQ(GdipWidenPath(path, pen, nullptr, 0.25f), OutOfMemory);
    EXPECT_EQ(GdipAddPathLine(path, 0, 0, 1, 0), Ok);
    EXPECT_EQ(GdipWidenPath(path, nullptr, nullptr, 0.25f), InvalidParameter);
    EXPECT_EQ(GdipWidenPath(nullptr, pen, nullptr, 0.25f), InvalidParameter);
    EXPECT_EQ(GdipWidenPath(path, pen, Forged<GpMatrix>(), 0.25f), InvalidParameter);
    EXPECT_EQ(CountOf(path), 2);
}

const GpPointF kTrapezoid[] = {{20, 0}, {80, 0}, {0, 100}, {100, 100}};

TEST_F(PathChanges, WarpTakesCornersToCorners) {
    for (const WarpMode mode : {WarpModePerspective, WarpModeBilinear}) {
        const OwnedPath path = Square(0, 0, 10);
        EXPECT_EQ(GdipWarpPath(path, nullptr, kTrapezoid, 4, 0, 0, 10, 10, mode, 0.25f), Ok);
        ExpectPoints(path, {{20, 0}, {80, 0}, {100, 100}, {0, 100}});
        ExpectTypes(path, {0, 1, 1, 0x81});
    }
}

TEST_F(PathChanges, WarpInPerspectiveKeepsDiagonalsStraightAndMovesTheMiddle) {
    const OwnedPath path = NewPath();
    EXPECT_EQ(GdipAddPathLine(path, 0, 0, 10, 10), Ok);
    EXPECT_EQ(GdipStartPathFigure(path), Ok);
    EXPECT_EQ(GdipAddPathLine(path, 5, 5, 0, 5), Ok);
    EXPECT_EQ(GdipWarpPath(path, nullptr, kTrapezoid, 4, 0, 0, 10, 10, WarpModePerspective, 0.25f),
              Ok);
    // The diagonals of the trapezoid cross where its middle is seen: 37.5 below the short side.
    ExpectPoints(path, {{20, 0}, {100, 100}, {50, 37.5f}, {12.5f, 37.5f}});
}

TEST_F(PathChanges, WarpBilinearHalvesTheSidesAndBendsDiagonals) {
    const OwnedPath path = NewPath();
    EXPECT_EQ(GdipAddPathLine(path, 5, 5, 0, 5), Ok);
    EXPECT_EQ(GdipWarpPath(path, nullptr, kTrapezoid, 4, 0, 0, 10, 10, WarpModeBilinear, 0.25f),
              Ok);
    ExpectPoints(path, {{50, 50}, {10, 50}});
    const OwnedPath diagonal = NewPath();
    EXPECT_EQ(GdipAddPathLine(diagonal, 0, 0, 10, 10), Ok);
    EXPECT_EQ(GdipWarpPath(diagonal, nullptr, kTrapezoid, 4, 0, 0, 10, 10, WarpModeBilinear, 0.25f),
              Ok);
    ASSERT_GT(CountOf(diagonal), 3);
    for (const GpPointF& p : PointsOf(diagonal)) {
        const double v = p.Y / 100.0, u = v;
        EXPECT_NEAR(p.X, 20 * (1 - v) + (60 + 40 * v) * u, 1e-3);
    }
}

TEST_F(PathChanges, WarpToThreeCornersIsAParallelogram) {
    const GpPointF corners[] = {{10, 10}, {20, 12}, {14, 40}};
    for (const WarpMode mode : {WarpModePerspective, WarpModeBilinear}) {
        const OwnedPath path = Square(-1, -1, 2);
        EXPECT_EQ(GdipWarpPath(path, nullptr, corners, 3, -1, -1, 2, 2, mode, 0.25f), Ok);
        ExpectPoints(path, {{10, 10}, {20, 12}, {24, 42}, {14, 40}});
    }
}

TEST_F(PathChanges, WarpBringsTheMatrixAfterwardsAndFlattensCurves) {
    const OwnedPath path = NewPath();
    EXPECT_EQ(GdipAddPathEllipse(path, 0, 0, 10, 10), Ok);
    EXPECT_EQ(GdipWarpPath(path, MatrixOf({1, 0, 0, 1, 1000, 0}), kTrapezoid, 4, 0, 0, 10, 10,
                           WarpModePerspective, 0.25f),
              Ok);
    EXPECT_GT(CountOf(path), 16);
    EXPECT_EQ(TypesOf(path).back(), 0x81);
    const GpRectF bounds = BoundsOf(path);
    EXPECT_NEAR(bounds.Y, 0, 0.3);
    EXPECT_NEAR(bounds.Y + bounds.Height, 100, 0.3);
    EXPECT_NEAR(bounds.X + bounds.Width / 2, 1050, 0.3);
}

TEST_F(PathChanges, WarpRefusesWrongArguments) {
    const OwnedPath path = Square(0, 0, 10);
    const auto warp = [&](GpPath* p, const GpPointF* points, INT count, REAL width, int mode) {
        return GdipWarpPath(p, nullptr, points, count, 0, 0, width, 10, static_cast<WarpMode>(mode),
                            0.25f);
    };
    EXPECT_EQ(warp(nullptr, kTrapezoid, 4, 10, 0), InvalidParameter);
    EXPECT_EQ(warp(path, nullptr, 4, 10, 0), InvalidParameter);
    EXPECT_EQ(warp(path, kTrapezoid, 2, 10, 0), InvalidParameter);
    EXPECT_EQ(warp(path, kTrapezoid, 5, 10, 0), InvalidParameter);
    EXPECT_EQ(warp(path, kTrapezoid, 4, 0, 0), InvalidParameter);
    EXPECT_EQ(warp(path, kTrapezoid, 4, 10, 2), InvalidParameter);
    ExpectPoints(path, {{0, 0}, {10, 0}, {10, 10}, {0, 10}});
}

TEST_F(PathChanges, ADegenerateWarpEndsAll) {
    const GpPointF line[] = {{0, 0}, {10, 0}, {20, 0}, {30, 0}};
    const OwnedPath path = Square(0, 0, 10);
    EXPECT_EQ(GdipWarpPath(path, nullptr, line, 4, 0, 0, 10, 10, WarpModePerspective, 0.25f), Ok);
    EXPECT_EQ(BoundsOf(path).Height, 0);
}

}  // namespace
}  // namespace vxgui::gdiplus
