#include <cmath>
#include <numbers>

#include "tests/platform/gdiplus_geometry/GeometryTestSupport.h"

namespace vxgui::gdiplus {
namespace {

class PathBuilders : public GeometryTest {};

constexpr REAL kCircle = 0.5522848f;  // handles of a quarter circle: 4/3 (sqrt 2 - 1)
constexpr int kEnd = 0x81, kCurveEnd = 0x83;

const GpPointF kThree[] = {{1, 1}, {4, 1}, {4, 5}};
const GpPoint kThreeI[] = {{1, 1}, {4, 1}, {4, 5}};
const GpPointF kFour[] = {{0, 0}, {6, 0}, {6, 6}, {0, 6}};
const GpPoint kFourI[] = {{0, 0}, {6, 0}, {6, 6}, {0, 6}};
const GpRectF kRects[] = {{1, 2, 3, 4}, {0, 0, 0, 9}, {10, 20, 1, 1}};
const GpRect kRectsI[] = {{1, 2, 3, 4}, {0, 0, 0, 9}, {10, 20, 1, 1}};

struct Builder {
    const char* name;
    GpStatus (*add)(GpPath*);
    GpStatus (*addIntegers)(GpPath*);
    std::vector<GpPointF> points;
    std::vector<int> types;
};

std::vector<GpPointF> EllipsePoints(REAL x, REAL y, REAL rx, REAL ry) {
    const REAL kx = rx * kCircle, ky = ry * kCircle;
    return {{x + rx, y},      {x + rx, y + ky}, {x + kx, y + ry}, {x, y + ry},
            {x - kx, y + ry}, {x - rx, y + ky}, {x - rx, y},      {x - rx, y - ky},
            {x - kx, y - ry}, {x, y - ry},      {x + kx, y - ry}, {x + rx, y - ky},
            {x + rx, y}};
}

const std::vector<Builder>& Builders() {
    static const std::vector<Builder> builders = {
        {"line",
         [](GpPath* p) { return GdipAddPathLine(p, 1, 2, 3, 4); },
         [](GpPath* p) { return GdipAddPathLineI(p, 1, 2, 3, 4); },
         {{1, 2}, {3, 4}},
         {0, 1}},
        {"lines",
         [](GpPath* p) { return GdipAddPathLine2(p, kThree, 3); },
         [](GpPath* p) { return GdipAddPathLine2I(p, kThreeI, 3); },
         {{1, 1}, {4, 1}, {4, 5}},
         {0, 1, 1}},
        {"a point",
         [](GpPath* p) { return GdipAddPathLine2(p, kThree, 1); },
         [](GpPath* p) { return GdipAddPathLine2I(p, kThreeI, 1); },
         {{1, 1}},
         {0}},
        {"bezier",
         [](GpPath* p) { return GdipAddPathBezier(p, 1, 2, 3, 4, 5, 6, 7, 8); },
         [](GpPath* p) { return GdipAddPathBezierI(p, 1, 2, 3, 4, 5, 6, 7, 8); },
         {{1, 2}, {3, 4}, {5, 6}, {7, 8}},
         {0, 3, 3, 3}},
        {"beziers",
         [](GpPath* p) { return GdipAddPathBeziers(p, kFour, 4); },
         [](GpPath* p) { return GdipAddPathBeziersI(p, kFourI, 4); },
         {{0, 0}, {6, 0}, {6, 6}, {0, 6}},
         {0, 3, 3, 3}},
        {"quarter arc",
         [](GpPath* p) { return GdipAddPathArc(p, 0, 0, 20, 40, 0, 90); },
         [](GpPath* p) { return GdipAddPathArcI(p, 0, 0, 20, 40, 0, 90); },
         {{20, 20}, {20, 20 + 20 * kCircle}, {10 + 10 * kCircle, 40}, {10, 40}},
         {0, 3, 3, 3}},
        {"arc backwards",
         [](GpPath* p) { return GdipAddPathArc(p, 0, 0, 20, 40, 90, -90); },
         [](GpPath* p) { return GdipAddPathArcI(p, 0, 0, 20, 40, 90, -90); },
         {{10, 40}, {10 + 10 * kCircle, 40}, {20, 20 + 20 * kCircle}, {20, 20}},
         {0, 3, 3, 3}},
        {"curve",
         [](GpPath* p) { return GdipAddPathCurve(p, kThree, 3); },
         [](GpPath* p) { return GdipAddPathCurveI(p, kThreeI, 3); },
         {{1, 1},
          {1.5f, 1},
          {3.5f, 1 - 4 / 6.f},
          {4, 1},
          {4.5f, 1 + 4 / 6.f},
          {4, 5 - 4 / 6.f},
          {4, 5}},
         {0, 3, 3, 3, 3, 3, 3}},
        {"curve with tension",
         [](GpPath* p) { return GdipAddPathCurve2(p, kThree, 3, 1); },
         [](GpPath* p) { return GdipAddPathCurve2I(p, kThreeI, 3, 1); },
         {{1, 1}, {2, 1}, {3, 1 - 4 / 3.f}, {4, 1}, {5, 1 + 4 / 3.f}, {4, 5 - 4 / 3.f}, {4, 5}},
         {0, 3, 3, 3, 3, 3, 3}},
        {"part of a curve",
         [](GpPath* p) { return GdipAddPathCurve3(p, kThree, 3, 1, 1, 1); },
         [](GpPath* p) { return GdipAddPathCurve3I(p, kThreeI, 3, 1, 1, 1); },
         {{4, 1}, {5, 1 + 4 / 3.f}, {4, 5 - 4 / 3.f}, {4, 5}},
         {0, 3, 3, 3}},
        {"closed curve",
         [](GpPath* p) { return GdipAddPathClosedCurve(p, kFour, 4); },
         [](GpPath* p) { return GdipAddPathClosedCurveI(p, kFourI, 4); },
         {{0, 0},
          {1, -1},
          {5, -1},
          {6, 0},
          {7, 1},
          {7, 5},
          {6, 6},
          {5, 7},
          {1, 7},
          {0, 6},
          {-1, 5},
          {-1, 1},
          {0, 0}},
         {0, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, kCurveEnd}},
        {"closed curve with tension",
         [](GpPath* p) { return GdipAddPathClosedCurve2(p, kFour, 4, 0); },
         [](GpPath* p) { return GdipAddPathClosedCurve2I(p, kFourI, 4, 0); },
         {{0, 0},
          {0, 0},
          {6, 0},
          {6, 0},
          {6, 0},
          {6, 6},
          {6, 6},
          {6, 6},
          {0, 6},
          {0, 6},
          {0, 6},
          {0, 0},
          {0, 0}},
         {0, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, kCurveEnd}},
        {"rectangle",
         [](GpPath* p) { return GdipAddPathRectangle(p, 1, 2, 30, 40); },
         [](GpPath* p) { return GdipAddPathRectangleI(p, 1, 2, 30, 40); },
         {{1, 2}, {31, 2}, {31, 42}, {1, 42}},
         {0, 1, 1, kEnd}},
        {"rectangles, those with area",
         [](GpPath* p) { return GdipAddPathRectangles(p, kRects, 3); },
         [](GpPath* p) { return GdipAddPathRectanglesI(p, kRectsI, 3); },
         {{1, 2}, {4, 2}, {4, 6}, {1, 6}, {10, 20}, {11, 20}, {11, 21}, {10, 21}},
         {0, 1, 1, kEnd, 0, 1, 1, kEnd}},
        {"ellipse",
         [](GpPath* p) { return GdipAddPathEllipse(p, 10, 20, 40, 20); },
         [](GpPath* p) { return GdipAddPathEllipseI(p, 10, 20, 40, 20); },
         EllipsePoints(30, 30, 20, 10),
         {0, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, kCurveEnd}},
        {"pie",
         [](GpPath* p) { return GdipAddPathPie(p, 0, 0, 20, 20, 90, 90); },
         [](GpPath* p) { return GdipAddPathPieI(p, 0, 0, 20, 20, 90, 90); },
         {{10, 10}, {10, 20}, {10 - 10 * kCircle, 20}, {0, 10 + 10 * kCircle}, {0, 10}},
         {0, 1, 3, 3, kCurveEnd}},
        {"polygon",
         [](GpPath* p) { return GdipAddPathPolygon(p, kThree, 3); },
         [](GpPath* p) { return GdipAddPathPolygonI(p, kThreeI, 3); },
         {{1, 1}, {4, 1}, {4, 5}},
         {0, 1, kEnd}},
    };
    return builders;
}

TEST_F(PathBuilders, AddThePublishedPoints) {
    for (const Builder& builder : Builders()) {
        SCOPED_TRACE(builder.name);
        for (const auto add : {builder.add, builder.addIntegers}) {
            const OwnedPath path = NewPath();
            EXPECT_EQ(add(path), Ok);
            ExpectPoints(path, builder.points);
            ExpectTypes(path, builder.types);
        }
    }
}

TEST_F(PathBuilders, NeedAPath) {
    for (const Builder& builder : Builders()) {
        SCOPED_TRACE(builder.name);
        for (const auto add : {builder.add, builder.addIntegers}) {
            EXPECT_EQ(add(nullptr), InvalidParameter);
            EXPECT_EQ(add(Forged<GpPath>()), InvalidParameter);
        }
    }
}

TEST_F(PathBuilders, OpenShapesGoOnByALine) {
    for (const Builder& builder : Builders()) {
        SCOPED_TRACE(builder.name);
        const OwnedPath path = NewPath();
        EXPECT_EQ(GdipAddPathLine(path, -9, -9, -8, -8), Ok);
        EXPECT_EQ(builder.add(path), Ok);
        const bool closed = builder.types.back() >= 0x80;
        EXPECT_EQ(TypesOf(path)[2], closed ? 0 : 1);
        EXPECT_EQ(CountOf(path), static_cast<INT>(builder.points.size()) + 2);
    }
}

TEST_F(PathBuilders, OpenShapesGoOnWithoutALineWhereTheFigureEnds) {
    for (const Builder& builder : Builders()) {
        if (builder.types.back() >= 0x80) continue;
        SCOPED_TRACE(builder.name);
        const OwnedPath path = NewPath();
        const GpPointF start = builder.points[0];
        EXPECT_EQ(GdipAddPathLine(path, -9, -9, start.X, start.Y), Ok);
        EXPECT_EQ(builder.add(path), Ok);
        EXPECT_EQ(CountOf(path), static_cast<INT>(builder.points.size()) + 1);
    }
}

TEST_F(PathBuilders, PointsInOnePlaceAreAllKept) {
    const GpPointF same[] = {{5, 5}, {5, 5}, {5, 5}, {5, 5}};
    const OwnedPath lines = NewPath();
    EXPECT_EQ(GdipAddPathLine2(lines, same, 2), Ok);
    EXPECT_EQ(CountOf(lines), 2);
    EXPECT_EQ(GdipAddPathLine2(lines, same, 2), Ok);
    EXPECT_EQ(CountOf(lines), 3);
    const OwnedPath curves = NewPath();
    EXPECT_EQ(GdipAddPathBeziers(curves, same, 4), Ok);
    EXPECT_EQ(GdipAddPathBeziers(curves, same, 4), Ok);
    ExpectTypes(curves, {0, 3, 3, 3, 3, 3, 3});
}

TEST_F(PathBuilders, NeedEnoughPoints) {
    const OwnedPath path = NewPath();
    EXPECT_EQ(GdipAddPathLine2(path, kThree, 0), InvalidParameter);
    EXPECT_EQ(GdipAddPathLine2(path, nullptr, 3), InvalidParameter);
    EXPECT_EQ(GdipAddPathLine2I(path, nullptr, 3), InvalidParameter);
    EXPECT_EQ(GdipAddPathBeziers(path, kFour, 3), InvalidParameter);
    EXPECT_EQ(GdipAddPathBeziersI(path, kFourI, 1), InvalidParameter);
    EXPECT_EQ(GdipAddPathCurve(path, kFour, 1), InvalidParameter);
    EXPECT_EQ(GdipAddPathCurveI(path, nullptr, 3), InvalidParameter);
    EXPECT_EQ(GdipAddPathCurve2(path, kFour, 1, 1), InvalidParameter);
    EXPECT_EQ(GdipAddPathCurve2I(path, kFourI, -1, 1), InvalidParameter);
    EXPECT_EQ(GdipAddPathClosedCurve(path, kFour, 2), InvalidParameter);
    EXPECT_EQ(GdipAddPathClosedCurveI(path, kFourI, 2), InvalidParameter);
    EXPECT_EQ(GdipAddPathClosedCurve2(path, kFour, 2, 1), InvalidParameter);
    EXPECT_EQ(GdipAddPathClosedCurve2I(path, nullptr, 4, 1), InvalidParameter);
    EXPECT_EQ(GdipAddPathPolygon(path, kFour, 2), InvalidParameter);
    EXPECT_EQ(GdipAddPathPolygonI(path, nullptr, 3), InvalidParameter);
    EXPECT_EQ(GdipAddPathRectangles(path, kRects, 0), InvalidParameter);
    EXPECT_EQ(GdipAddPathRectanglesI(path, nullptr, 1), InvalidParameter);
    EXPECT_EQ(CountOf(path), 0);
}

TEST_F(PathBuilders, APartOfACurveLiesWithinItsPoints) {
    const OwnedPath path = NewPath();
    const struct {
        INT offset, segments;
    } bad[] = {{-1, 1}, {0, 0}, {0, 4}, {2, 2}, {3, 1}, {0, -1}};
    for (const auto& part : bad) {
        EXPECT_EQ(GdipAddPathCurve3(path, kFour, 4, part.offset, part.segments, 0.5f),
                  InvalidParameter);
        EXPECT_EQ(GdipAddPathCurve3I(path, kFourI, 4, part.offset, part.segments, 0.5f),
                  InvalidParameter);
    }
    EXPECT_EQ(CountOf(path), 0);
}

TEST_F(PathBuilders, RectanglesWithoutAreaAddNothing) {
    const OwnedPath path = NewPath();
    EXPECT_EQ(GdipAddPathRectangle(path, 1, 1, 0, 5), Ok);
    EXPECT_EQ(GdipAddPathRectangle(path, 1, 1, 5, -5), Ok);
    EXPECT_EQ(CountOf(path), 0);
}

TEST_F(PathBuilders, AnArcHasAPieceForEachQuarter) {
    const struct {
        REAL start, sweep;
        INT count;
    } arcs[] = {{10, 90, 4},  {10, 90.5f, 7}, {0, 180, 7},    {0, -200, 10}, {5, 270, 10},
                {0, 360, 13}, {20, 500, 13},  {20, -361, 13}, {45, 0.5f, 4}, {45, 0, 1}};
    for (const auto& arc : arcs) {
        const OwnedPath path = NewPath();
        EXPECT_EQ(GdipAddPathArc(path, 0, 0, 10, 10, arc.start, arc.sweep), Ok);
        EXPECT_EQ(CountOf(path), arc.count) << arc.start << " " << arc.sweep;
    }
}

TEST_F(PathBuilders, ArcsLieOnTheirEllipseBetweenTheRays) {
    for (REAL start = -400; start < 400; start += 37) {
        for (const REAL sweep : {-300.f, -75.f, 30.f, 123.f, 359.f}) {
            const OwnedPath path = NewPath();
            EXPECT_EQ(GdipAddPathArc(path, -30, -10, 60, 20, start, sweep), Ok);
            const auto points = PointsOf(path);
            for (size_t i = 0; i < points.size(); i += 3) {
                const double x = points[i].X / 30, y = points[i].Y / 10;
                EXPECT_NEAR(std::hypot(x, y), 1, 1e-5);
            }
            const auto rayOf = [](GpPointF p) { return std::atan2(p.Y, p.X); };
            const auto turns = [](double a, double b) {
                return std::abs(std::remainder(a - b, 2 * std::numbers::pi));
            };
            const double radian = std::numbers::pi / 180;
            EXPECT_LT(turns(rayOf(points.front()), start * radian), 1e-4);
            EXPECT_LT(turns(rayOf(points.back()), (start + sweep) * radian), 1e-4);
        }
    }
}

TEST_F(PathBuilders, AnArcByAnglesOfNoMeaningIsAPoint) {
    for (const REAL angle : {std::nanf(""), INFINITY}) {
        const OwnedPath path = NewPath();
        EXPECT_EQ(GdipAddPathArc(path, 0, 0, 10, 10, angle, 90), Ok);
        EXPECT_EQ(CountOf(path), 1);
    }
}

TEST_F(PathBuilders, AWholeTurnEndsWhereItBegan) {
    const OwnedPath path = NewPath();
    EXPECT_EQ(GdipAddPathArc(path, 0, 0, 33, 17, 77, 360), Ok);
    const auto points = PointsOf(path);
    EXPECT_EQ(points.front(), points.back());
}

}  // namespace
}  // namespace vxgui::gdiplus
