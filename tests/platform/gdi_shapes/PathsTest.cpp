#include <array>
#include <cmath>
#include <limits>

#include "Canvas.h"

namespace vxgui::gdi {
namespace {

using namespace test;

class Paths : public testing::Test {
protected:
    void Polygon(const std::vector<POINT>& points) {
        MoveToEx(canvas.dc, points[0].x, points[0].y, nullptr);
        for (size_t i = 1; i < points.size(); ++i) LineTo(canvas.dc, points[i].x, points[i].y);
    }
    HRGN End() {
        EXPECT_TRUE(EndPath(canvas.dc));
        return PathToRegion(canvas.dc);
    }
    Picture Filled(HRGN region) {
        Owned<HBRUSH> red(CreateSolidBrush(kRed));
        FillRgn(canvas.dc, region, red);
        return canvas.Picture(kRed);
    }

    Canvas canvas{10, 8};
};

TEST_F(Paths, BecomeTheirInsideAndAreUsedUp) {
    EXPECT_TRUE(BeginPath(canvas.dc));
    Polygon({{1, 1}, {6, 1}, {6, 5}, {1, 5}});
    Owned<HRGN> region(End());
    Owned<HRGN> expected(CreateRectRgn(1, 1, 6, 5));
    EXPECT_TRUE(EqualRgn(region, expected));
    EXPECT_EQ(PathToRegion(canvas.dc), nullptr);
}

TEST_F(Paths, RecordInsteadOfDrawing) {
    BeginPath(canvas.dc);
    Polygon({{1, 1}, {6, 1}});
    ArcTo(canvas.dc, 0, 0, 8, 8, 7, 4, 4, 0);
    Arc(canvas.dc, 0, 0, 8, 8, 7, 4, 4, 0);
    EXPECT_EQ(canvas.Count(kBlack), 0);
    EXPECT_TRUE(EndPath(canvas.dc));
    Polygon({{1, 1}, {6, 1}});
    EXPECT_EQ(canvas.Count(kBlack), 5);
}

TEST_F(Paths, MustBeEndedBeforeTheyAreUsed) {
    EXPECT_FALSE(EndPath(canvas.dc));
    EXPECT_FALSE(CloseFigure(canvas.dc));
    EXPECT_EQ(PathToRegion(canvas.dc), nullptr);
    BeginPath(canvas.dc);
    EXPECT_EQ(PathToRegion(canvas.dc), nullptr);
    Polygon({{1, 1}, {6, 1}, {6, 5}});
    EXPECT_TRUE(EndPath(canvas.dc));
    EXPECT_FALSE(EndPath(canvas.dc));
    EXPECT_FALSE(CloseFigure(canvas.dc));
    Owned<HRGN> region(PathToRegion(canvas.dc));
    EXPECT_NE(region, HRGN{});
}

TEST_F(Paths, BeginningDropsThePathBefore) {
    BeginPath(canvas.dc);
    Polygon({{1, 1}, {6, 1}, {6, 5}, {1, 5}});
    EndPath(canvas.dc);
    BeginPath(canvas.dc);
    Owned<HRGN> region(End());
    RECT box{};
    EXPECT_EQ(GetRgnBox(region, &box), NULLREGION);
}

TEST_F(Paths, StartAtThePositionWhenNothingWasMoved) {
    MoveToEx(canvas.dc, 1, 1, nullptr);
    BeginPath(canvas.dc);
    LineTo(canvas.dc, 6, 1);
    LineTo(canvas.dc, 6, 5);
    LineTo(canvas.dc, 1, 5);
    Owned<HRGN> region(End());
    Owned<HRGN> expected(CreateRectRgn(1, 1, 6, 5));
    EXPECT_TRUE(EqualRgn(region, expected));
}

TEST_F(Paths, AClosedFigureIsFollowedByANewOne) {
    BeginPath(canvas.dc);
    Polygon({{1, 1}, {5, 1}, {5, 4}, {1, 4}});
    EXPECT_TRUE(CloseFigure(canvas.dc));
    // The position is still (1, 4), where this figure starts.
    LineTo(canvas.dc, 3, 4);
    LineTo(canvas.dc, 3, 7);
    LineTo(canvas.dc, 1, 7);
    EXPECT_EQ(Filled(Owned<HRGN>(End())),
              (Picture{"..........", ".####.....", ".####.....", ".####.....", ".##.......",
                       ".##.......", ".##.......", ".........."}));
}

TEST_F(Paths, AreFilledByTheModeOfTheContext) {
    for (const int mode : {ALTERNATE, WINDING}) {
        EXPECT_NE(SetPolyFillMode(canvas.dc, mode), 0);
        BeginPath(canvas.dc);
        Polygon({{0, 0}, {6, 0}, {6, 6}, {0, 6}});
        Polygon({{2, 2}, {4, 2}, {4, 4}, {2, 4}});
        Owned<HRGN> region(End());
        EXPECT_EQ(PtInRegion(region, 3, 3), mode == WINDING);
    }
    EXPECT_EQ(SetPolyFillMode(canvas.dc, 3), 0);
    EXPECT_EQ(SetPolyFillMode(canvas.dc, ALTERNATE), WINDING);
}

TEST_F(Paths, ArcToJoinsAndArcStandsAlone) {
    // The arc's chord from (8, 4) to (4, 0) and the corner at (0, 0).
    BeginPath(canvas.dc);
    MoveToEx(canvas.dc, 0, 0, nullptr);
    ArcTo(canvas.dc, 0, 0, 9, 9, 8, 4, 4, 0);
    Owned<HRGN> joined(End());
    EXPECT_TRUE(PtInRegion(joined, 3, 1));
    BeginPath(canvas.dc);
    MoveToEx(canvas.dc, 0, 0, nullptr);
    Arc(canvas.dc, 0, 0, 9, 9, 8, 4, 4, 0);
    LineTo(canvas.dc, 3, 0);
    LineTo(canvas.dc, 3, 3);
    Owned<HRGN> alone(End());
    EXPECT_TRUE(PtInRegion(alone, 6, 2)) << "the arc, closed by its chord";
    EXPECT_FALSE(PtInRegion(alone, 4, 2)) << "no line leads to it";
    EXPECT_TRUE(PtInRegion(alone, 2, 1)) << "the triangle starts at the position before the arc";
}

TEST_F(Paths, SavingKeepsThePathAsItWas) {
    BeginPath(canvas.dc);
    Polygon({{1, 1}, {6, 1}, {6, 5}});
    const int level = SaveDC(canvas.dc);
    Polygon({{0, 0}, {9, 0}, {9, 7}, {0, 7}});
    RestoreDC(canvas.dc, level);
    LineTo(canvas.dc, 1, 5);
    Owned<HRGN> region(End());
    Owned<HRGN> expected(CreateRectRgn(1, 1, 6, 5));
    EXPECT_TRUE(EqualRgn(region, expected));
}

TEST_F(Paths, HugeFiguresFailCleanly) {
    constexpr int kLow = std::numeric_limits<int>::min();
    constexpr int kHigh = std::numeric_limits<int>::max();
    BeginPath(canvas.dc);
    Polygon({{kLow, kLow}, {kHigh, kLow}, {kHigh, kHigh}});
    EXPECT_EQ(End(), nullptr);
    BeginPath(canvas.dc);
    Arc(canvas.dc, kLow, kLow, kHigh, kHigh, 0, 0, 0, 0);
    EXPECT_EQ(End(), nullptr);
}

TEST_F(Paths, WrongHandlesFail) {
    EXPECT_FALSE(BeginPath(nullptr));
    EXPECT_FALSE(EndPath(nullptr));
    EXPECT_FALSE(CloseFigure(nullptr));
    EXPECT_EQ(PathToRegion(nullptr), nullptr);
    EXPECT_EQ(SetPolyFillMode(nullptr, WINDING), 0);
}

// A piece of a ring, as a colour wheel has it: in along one ray, round, back along the other, and
// the inner arc as a figure of its own that alternation cuts out.
class RingPiece {
public:
    RingPiece(HDC dc, double outer, double inner) : dc_(dc), outer_(outer), inner_(inner) {}

