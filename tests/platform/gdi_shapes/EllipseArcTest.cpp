#include "vxgui/platform/gdi/shapes/EllipseArc.h"

#include <cmath>
#include <limits>

#include "ShapesTestSupport.h"
#include "vxgui/platform/gdi/shapes/LatticeFill.h"

namespace vxgui::gdi {
namespace {

PixelRegion FilledEllipse(const RECT& box) {
    Path path;
    path.Append(Flatten(ArcInBox(box, {box.right, 0}, {box.right, 0}, true)));
    return *LatticePoints(path, ALTERNATE, kEverywhere);
}

// How far a point is outside the ellipse, in units of its radii; 0 on the curve.
double Outside(const EllipseArc& arc, double x, double y) {
    const double dx = (x - arc.centre.x) / arc.radiusX;
    const double dy = (y - arc.centre.y) / arc.radiusY;
    return std::sqrt(dx * dx + dy * dy) - 1;
}

TEST(EllipseArc, LiesInsideTheBoxLessItsLastColumnAndRow) {
    for (const RECT& box : {RECT{0, 0, 11, 11}, RECT{-7, 3, 30, 12}, RECT{2, 2, 152, 77}}) {
        double left = 1e9, top = 1e9, right = -1e9, bottom = -1e9;
        for (const PathPoint& p : Flatten(ArcInBox(box, {box.right, 5}, {box.right, 5}, false))) {
            left = std::min(left, p.x);
            right = std::max(right, p.x);
            top = std::min(top, p.y);
            bottom = std::max(bottom, p.y);
        }
        EXPECT_NEAR(left, box.left, 1e-9);
        EXPECT_NEAR(top, box.top, 1e-9);
        EXPECT_NEAR(right, box.right - 1, 1e-9);
        EXPECT_NEAR(bottom, box.bottom - 1, 1e-9);
    }
}

TEST(EllipseArc, FilledItHasTheLatticePointsInside) {
    for (int width = 2; width < 70; width += 3) {
        for (int height = 2; height < 70; height += 7) {
            const RECT box{5, 7, 5 + width, 7 + height};
            const EllipseArc arc = ArcInBox(box, {0, 0}, {0, 0}, true);
            const PixelRegion region = FilledEllipse(box);
            const double blur = 0.07 / std::min(arc.radiusX, arc.radiusY);
            for (int y = 0; y < 80; ++y) {
                for (int x = 0; x < 80; ++x) {
                    const double outside = Outside(arc, x, y);
                    if (std::abs(outside) < blur) continue;  // on the curve, as far as 1/16 tells
                    ASSERT_EQ(region.Contains(x, y), outside < 0) << box << x << ' ' << y;
                }
            }
        }
    }
}

TEST(EllipseArc, TheLeftmostPointIsInAndTheRightmostOut) {
    const PixelRegion region = FilledEllipse(RECT{0, 0, 11, 11});
    EXPECT_TRUE(region.Contains(0, 5));
    EXPECT_FALSE(region.Contains(10, 5));
    EXPECT_TRUE(region.Contains(5, 1));
    EXPECT_FALSE(region.Contains(5, 10));
}

struct Direction {
    POINT from, to;
    bool clockwise;
    double sweep;  // quarter turns, clockwise above 0
};

TEST(EllipseArc, RunsBetweenTheRaysInTheGivenDirection) {
    const RECT box{0, 0, 21, 21};  // the centre is (10, 10)
    const POINT right{20, 10}, bottom{10, 20}, left{0, 10}, top{10, 0};
    const Direction cases[] = {
        {right, bottom, true, 1},   {right, bottom, false, -3}, {bottom, right, true, 3},
        {bottom, right, false, -1}, {left, top, true, 1},       {top, left, false, -1},
        {right, left, true, 2},     {right, left, false, -2},   {top, bottom, true, 2},
    };
    for (const Direction& c : cases) {
        const EllipseArc arc = ArcInBox(box, c.from, c.to, c.clockwise);
        EXPECT_NEAR(arc.sweep, c.sweep * std::acos(0.0), 1e-9) << c.from << c.to << c.clockwise;
        const std::vector<PathPoint> points = Flatten(arc);
        EXPECT_NEAR(points.front().x, c.from.x, 1e-9);
        EXPECT_NEAR(points.back().y, c.to.y, 1e-9);
    }
}

TEST(EllipseArc, EqualRaysGiveTheWholeEllipse) {
    const RECT box{0, 0, 31, 17};
    for (const bool clockwise : {false, true}) {
        for (const auto& [from, to] :
             {std::pair{POINT{20, 9}, POINT{20, 9}}, std::pair{POINT{16, 11}, POINT{18, 17}},
              std::pair{POINT{12, 7}, POINT{9, 6}}}) {
            EXPECT_NEAR(std::abs(ArcInBox(box, from, to, clockwise).sweep), 4 * std::acos(0.0),
                        1e-9);
        }
    }
}

TEST(EllipseArc, RaysThatNearlyCoincideDoNot) {
    const EllipseArc arc = ArcInBox(RECT{0, 0, 21, 21}, {30000, 10}, {30000, 11}, true);
    EXPECT_LT(arc.sweep, 0.001);
    EXPECT_GT(arc.sweep, 0);
}

TEST(EllipseArc, FlatteningStaysWithinAThirtySecondOfAPixel) {
    for (const int side : {2, 9, 60, 151, 1000, 40000}) {
        const EllipseArc arc = ArcInBox(RECT{0, 0, side, side}, {3, 1}, {3, 1}, true);
        const std::vector<PathPoint> points = Flatten(arc);
        for (size_t i = 1; i < points.size(); ++i) {
            const double x = (points[i - 1].x + points[i].x) / 2;
            const double y = (points[i - 1].y + points[i].y) / 2;
            ASSERT_LE(std::abs(Outside(arc, x, y)) * arc.radiusX, 1.0 / 32 + 1e-9) << side;
        }
    }
}

TEST(EllipseArc, FlatAndHugeBoxesAreSafe) {
    constexpr LONG kLow = std::numeric_limits<LONG>::min();
    constexpr LONG kHigh = std::numeric_limits<LONG>::max();
    EXPECT_GE(Flatten(ArcInBox(RECT{5, 5, 6, 6}, {5, 5}, {5, 5}, true)).size(), 2u);
    for (const PathPoint& p : Flatten(ArcInBox(RECT{5, 0, 6, 9}, {9, 1}, {2, 3}, true))) {
        EXPECT_NEAR(p.x, 5, 1e-9);
    }
    const auto huge =
        Flatten(ArcInBox(RECT{kLow, kLow, kHigh, kHigh}, {kLow, 3}, {kHigh, 3}, false));
    EXPECT_LT(huge.size(), 5000u);
}

}  // namespace
}  // namespace vxgui::gdi
