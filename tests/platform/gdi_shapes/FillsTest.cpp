#include <limits>

#include "Canvas.h"

namespace vxgui::gdi {
namespace {

using namespace test;
constexpr LONG kLow = std::numeric_limits<LONG>::min();
constexpr LONG kHigh = std::numeric_limits<LONG>::max();

class Fills : public testing::TestWithParam<int> {
protected:
    Canvas canvas{8, 6, GetParam()};
    Owned<HBRUSH> red{CreateSolidBrush(kRed)};
    Owned<HBRUSH> white{CreateSolidBrush(kWhite)};
};

INSTANTIATE_TEST_SUITE_P(EveryDepth, Fills, testing::Values(1, 8, 24, 32));

TEST_P(Fills, CoverTheRectangleAndNothingElse) {
    const RECT rect{2, 1, 7, 4};
    EXPECT_TRUE(FillRect(canvas.dc, &rect, white));
    EXPECT_EQ(canvas.Picture(kWhite),
              (Picture{"........", "..#####.", "..#####.", "..#####.", "........", "........"}));
}

TEST_P(Fills, PutAReversedRectangleInOrder) {
    const RECT rect{7, 4, 2, 1};
    EXPECT_TRUE(FillRect(canvas.dc, &rect, white));
    EXPECT_EQ(canvas.Picture(kWhite),
              (Picture{"........", "..#####.", "..#####.", "..#####.", "........", "........"}));
}

TEST_P(Fills, AreCutAtTheEdgesOfTheBitmap) {
    const RECT rect{kLow, kLow, kHigh, 2};
    EXPECT_TRUE(FillRect(canvas.dc, &rect, white));
    EXPECT_EQ(canvas.Count(kWhite), 16);
}

TEST_P(Fills, KeepToTheClip) {
    IntersectClipRect(canvas.dc, 1, 1, 5, 5);
    ExcludeClipRect(canvas.dc, 2, 2, 3, 4);
    const RECT all{0, 0, 8, 6};
    EXPECT_TRUE(FillRect(canvas.dc, &all, white));
    SelectClipRgn(canvas.dc, nullptr);
    EXPECT_EQ(canvas.Picture(kWhite),
              (Picture{"........", ".####...", ".#.##...", ".#.##...", ".####...", "........"}));
}

TEST_P(Fills, FramesAreOnePixelWideInside) {
    const RECT rect{1, 1, 7, 5};
    EXPECT_TRUE(FrameRect(canvas.dc, &rect, white));
    EXPECT_EQ(canvas.Picture(kWhite),
              (Picture{"........", ".######.", ".#....#.", ".#....#.", ".######.", "........"}));
}

TEST_P(Fills, InvertingTwiceRestores) {
    const RECT rect{1, 1, 7, 5};
    FillRect(canvas.dc, &rect, white);
    const Picture before = canvas.Picture(kWhite);
    const RECT part{6, 4, 0, 2};
    EXPECT_TRUE(InvertRect(canvas.dc, &part));
    EXPECT_NE(canvas.Picture(kWhite), before);
    EXPECT_EQ(canvas.Picture(kWhite)[1], before[1]);
    EXPECT_TRUE(InvertRect(canvas.dc, &part));
    EXPECT_EQ(canvas.Picture(kWhite), before);
}

TEST_P(Fills, RegionsAreFilledPaintedAndInverted) {
    Owned<HRGN> region(CreateRectRgn(1, 1, 4, 3));
    Owned<HRGN> other(CreateRectRgn(3, 2, 6, 5));
    CombineRgn(region, region, other, RGN_XOR);
    const Picture shape{"........", ".###....", ".##.##..", "...###..", "...###..", "........"};
    EXPECT_TRUE(FillRgn(canvas.dc, region, white));
    EXPECT_EQ(canvas.Picture(kWhite), shape);
    SelectObject(canvas.dc, GetStockObject(BLACK_BRUSH));
    EXPECT_TRUE(PaintRgn(canvas.dc, region));
    EXPECT_EQ(canvas.Count(kWhite), 0);
    const RECT all{0, 0, 8, 6};
    FillRect(canvas.dc, &all, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    EXPECT_TRUE(InvertRgn(canvas.dc, region));
    EXPECT_EQ(canvas.Count(canvas.At(1, 1)), 5 + 2 + 6);
}

TEST_P(Fills, ANullBrushDrawsNothing) {
    const RECT rect{1, 1, 7, 5};
    const auto none = static_cast<HBRUSH>(GetStockObject(NULL_BRUSH));
    const Picture before = canvas.Picture(canvas.At(0, 0));
    EXPECT_TRUE(FillRect(canvas.dc, &rect, none));
    EXPECT_TRUE(FrameRect(canvas.dc, &rect, none));
    EXPECT_EQ(canvas.Picture(canvas.At(0, 0)), before);
}

TEST_P(Fills, ASystemColourMayStandForABrush) {
    const RECT rect{0, 0, 8, 6};
    const auto window = reinterpret_cast<HBRUSH>(uintptr_t{COLOR_WINDOW} + 1);
    EXPECT_TRUE(FillRect(canvas.dc, &rect, window));
    EXPECT_EQ(canvas.Count(kWhite), 48);
    EXPECT_FALSE(FillRect(canvas.dc, &rect, reinterpret_cast<HBRUSH>(uintptr_t{60})));
}

TEST(FillsOf8Bits, TakeTheNearestColour) {
    Canvas canvas(4, 4, 8);
    Owned<HBRUSH> brush(CreateSolidBrush(RGB(200, 20, 30)));
    const RECT all{0, 0, 4, 4};
    FillRect(canvas.dc, &all, brush);
    EXPECT_EQ(canvas.Count(kRed), 16);
}

// What each call leaves in the words of a 32-bit bitmap, all of which were 0x5A5A5A5A.
TEST(FillsOf32Bits, SetTheAlphaByteToZero) {
    Canvas canvas(12, 4);
    Owned<HBRUSH> brush(CreateSolidBrush(RGB(1, 2, 3)));
    Owned<HRGN> region(CreateRectRgn(4, 0, 6, 2));
    const RECT first{0, 0, 2, 2}, second{2, 0, 4, 2};
    FillRect(canvas.dc, &first, brush);
    FrameRect(canvas.dc, &second, brush);
    FillRgn(canvas.dc, region, brush);
    OffsetRgn(region, 2, 0);
    FrameRgn(canvas.dc, region, brush, 1, 1);
    OffsetRgn(region, 2, 0);
    SelectObject(canvas.dc, brush);
    PaintRgn(canvas.dc, region);
    for (int x = 0; x < 10; ++x) EXPECT_EQ(canvas.Word(x, 1), 0x00010203u) << x;
    EXPECT_EQ(canvas.Word(10, 1), Canvas::kUntouched);
}

TEST(FillsOf32Bits, InvertingActsOnTheAlphaByteToo) {
    Canvas canvas(4, 4);
    const RECT rect{0, 0, 1, 1};
    Owned<HRGN> region(CreateRectRgn(1, 0, 2, 1));
    InvertRect(canvas.dc, &rect);
    InvertRgn(canvas.dc, region);
    EXPECT_EQ(canvas.Word(0, 0), ~Canvas::kUntouched);
    EXPECT_EQ(canvas.Word(1, 0), ~Canvas::kUntouched);
}

TEST(FrameRect, AnEmptyOrReversedRectangleFails) {
    Canvas canvas(4, 4);
    Owned<HBRUSH> brush(CreateSolidBrush(kRed));
    for (const RECT& rect : {RECT{3, 3, 1, 1}, RECT{1, 1, 1, 3}, RECT{kHigh, 0, kLow, 4}}) {
        EXPECT_FALSE(FrameRect(canvas.dc, &rect, brush));
    }
    EXPECT_EQ(canvas.Count(kRed), 0);
}

TEST(FrameRgn, PaintsInsideTheRegion) {
    Canvas canvas(10, 7);
    Owned<HBRUSH> brush(CreateSolidBrush(kRed));
    Owned<HRGN> region(CreateRectRgn(1, 1, 9, 6));
    EXPECT_TRUE(FrameRgn(canvas.dc, region, brush, 2, 1));
    EXPECT_EQ(canvas.Picture(kRed), (Picture{"..........", ".########.", ".##....##.", ".##....##.",
                                             ".##....##.", ".########.", ".........."}));
}

// A pixel in an inner corner has the region on all four sides: it isn't framed.
TEST(FrameRgn, FollowsEveryStepOfTheRegion) {
    Canvas canvas(9, 9);
    Owned<HBRUSH> brush(CreateSolidBrush(kRed));
    Owned<HRGN> region(CreateRectRgn(0, 0, 5, 9));
    Owned<HRGN> foot(CreateRectRgn(5, 4, 9, 9));
    CombineRgn(region, region, foot, RGN_OR);
    FrameRgn(canvas.dc, region, brush, 1, 1);
    EXPECT_EQ(canvas.Picture(kRed),
              (Picture{"#####....", "#...#....", "#...#....", "#...#....", "#....####", "#.......#",
                       "#.......#", "#.......#", "#########"}));
}

TEST(FrameRgn, WiderThanTheRegionFillsIt) {
    Canvas canvas(10, 10);
    Owned<HBRUSH> brush(CreateSolidBrush(kRed));
    Owned<HRGN> region(CreateRectRgn(1, 1, 9, 9));
    for (const int width : {20, kHigh, kLow}) {
        const RECT all{0, 0, 10, 10};
        FillRect(canvas.dc, &all, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
        EXPECT_TRUE(FrameRgn(canvas.dc, region, brush, width, width));
        EXPECT_EQ(canvas.Count(kRed), 64) << width;
    }
}

TEST(FrameRgn, OfNoWidthPaintsNothingAcross) {
    Canvas canvas(4, 5);
    Owned<HBRUSH> brush(CreateSolidBrush(kRed));
    Owned<HRGN> region(CreateRectRgn(0, 0, 4, 5));
    FrameRgn(canvas.dc, region, brush, 0, 1);
    EXPECT_EQ(canvas.Picture(kRed), (Picture{"####", "....", "....", "....", "####"}));
}

TEST(FillCalls, StaleAndWrongHandlesFail) {
    Canvas canvas(4, 4);
    const RECT rect{0, 0, 4, 4};
    HBRUSH stale = CreateSolidBrush(kRed);
    DeleteObject(stale);
    const auto white = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    Owned<HRGN> region(CreateRectRgn(0, 0, 4, 4));
    HRGN gone = CreateRectRgn(0, 0, 4, 4);
    DeleteObject(gone);
    for (HBRUSH wrong : {stale, HBRUSH{}, reinterpret_cast<HBRUSH>(canvas.bitmap)}) {
        EXPECT_FALSE(FillRect(canvas.dc, &rect, wrong));
        EXPECT_FALSE(FrameRect(canvas.dc, &rect, wrong));
        EXPECT_FALSE(FillRgn(canvas.dc, region, wrong));
        EXPECT_FALSE(FrameRgn(canvas.dc, region, wrong, 1, 1));
    }
    EXPECT_FALSE(FillRect(nullptr, &rect, white));
    EXPECT_FALSE(FillRect(canvas.dc, nullptr, white));
    EXPECT_FALSE(FrameRect(canvas.dc, nullptr, white));
    EXPECT_FALSE(InvertRect(canvas.dc, nullptr));
    EXPECT_FALSE(InvertRect(nullptr, &rect));
    EXPECT_FALSE(FillRgn(canvas.dc, gone, white));
    EXPECT_FALSE(FrameRgn(canvas.dc, gone, white, 1, 1));
    EXPECT_FALSE(PaintRgn(canvas.dc, gone));
    EXPECT_FALSE(InvertRgn(canvas.dc, gone));
    EXPECT_EQ(canvas.Word(0, 0), Canvas::kUntouched);
}

TEST(FillCalls, ADeletedContextFailsEverywhere) {
    HDC dc = CreateCompatibleDC(nullptr);
    Owned<HRGN> region(CreateRectRgn(0, 0, 1, 1));
    const auto white = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    RECT rect{0, 0, 1, 1};
    DeleteDC(dc);
    EXPECT_FALSE(FillRect(dc, &rect, white));
    EXPECT_FALSE(FrameRect(dc, &rect, white));
    EXPECT_FALSE(InvertRect(dc, &rect));
    EXPECT_FALSE(DrawEdge(dc, &rect, EDGE_RAISED, BF_RECT));
    EXPECT_FALSE(FillRgn(dc, region, white));
    EXPECT_FALSE(PaintRgn(dc, region));
    EXPECT_FALSE(InvertRgn(dc, region));
    EXPECT_FALSE(MoveToEx(dc, 1, 1, nullptr));
    EXPECT_FALSE(LineTo(dc, 2, 2));
    EXPECT_FALSE(BeginPath(dc));
    EXPECT_FALSE(SetBrushOrgEx(dc, 1, 1, nullptr));
    EXPECT_EQ(SelectClipRgn(dc, region), ERROR);
    EXPECT_EQ(GetClipRgn(dc, region), -1);
}

TEST(FillCalls, InvertingNeedsNoBrush) {
    Canvas canvas(2, 1);
    SelectObject(canvas.dc, GetStockObject(NULL_BRUSH));
    const RECT rect{0, 0, 1, 1};
    EXPECT_TRUE(InvertRect(canvas.dc, &rect));
    EXPECT_EQ(canvas.Word(0, 0), ~Canvas::kUntouched);
    EXPECT_EQ(canvas.Word(1, 0), Canvas::kUntouched);
}

}  // namespace
}  // namespace vxgui::gdi
