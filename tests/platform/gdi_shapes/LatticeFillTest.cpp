#include "vxgui/platform/gdi/shapes/LatticeFill.h"

#include <limits>
#include <random>

#include "ShapesTestSupport.h"

namespace vxgui::gdi {
namespace {

using Corners = std::vector<std::pair<int, int>>;  // in 1/16 pixel

void AddFigure(Path* path, const Corners& corners) {
    bool first = true;
    for (const auto& [x, y] : corners) {
        const PathPoint point{x / 16.0, y / 16.0};
        first ? path->MoveTo(point) : path->LineTo(point);
        first = false;
    }
}

// The winding number at a lattice point, in whole numbers: an edge counts when it crosses the
// point's row on the point's left or through it.
int WindingAt(const std::vector<Corners>& figures, int x, int y) {
    const int64_t px = x * 16, py = y * 16;
    int winding = 0;
    for (const Corners& corners : figures) {
        for (size_t i = 0; i < corners.size(); ++i) {
            auto [x0, y0] = corners[i];
            auto [x1, y1] = corners[(i + 1) % corners.size()];
            const int direction = y0 < y1 ? 1 : -1;
            if (direction < 0) std::swap(x0, x1), std::swap(y0, y1);
            if (py < y0 || py >= y1) continue;
            if ((px - x0) * (y1 - y0) >= (py - y0) * (x1 - x0)) winding += direction;
        }
    }
    return winding;
}

TEST(LatticeFill, LeftAndTopEdgesAreInRightAndBottomOut) {
    Path path;
    AddFigure(&path, {{0, 0}, {160, 0}, {160, 80}, {0, 80}});
    const auto region = LatticePoints(path, ALTERNATE, kEverywhere);
    ASSERT_TRUE(region);
    EXPECT_EQ(*region, PixelRegion(RECT{0, 0, 10, 5}));
}

TEST(LatticeFill, APointBetweenTheLatticeTakesTheNextLatticePoint) {
    Path path;
    AddFigure(&path, {{1, 1}, {161, 1}, {161, 81}, {1, 81}});
    EXPECT_EQ(*LatticePoints(path, ALTERNATE, kEverywhere), PixelRegion(RECT{1, 1, 11, 6}));
}

TEST(LatticeFill, OpenFiguresAreClosed) {
    Path open;
    AddFigure(&open, {{0, 0}, {160, 0}, {160, 160}});
    Path closed;
    AddFigure(&closed, {{0, 0}, {160, 0}, {160, 160}, {0, 0}});
    EXPECT_EQ(*LatticePoints(open, WINDING, kEverywhere),
              *LatticePoints(closed, WINDING, kEverywhere));
}

TEST(LatticeFill, OverlapsAreHolesByAlternationAndFilledByWinding) {
    Path path;
    AddFigure(&path, {{0, 0}, {160, 0}, {160, 160}, {0, 160}});
    AddFigure(&path, {{48, 48}, {96, 48}, {96, 96}, {48, 96}});
    EXPECT_FALSE(LatticePoints(path, ALTERNATE, kEverywhere)->Contains(4, 4));
    EXPECT_EQ(*LatticePoints(path, WINDING, kEverywhere), PixelRegion(RECT{0, 0, 10, 10}));
    Path opposite;
    AddFigure(&opposite, {{0, 0}, {160, 0}, {160, 160}, {0, 160}});
    AddFigure(&opposite, {{48, 48}, {48, 96}, {96, 96}, {96, 48}});
    EXPECT_FALSE(LatticePoints(opposite, WINDING, kEverywhere)->Contains(4, 4));
}

TEST(LatticeFill, RandomFiguresAgreeWithTheWindingNumberOfEachPoint) {
    for (unsigned seed = 1; seed <= 150; ++seed) {
        std::mt19937 random(seed);
        const int grid = seed % 2 ? 16 : 1;
        const auto coordinate = [&] {
            return static_cast<int>(random() % (30 * 16 / grid)) * grid;
        };
        Path path;
        std::vector<Corners> figures(1 + random() % 3);
        for (Corners& corners : figures) {
            for (size_t n = 1 + random() % 7; n > 0; --n) {
                corners.emplace_back(coordinate(), coordinate());
            }
            AddFigure(&path, corners);
        }
        const auto alternate = LatticePoints(path, ALTERNATE, kEverywhere);
        const auto winding = LatticePoints(path, WINDING, kEverywhere);
        for (int y = -1; y < 32; ++y) {
            for (int x = -1; x < 32; ++x) {
                const int expected = WindingAt(figures, x, y);
                ASSERT_EQ(alternate->Contains(x, y), expected % 2 != 0)
                    << "seed " << seed << " at " << x << ' ' << y;
                ASSERT_EQ(winding->Contains(x, y), expected != 0)
                    << "seed " << seed << " at " << x << ' ' << y;
            }
        }
    }
}

TEST(LatticeFill, BoundsCutTheResult) {
    Path path;
    AddFigure(&path, {{0, 0}, {320, 160}, {0, 320}});
    const RECT bounds{3, 4, 12, 15};
    PixelRegion expected = *LatticePoints(path, ALTERNATE, kEverywhere);
    expected.Combine(expected, PixelRegion(bounds), RGN_AND);
    EXPECT_EQ(*LatticePoints(path, ALTERNATE, bounds), expected);
}

TEST(LatticeFill, HugeFiguresAreRefusedUnlessBoundsCutThem) {
    constexpr double kHuge = std::numeric_limits<int32_t>::max();
    Path path;
    path.MoveTo({-kHuge, -kHuge});
    path.LineTo({kHuge, -kHuge});
    path.LineTo({kHuge, kHuge});
    EXPECT_FALSE(LatticePoints(path, ALTERNATE, kEverywhere));
    const auto part = LatticePoints(path, ALTERNATE, RECT{0, 0, 8, 8});
    ASSERT_TRUE(part);
    EXPECT_TRUE(part->Contains(5, 5));
    EXPECT_TRUE(part->Contains(6, 5));
    EXPECT_FALSE(part->Contains(4, 5));
}

TEST(LatticeFill, AnEmptyPathIsTheEmptyRegion) {
    EXPECT_TRUE(LatticePoints(Path(), WINDING, kEverywhere)->Empty());
}

}  // namespace
}  // namespace vxgui::gdi