    HRGN Make(int from, int to) const {
        const POINT a0 = At(inner_, from), a1 = At(outer_, from);
        const POINT b0 = At(inner_, to), b1 = At(outer_, to);
        BeginPath(dc_);
        MoveToEx(dc_, a0.x, a0.y, nullptr);
        SetArcDirection(dc_, AD_COUNTERCLOCKWISE);
        const RECT out = Box(outer_), in = Box(inner_);
        ArcTo(dc_, out.left, out.top, out.right, out.bottom, a1.x, a1.y, b1.x, b1.y);
        LineTo(dc_, b0.x, b0.y);
        if (!(a0 == b0)) {
            SetArcDirection(dc_, AD_CLOCKWISE);
            Arc(dc_, in.left, in.top, in.right, in.bottom, b0.x, b0.y, a0.x, a0.y);
        }
        EndPath(dc_);
        return PathToRegion(dc_);
    }

private:
    static POINT At(double radius, int angle) {
        const double theta = (angle + 90) * std::acos(0.0) / 90;
        return {static_cast<LONG>(std::lround(75 + radius * std::cos(theta))),
                static_cast<LONG>(std::lround(75 - radius * std::sin(theta)))};
    }
    static RECT Box(double radius) {
        const LONG r = static_cast<LONG>(radius);
        return {75 - r, 75 - r, 75 + r, 75 + r};
    }

    const HDC dc_;
    const double outer_, inner_;
};

TEST_F(Paths, PiecesOfARingCoverItWithoutSeams) {
    for (const auto& [outer, inner] : {std::pair{75, 60}, std::pair{58, 43}, std::pair{41, 26}}) {
        const RingPiece piece(canvas.dc, outer, inner);
        Owned<HRGN> ring(CreateRectRgn(0, 0, 0, 0));
        for (int angle = 0; angle < 360; ++angle) {
            Owned<HRGN> region(piece.Make(angle, (angle + 2) % 360));
            RECT box{};
            ASSERT_NE(GetRgnBox(region, &box), NULLREGION) << outer << ' ' << angle;
            CombineRgn(ring, ring, region, RGN_OR);
        }
        for (int y = 0; y < 150; ++y) {
            for (int x = 0; x < 150; ++x) {
                const double r = std::hypot(x - 74.5, y - 74.5);
                if (r > inner + 1 && r < outer - 1.5) {
                    ASSERT_TRUE(PtInRegion(ring, x, y)) << outer << ": " << x << ' ' << y;
                }
                if (r < inner - 1.5 || r > outer + 0.5) {
                    ASSERT_FALSE(PtInRegion(ring, x, y)) << outer << ": " << x << ' ' << y;
                }
            }
        }
    }
}

}  // namespace
}  // namespace vxgui::gdi
