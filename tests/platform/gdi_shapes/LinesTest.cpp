#include <cmath>
#include <limits>
#include <random>

#include "Canvas.h"

namespace vxgui::gdi {
namespace {

using namespace test;
constexpr int kLow = std::numeric_limits<int>::min();
constexpr int kHigh = std::numeric_limits<int>::max();

POINT PositionOf(HDC dc) {
    POINT old{};
    MoveToEx(dc, 0, 0, &old);
    return old;
}

class Lines : public testing::Test {
protected:
    void Draw(int x0, int y0, int x1, int y1) {
        MoveToEx(canvas.dc, x0, y0, nullptr);
        EXPECT_TRUE(LineTo(canvas.dc, x1, y1));
    }
    void UsePen(HPEN pen) { SelectObject(canvas.dc, pen); }

    Canvas canvas{24, 12};
    Owned<HPEN> red{CreatePen(PS_SOLID, 1, kRed)};
};

TEST_F(Lines, LeaveOutTheLastPoint) {
    UsePen(red);
    Draw(2, 3, 7, 3);
    Draw(20, 2, 20, 5);
    Draw(12, 8, 8, 8);
    Draw(5, 5, 5, 5);
    EXPECT_EQ(canvas.Picture(kRed)[3], "..#####.............#...");
    EXPECT_EQ(canvas.Picture(kRed)[8], ".........####...........");
    EXPECT_EQ(canvas.Count(kRed), 5 + 3 + 4);
}

TEST_F(Lines, MoveThePosition) {
    POINT old{9, 9};
    EXPECT_TRUE(MoveToEx(canvas.dc, 3, 4, &old));
    EXPECT_EQ(old, (POINT{0, 0}));
    LineTo(canvas.dc, 6, 7);
    EXPECT_EQ(PositionOf(canvas.dc), (POINT{6, 7}));
}

TEST_F(Lines, SetTheAlphaByteToZero) {
    UsePen(red);
    Draw(0, 0, 2, 0);
    EXPECT_EQ(canvas.Word(1, 0), 0x00FF0000u);
    Owned<HPEN> wide(CreatePen(PS_SOLID, 3, kRed));
    UsePen(wide);
    Draw(10, 5, 14, 5);
    EXPECT_EQ(canvas.Word(12, 6), 0x00FF0000u);
}

TEST_F(Lines, AreDrawnBlackInAFreshContext) {
    Draw(0, 0, 3, 0);
    EXPECT_EQ(canvas.Picture(kBlack)[0].substr(0, 4), "###.");
}

TEST_F(Lines, KeepToTheClip) {
    UsePen(red);
    IntersectClipRect(canvas.dc, 4, 0, 10, 12);
    ExcludeClipRect(canvas.dc, 6, 0, 8, 12);
    Draw(0, 2, 24, 2);
    SelectClipRgn(canvas.dc, nullptr);
    EXPECT_EQ(canvas.Picture(kRed)[2], "....##..##..............");
}

// For each step along the longer axis the nearest pixel; midway the upper or left one.
TEST_F(Lines, TakeTheNearestPixelAtEachStep) {
    UsePen(red);
    std::mt19937 random(7);
    const RECT all{0, 0, 24, 12};
    for (int i = 0; i < 300; ++i) {
        const int x0 = random() % 24, y0 = random() % 12, x1 = random() % 24, y1 = random() % 12;
        FillRect(canvas.dc, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
        Draw(x0, y0, x1, y1);
        Picture expected(12, std::string(24, '.'));
        const int steps = std::max(std::abs(x1 - x0), std::abs(y1 - y0));
        for (int step = 0; step < steps; ++step) {
            const double x = x0 + static_cast<double>(step) * (x1 - x0) / steps;
            const double y = y0 + static_cast<double>(step) * (y1 - y0) / steps;
            const auto at = [](double v) { return static_cast<size_t>(std::ceil(v - 0.5 - 1e-9)); };
            expected[at(y)][at(x)] = '#';
        }
        ASSERT_EQ(canvas.Picture(kRed), expected) << x0 << ' ' << y0 << " to " << x1 << ' ' << y1;
    }
}

TEST_F(Lines, AreExactOverTheWholeCoordinateRange) {
    UsePen(red);
    Draw(kLow, kLow, kHigh, kHigh);
    for (int i = 0; i < 12; ++i) EXPECT_EQ(canvas.At(i, i), kRed);
    EXPECT_EQ(canvas.Count(kRed), 12);
    // Halfway between rows 1 and 2 lies half a pixel left of column 0.
    const RECT all{0, 0, 24, 12};
    FillRect(canvas.dc, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    Draw(kLow, 0, kHigh, 3);
    EXPECT_EQ(canvas.Picture(kRed)[2], std::string(24, '#'));
    EXPECT_EQ(canvas.Count(kRed), 24);
    Draw(kHigh, kLow, kLow, kHigh);
    Draw(0, kHigh, kHigh, kLow);
}

TEST_F(Lines, ANullPenMovesThePositionAlone) {
    UsePen(static_cast<HPEN>(GetStockObject(NULL_PEN)));
    Draw(0, 0, 9, 9);
    EXPECT_EQ(PositionOf(canvas.dc), (POINT{9, 9}));
    EXPECT_EQ(canvas.Word(0, 0), Canvas::kUntouched);
}

TEST_F(Lines, OfAWidePenAreCentredAndRound) {
    Owned<HPEN> wide(CreatePen(PS_SOLID, 3, kRed));
    UsePen(wide);
    Draw(5, 5, 12, 5);
    const Picture picture = canvas.Picture(kRed);
    for (const int row : {4, 5, 6}) EXPECT_EQ(picture[row].substr(5, 8), "########") << row;
    EXPECT_EQ(picture[5], "....##########..........");
    EXPECT_EQ(picture[3], std::string(24, '.'));
    EXPECT_EQ(picture[7], std::string(24, '.'));
}

TEST_F(Lines, OfAnEvenWidthLieMoreToTheTop) {
    Owned<HPEN> wide(CreatePen(PS_SOLID, 4, kRed));
    UsePen(wide);
    Draw(5, 5, 12, 5);
    for (int row = 0; row < 12; ++row) {
        EXPECT_EQ(canvas.At(8, row) == kRed, row >= 3 && row <= 6) << row;
    }
}

TEST_F(Lines, HugeWidePensAreSafe) {
    Owned<HPEN> wide(CreatePen(PS_SOLID, kHigh, kRed));
    UsePen(wide);
    Draw(kLow, kHigh, kHigh, kLow);
    EXPECT_EQ(canvas.Count(kRed), 24 * 12);
    Arc(canvas.dc, kLow, kLow, kHigh, kHigh, 0, 0, 0, 0);
}

TEST_F(Lines, BrokenPensLeaveGapsOrFillThem) {
    Owned<HPEN> dots(CreatePen(PS_DOT, 1, kRed));
    UsePen(dots);
    canvas.State().backColor = kBlue;
    Draw(0, 0, 14, 0);
    EXPECT_EQ(canvas.Picture(kRed)[0], "###...###...##..........");
    EXPECT_EQ(canvas.Picture(kBlue)[0], "...###...###............");
    canvas.State().backMode = TRANSPARENT;
    Draw(0, 1, 14, 1);
    EXPECT_EQ(canvas.Picture(kRed)[1], "###...###...##..........");
    EXPECT_EQ(canvas.Word(3, 1), Canvas::kUntouched);
}

TEST_F(Lines, WorkAtEveryDepth) {
    for (const int depth : {1, 8, 24}) {
        Canvas other(8, 3, depth);
        SelectObject(other.dc, GetStockObject(WHITE_PEN));
        MoveToEx(other.dc, 1, 1, nullptr);
        LineTo(other.dc, 6, 1);
        EXPECT_EQ(other.Picture(kWhite), (Picture{"........", ".#####..", "........"})) << depth;
    }
}

TEST(Pens, DescribeThemselves) {
    Owned<HPEN> pen(CreatePen(PS_DASH, 1, RGB(1, 2, 3)));
    LOGPEN record{};
    EXPECT_EQ(GetObjectA(pen, sizeof(record), &record), static_cast<int>(sizeof(record)));
    EXPECT_EQ(record.lopnStyle, PS_DASH);
    EXPECT_EQ(record.lopnWidth.x, 1);
    EXPECT_EQ(record.lopnColor, RGB(1, 2, 3));
    GetObjectA(GetStockObject(NULL_PEN), sizeof(record), &record);
    EXPECT_EQ(record.lopnStyle, PS_NULL);
}

struct PenCase {
    int style, width;
    UINT drawnStyle;
    LONG drawnWidth;
};

TEST(Pens, WiderThanAPixelAreNeverBroken) {
    for (const auto& [style, width, drawnStyle, drawnWidth] :
         {PenCase{PS_DASH, 2, PS_SOLID, 2}, PenCase{PS_DASHDOTDOT, 9, PS_SOLID, 9},
          PenCase{PS_DOT, 0, PS_DOT, 0}, PenCase{PS_NULL, 5, PS_NULL, 5},
          PenCase{PS_INSIDEFRAME, 3, PS_INSIDEFRAME, 3}, PenCase{PS_SOLID, -4, PS_SOLID, 4}}) {
        Owned<HPEN> pen(CreatePen(style, width, kRed));
        LOGPEN record{};
        GetObjectA(pen, sizeof(record), &record);
        EXPECT_EQ(record.lopnStyle, drawnStyle) << style << ' ' << width;
        EXPECT_EQ(record.lopnWidth.x, drawnWidth) << style << ' ' << width;
    }
}

TEST(Pens, UnknownStylesFail) {
    for (const int style : {-1, 7, kHigh}) EXPECT_EQ(CreatePen(style, 1, kRed), nullptr);
    EXPECT_EQ(CreatePen(PS_SOLID, kLow, kRed), nullptr);
}

TEST(Pens, StockPensHaveTheirPublishedColours) {
    LOGPEN record{};
    GetObjectA(GetStockObject(WHITE_PEN), sizeof(record), &record);
    EXPECT_EQ(record.lopnColor, kWhite);
    GetObjectA(GetStockObject(BLACK_PEN), sizeof(record), &record);
    EXPECT_EQ(record.lopnColor, kBlack);
    EXPECT_TRUE(DeleteObject(GetStockObject(BLACK_PEN)));
    EXPECT_EQ(GetObjectA(GetStockObject(BLACK_PEN), sizeof(record), &record),
              static_cast<int>(sizeof(record)));
}

class Arcs : public testing::Test {
protected:
    void SetUp() override { SelectObject(canvas.dc, red); }

    Canvas canvas{24, 24};
    Owned<HPEN> red{CreatePen(PS_SOLID, 1, kRed)};
};

TEST_F(Arcs, LieInTheBoxLessItsLastColumnAndRow) {
    EXPECT_TRUE(Arc(canvas.dc, 2, 3, 13, 14, 7, 0, 7, 0));
    for (const POINT& p : {POINT{2, 8}, POINT{12, 8}, POINT{7, 3}, POINT{7, 13}}) {
        EXPECT_EQ(canvas.At(p.x, p.y), kRed) << p;
    }
    for (int y = 0; y < 24; ++y) {
        for (int x = 0; x < 24; ++x) {
            if (canvas.At(x, y) != kRed) continue;
            EXPECT_NEAR(std::hypot(x - 7, y - 8), 5, 0.75) << x << ' ' << y;
        }
    }
}

TEST_F(Arcs, OfAReversedBoxAreTheSame) {
    Arc(canvas.dc, 13, 14, 2, 3, 7, 0, 7, 0);
    const Picture reversed = canvas.Picture(kRed);
    const RECT all{0, 0, 24, 24};
    FillRect(canvas.dc, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    Arc(canvas.dc, 2, 3, 13, 14, 7, 0, 7, 0);
    EXPECT_EQ(canvas.Picture(kRed), reversed);
}

TEST_F(Arcs, RunAnticlockwiseUnlessToldOtherwise) {
    EXPECT_EQ(SetArcDirection(canvas.dc, AD_COUNTERCLOCKWISE), AD_COUNTERCLOCKWISE);
    Arc(canvas.dc, 0, 0, 21, 21, 20, 10, 10, 0);  // from the right over the top
    EXPECT_EQ(canvas.At(17, 3), kRed);
    EXPECT_NE(canvas.At(3, 17), kRed);
    EXPECT_EQ(SetArcDirection(canvas.dc, AD_CLOCKWISE), AD_COUNTERCLOCKWISE);
    Arc(canvas.dc, 0, 0, 21, 21, 20, 10, 10, 0);
    EXPECT_EQ(canvas.At(3, 17), kRed);
    EXPECT_EQ(SetArcDirection(canvas.dc, 3), 0);
    EXPECT_EQ(SetArcDirection(canvas.dc, AD_COUNTERCLOCKWISE), AD_CLOCKWISE);
}

TEST_F(Arcs, NeitherUseNorMoveThePositionUnlessTheyAreArcTo) {
    MoveToEx(canvas.dc, 22, 22, nullptr);
    EXPECT_TRUE(Arc(canvas.dc, 0, 0, 11, 11, 10, 5, 5, 0));
    EXPECT_NE(canvas.At(22, 22), kRed);
    EXPECT_EQ(PositionOf(canvas.dc), (POINT{22, 22}));
    MoveToEx(canvas.dc, 20, 5, nullptr);
    EXPECT_TRUE(ArcTo(canvas.dc, 0, 0, 11, 11, 10, 5, 5, 0));
    EXPECT_EQ(canvas.Picture(kRed)[5].substr(10, 11), "###########");
    EXPECT_EQ(PositionOf(canvas.dc), (POINT{5, 0}));
}

TEST_F(Arcs, OfABrokenPenGoOnAcrossTheirCorners) {
    Owned<HPEN> dots(CreatePen(PS_DOT, 1, kRed));
    SelectObject(canvas.dc, dots);
    canvas.State().backColor = kBlue;
    Arc(canvas.dc, 0, 0, 23, 23, 0, 0, 0, 0);
    EXPECT_GT(canvas.Count(kRed), 20);
    EXPECT_NEAR(canvas.Count(kRed), canvas.Count(kBlue), 4);
}

TEST_F(Arcs, OfAnEmptyBoxDrawNothing) {
    MoveToEx(canvas.dc, 3, 3, nullptr);
    EXPECT_TRUE(Arc(canvas.dc, 5, 5, 5, 9, 0, 0, 1, 1));
    EXPECT_TRUE(ArcTo(canvas.dc, 5, 5, 9, 5, 0, 0, 1, 1));
    EXPECT_EQ(canvas.Count(kRed), 0);
    EXPECT_EQ(PositionOf(canvas.dc), (POINT{3, 3}));
}

TEST_F(Arcs, HugeBoxesAreSafe) {
    EXPECT_TRUE(Arc(canvas.dc, kLow, kLow, kHigh, kHigh, kLow, 0, 0, kHigh));
    EXPECT_TRUE(ArcTo(canvas.dc, kHigh, kHigh, kLow, kLow, kLow, 5, kLow, 5));
}

TEST(LineCalls, WrongHandlesFail) {
    EXPECT_FALSE(MoveToEx(nullptr, 1, 1, nullptr));
    EXPECT_FALSE(LineTo(nullptr, 1, 1));
    EXPECT_FALSE(Arc(nullptr, 0, 0, 9, 9, 0, 0, 1, 1));
    EXPECT_FALSE(ArcTo(nullptr, 0, 0, 9, 9, 0, 0, 1, 1));
    EXPECT_EQ(SetArcDirection(nullptr, AD_CLOCKWISE), 0);
}

}  // namespace
}  // namespace vxgui::gdi
