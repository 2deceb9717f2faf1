#include <gtest/gtest.h>

#include "Canvas.h"

namespace vxgui::gdi {
namespace {

int WidthOf(DWORD extent) { return static_cast<int16_t>(extent & 0xFFFF); }
int HeightOf(DWORD extent) { return static_cast<int>(extent >> 16); }

int TabbedWidth(HDC dc, std::u16string_view text, int count = 0, const int* tabs = nullptr) {
    return WidthOf(
        GetTabbedTextExtentW(dc, text.data(), static_cast<int>(text.size()), count, tabs));
}

TEST(TabbedText, WithoutTabsIsAsWideAndHighAsTheText) {
    Canvas canvas(1, 1);
    const DWORD extent = GetTabbedTextExtentW(canvas, u"plain", 5, 0, nullptr);
    EXPECT_EQ(WidthOf(extent), Extent(canvas, u"plain").cx);
    EXPECT_EQ(HeightOf(extent), Metrics(canvas).tmHeight);
}

TEST(TabbedText, AStopIsEightAverageWidths) {
    Canvas canvas(1, 1);
    const int stop = 8 * Metrics(canvas).tmAveCharWidth;
    EXPECT_EQ(TabbedWidth(canvas, u"\t"), stop);
    EXPECT_EQ(TabbedWidth(canvas, u"\t\t"), 2 * stop);
    EXPECT_EQ(TabbedWidth(canvas, u"ab\tc"), stop + Extent(canvas, u"c").cx);
}

TEST(TabbedText, OnePositionIsTheDistanceOfAllStops) {
    Canvas canvas(1, 1);
    const int tabs[] = {30};
    EXPECT_EQ(TabbedWidth(canvas, u"\t\t\t", 1, tabs), 90);
}

TEST(TabbedText, SeveralPositionsAreUsedUpFirst) {
    Canvas canvas(1, 1);
    const int stop = 8 * Metrics(canvas).tmAveCharWidth;
    const int tabs[] = {10, 25};
    EXPECT_EQ(TabbedWidth(canvas, u"\t", 2, tabs), 10);
    EXPECT_EQ(TabbedWidth(canvas, u"\t\t", 2, tabs), 25);
    EXPECT_EQ(TabbedWidth(canvas, u"\t\t\t", 2, tabs), stop);
}

TEST(TabbedText, TextThatEndsOnAStopMovesOnAFullStop) {
    Canvas canvas(1, 1);
    const int tabs[] = {static_cast<int>(Extent(canvas, u"ab").cx)};
    EXPECT_EQ(TabbedWidth(canvas, u"ab\t", 1, tabs), 2 * tabs[0]);
}

TEST(TabbedText, StopsAreCountedFromTheOrigin) {
    Canvas canvas(200, 30);
    const int tabs[] = {50};
    const LONG answer = TabbedTextOutW(canvas, 20, 3, u"\t|", 2, 1, tabs, 10);
    const int right = canvas.Ink().right;
    canvas.Clear();
    TextOutW(canvas, 60, 3, u"|", 1);
    EXPECT_EQ(right, canvas.Ink().right);
    EXPECT_EQ(WidthOf(static_cast<DWORD>(answer)), 40 + Extent(canvas, u"|").cx);
    EXPECT_EQ(HeightOf(static_cast<DWORD>(answer)), Metrics(canvas).tmHeight);
}

TEST(TabbedText, AnOriginToTheRightStillHasStops) {
    Canvas canvas(200, 30);
    const int tabs[] = {50};
    const LONG answer = TabbedTextOutW(canvas, 20, 3, u"\t|", 2, 1, tabs, 90);
    EXPECT_EQ(WidthOf(static_cast<DWORD>(answer)), 20 + Extent(canvas, u"|").cx) << "40 is a stop";
}

TEST(TabbedText, JustificationIsSpreadOverAllPartsOfALine) {
    Canvas canvas(1, 1);
    const int tabs[] = {200};
    const int plain = Extent(canvas, u"d e f").cx;
    SetTextJustification(canvas, 7, 5);  // 2 2 1 1 1
    EXPECT_EQ(TabbedWidth(canvas, u"a b c\td e f", 1, tabs), 200 + plain + 2);
}

TEST(TabbedText, AnOpaqueBackgroundCoversTheTabs) {
    Canvas canvas(200, 30);
    SetBkMode(canvas, OPAQUE);
    SetBkColor(canvas, RGB(0, 0, 255));
    const int tabs[] = {50};
    TabbedTextOutW(canvas, 5, 3, u"\t ", 2, 1, tabs, 5);
    EXPECT_EQ(canvas.Ink().left, 5);
    EXPECT_EQ(canvas.Ink().Width(), 50 + Extent(canvas, u" ").cx);
}

TEST(TabbedText, AlignmentMovesTheLineAsAWhole) {
    Canvas canvas(200, 30);
    const int tabs[] = {50};
    SetTextAlign(canvas, TA_RIGHT);
    TabbedTextOutW(canvas, 150, 3, u"|\t|", 3, 1, tabs, 150);
    const Box ink = canvas.Ink();
    EXPECT_LT(ink.left, 110);
    EXPECT_LE(ink.right, 150);
}

TEST(TabbedText, ADistanceOfNothingStillMovesOn) {
    Canvas canvas(1, 1);
    const int tabs[] = {0};
    EXPECT_EQ(TabbedWidth(canvas, u"\t\t", 1, tabs), 2);
    const int back[] = {-5};
    EXPECT_EQ(TabbedWidth(canvas, u"\t\t", 1, back), 2);
}

}  // namespace
}  // namespace vxgui::gdi
