#include <gtest/gtest.h>

#include "Canvas.h"

namespace vxgui::gdi {
namespace {

int LineOf(HDC dc) { return Metrics(dc).tmHeight; }
int WidthOf(HDC dc, std::u16string_view text) { return Extent(dc, text).cx; }

/// What calculation makes of a rectangle of a width.
RECT Measured(HDC dc, std::u16string_view text, int width, UINT flags, int* result = nullptr) {
    RECT rect{10, 20, 10 + width, 25};
    const int height = Draw(dc, text, rect, flags | DT_CALCRECT);
    if (result) *result = height;
    return rect;
}

TEST(DrawTextLayout, TheResultIsTheHeight) {
    Canvas canvas(100, 100);
    RECT rect{0, 0, 100, 100};
    EXPECT_EQ(Draw(canvas, u"one", rect, 0), LineOf(canvas));
    EXPECT_EQ(Draw(canvas, u"one\ntwo\nthree", rect, 0), 3 * LineOf(canvas));
    EXPECT_EQ(rect.right, 100) << "drawing leaves the rectangle";
}

TEST(DrawTextLayout, CalculationKeepsLeftAndTopAndDrawsNothing) {
    Canvas canvas(100, 100);
    int result = 0;
    const RECT rect = Measured(canvas, u"one\nthree\ntwo", 1, 0, &result);
    EXPECT_EQ(rect.left, 10);
    EXPECT_EQ(rect.top, 20);
    EXPECT_EQ(rect.right, 10 + WidthOf(canvas, u"three"));
    EXPECT_EQ(rect.bottom, 20 + result);
    EXPECT_EQ(result, 3 * LineOf(canvas)) << "the bottom edge stops nothing";
    EXPECT_TRUE(canvas.Blank());
}

struct BreakRow {
    std::u16string_view text;
    int lines;
};
class LineBreak : public testing::TestWithParam<BreakRow> {};
INSTANTIATE_TEST_SUITE_P(, LineBreak,
                         testing::Values(BreakRow{u"a\rb", 2}, BreakRow{u"a\nb", 2},
                                         BreakRow{u"a\r\nb", 2}, BreakRow{u"a\n\rb", 2},
                                         BreakRow{u"a\n\nb", 3}, BreakRow{u"a\r\rb", 3},
                                         BreakRow{u"a\r\n\r\nb", 3}, BreakRow{u"a\n", 1},
                                         BreakRow{u"a\r\n", 1}, BreakRow{u"a\n\n", 2},
                                         BreakRow{u"\n", 1}, BreakRow{u"\na", 2}));

TEST_P(LineBreak, IsOneOfFourAndATrailingOneAddsNoLine) {
    Canvas canvas(1, 1);
    int result = 0;
    Measured(canvas, GetParam().text, 100, 0, &result);
    EXPECT_EQ(result, GetParam().lines * LineOf(canvas));
    Measured(canvas, GetParam().text, 100, DT_WORDBREAK, &result);
    EXPECT_EQ(result, GetParam().lines * LineOf(canvas));
}

TEST(DrawTextLayout, ASingleLineShowsBreaksAsGlyphs) {
    Canvas canvas(1, 1);
    int result = 0;
    const RECT rect = Measured(canvas, u"a\r\nb", 1, DT_SINGLELINE | DT_WORDBREAK, &result);
    EXPECT_EQ(result, LineOf(canvas));
    EXPECT_EQ(rect.right - rect.left, WidthOf(canvas, u"a\r\nb"));
    EXPECT_GT(rect.right - rect.left, WidthOf(canvas, u"ab"));
}

TEST(DrawTextLayout, ASingleLineSwitchesWordBreakOff) {
    Canvas canvas(1, 1);
    int result = 0;
    Measured(canvas, u"one two three", 20, DT_SINGLELINE | DT_WORDBREAK, &result);
    EXPECT_EQ(result, LineOf(canvas));
}

TEST(DrawTextLayout, VerticalAlignmentNeedsASingleLine) {
    Canvas canvas(100, 100);
    for (const UINT flags : {UINT{DT_VCENTER}, UINT{DT_BOTTOM}}) {
        canvas.Clear();
        RECT rect{0, 10, 100, 90};
        EXPECT_EQ(Draw(canvas, u"H", rect, flags), LineOf(canvas));
        EXPECT_LT(canvas.Ink().top, 20);
    }
}

TEST(DrawTextLayout, CentresWithBothDivisionsTruncated) {
    Canvas canvas(100, 100);
    const int line = LineOf(canvas);
    for (int height = 30; height < 34; ++height) {
        canvas.Clear();
        RECT rect{0, 10, 100, 10 + height};
        const int top = 10 + height / 2 - line / 2;
        EXPECT_EQ(Draw(canvas, u"H", rect, DT_SINGLELINE | DT_VCENTER), top + line - 10);
        EXPECT_EQ(canvas.Ink().bottom, top + Metrics(canvas).tmAscent);
    }
}

TEST(DrawTextLayout, StandsOnTheBottom) {
    Canvas canvas(100, 100);
    RECT rect{0, 10, 100, 60};
    EXPECT_EQ(Draw(canvas, u"H", rect, DT_SINGLELINE | DT_BOTTOM), 50);
    EXPECT_EQ(canvas.Ink().bottom, 60 - Metrics(canvas).tmDescent);
}

TEST(DrawTextLayout, AResultOfNothingIsOne) {
    Canvas canvas(100, 100);
    RECT rect{0, 10, 100, 10};
    EXPECT_EQ(Draw(canvas, u"H", rect, DT_SINGLELINE | DT_BOTTOM), 1);
}

TEST(DrawTextLayout, AlignsEachLineOnItsOwn) {
    Canvas canvas(200, 60);
    const int line = LineOf(canvas);
    RECT rect{20, 0, 180, 60};
    Draw(canvas, u"|\n|||||", rect, DT_RIGHT);
    const auto first = canvas.InkOfRow(line / 2);
    const auto second = canvas.InkOfRow(line + line / 2);
    EXPECT_EQ(first.back(), second.back());
    EXPECT_GT(first.front(), second.front());
    canvas.Clear();
    Draw(canvas, u"|||", rect, DT_CENTER);
    const int left = 20 + (160 - WidthOf(canvas, u"|||")) / 2;
    const int centred = canvas.Ink().left;
    canvas.Clear();
    TextOutW(canvas, left, 0, u"|||", 3);
    EXPECT_EQ(centred, canvas.Ink().left);
}

TEST(DrawTextLayout, ClipsToTheRectangleUnlessToldNot) {
    Canvas canvas(200, 60);
    RECT rect{20, 4, 40, 10};
    Draw(canvas, u"MMMMMMMM", rect, 0);
    const Box clipped = canvas.Ink();
    EXPECT_GE(clipped.top, 4);
    EXPECT_LE(clipped.bottom, 10);
    EXPECT_LE(clipped.right, 40);
    Draw(canvas, u"MMMMMMMM", rect, DT_NOCLIP);
    EXPECT_GT(canvas.Ink().right, 60);
    EXPECT_GT(canvas.Ink().bottom, 10);
}

struct HeightRow {
    int halves;  ///< height of the rectangle in half lines
    int lines;
};
class BottomEdge : public testing::TestWithParam<HeightRow> {};
INSTANTIATE_TEST_SUITE_P(, BottomEdge,
                         testing::Values(HeightRow{0, 1}, HeightRow{1, 1}, HeightRow{2, 2},
                                         HeightRow{3, 2}, HeightRow{4, 3}, HeightRow{20, 5}));

TEST_P(BottomEdge, EndsTheDrawingBehindTheFirstLineThatPassesIt) {
    Canvas canvas(100, 100);
    RECT rect{0, 0, 100, GetParam().halves * LineOf(canvas) / 2};
    EXPECT_EQ(Draw(canvas, u"1\n2\n3\n4\n5", rect, 0), GetParam().lines * LineOf(canvas));
    EXPECT_EQ(Draw(canvas, u"1\n2\n3\n4\n5", rect, DT_NOCLIP), 5 * LineOf(canvas));
}

TEST(DrawTextLayout, AnEditControlShowsNoPartOfALine) {
    Canvas canvas(100, 100);
    const int line = LineOf(canvas);
    RECT rect{0, 0, 100, 2 * line + line / 2};
    EXPECT_EQ(Draw(canvas, u"1\n2\n3\n4", rect, DT_EDITCONTROL), 2 * line);
    EXPECT_LE(canvas.Ink().bottom, 2 * line);
    rect.bottom = line / 2;
    EXPECT_EQ(Draw(canvas, u"1\n2", rect, DT_EDITCONTROL), line) << "the first is always drawn";
}

struct WrapRow {
    std::u16string_view text;
    std::u16string_view fits;  ///< the rectangle is as wide as this
    UINT flags;
    int lines;
    std::u16string_view widest;
};
class WordBreak : public testing::TestWithParam<WrapRow> {};
INSTANTIATE_TEST_SUITE_P(
    , WordBreak,
    testing::Values(WrapRow{u"one two three", u"one two", 0, 2, u"one two"},
                    WrapRow{u"one two three", u"one", 0, 3, u"three"},
                    WrapRow{u"one two three", u"one two three", 0, 1, u"one two three"},
                    // One space is swallowed; the other stays at the line's end.
                    WrapRow{u"aaa  bbb", u"aaa ", 0, 2, u"aaa "},
                    // ... or begins the next line when it doesn't fit.
                    WrapRow{u"aaa  bbb", u"aaa", 0, 2, u" bbb"},
                    WrapRow{u"aaa ", u"aaa", 0, 1, u"aaa"},
                    WrapRow{u"aaa bbb\nc", u"aaa", 0, 3, u"bbb"},
                    // A word that is too long stays whole and widens the rectangle.
                    WrapRow{u"a incomprehensible b", u"abc", 0, 3, u"incomprehensible"},
                    WrapRow{u"nnnnnnnnnn", u"nnnn", DT_EDITCONTROL, 3, u"nnnn"},
                    WrapRow{u"nn nnnnnnnn", u"nnnn", DT_EDITCONTROL, 3, u"nnnn"},
                    WrapRow{u"nnn", u"", DT_EDITCONTROL, 3, u"n"},
                    // Scripts without spaces wrap between characters, unless told not to.
                    WrapRow{u"\u4E2D\u6587\u5B57\u4F53", u"\u4E2D\u6587", 0, 2, u"\u4E2D\u6587"},
                    WrapRow{u"\u4E2D\u6587\u5B57\u4F53", u"\u4E2D\u6587", DT_NOFULLWIDTHCHARBREAK,
                            1, u"\u4E2D\u6587\u5B57\u4F53"},
                    // A full stop doesn't begin a line.
                    WrapRow{u"\u4E2D\u6587\u3002", u"\u4E2D\u6587", 0, 2, u"\u6587\u3002"},
                    // Latin words don't wrap at hyphens.
                    WrapRow{u"well-known", u"well-", 0, 1, u"well-known"}));

TEST_P(WordBreak, WrapsAtSpaces) {
    Canvas canvas(200, 100);
    const WrapRow& row = GetParam();
    int result = 0;
    const RECT rect =
        Measured(canvas, row.text, WidthOf(canvas, row.fits), DT_WORDBREAK | row.flags, &result);
    EXPECT_EQ(result, row.lines * LineOf(canvas));
    EXPECT_EQ(rect.right - rect.left, WidthOf(canvas, row.widest));
    // What measures one way draws the same way.
    RECT drawn{0, 0, WidthOf(canvas, row.fits), 100};
    EXPECT_EQ(Draw(canvas, row.text, drawn, DT_WORDBREAK | row.flags), result);
}

TEST(DrawTextLayout, WrappedLinesAreDrawnOneBelowTheOther) {
    Canvas canvas(200, 60), expected(200, 60);
    RECT rect{5, 2, 5 + WidthOf(canvas, u"one two"), 60};
    Draw(canvas, u"one two three", rect, DT_WORDBREAK);
    TextOutW(expected, 5, 2, u"one two", 7);
    TextOutW(expected, 5, 2 + LineOf(canvas), u"three", 5);
    for (int y = 0; y < 60; ++y) {
        for (int x = 0; x < 200; ++x) ASSERT_EQ(canvas.Word(x, y), expected.Word(x, y));
    }
}

TEST(DrawTextLayout, TabsNeedExpandTabs) {
    Canvas canvas(1, 1);
    const int stop = 8 * Metrics(canvas).tmAveCharWidth;
    const auto width = [&](std::u16string_view text, UINT flags) {
        const RECT rect = Measured(canvas, text, 1000, flags);
        return static_cast<int>(rect.right - rect.left);
    };
    EXPECT_EQ(width(u"a\tb", DT_EXPANDTABS), stop + WidthOf(canvas, u"b"));
    EXPECT_EQ(width(u"a\tb", DT_EXPANDTABS | DT_SINGLELINE), stop + WidthOf(canvas, u"b"));
    EXPECT_EQ(width(u"a\tb", DT_EXPANDTABS | DT_WORDBREAK), stop + WidthOf(canvas, u"b"));
    EXPECT_EQ(width(u"a\tb", 0), WidthOf(canvas, u"a\tb"));
    EXPECT_EQ(width(u"\t\tb", DT_EXPANDTABS), 2 * stop + WidthOf(canvas, u"b"));
}

TEST(DrawTextLayout, TabStopTakesItsLengthFromTheSecondByte) {
    Canvas canvas(100, 40);
    const int average = Metrics(canvas).tmAveCharWidth;
    // The length 0x04 lies where "calculation only" would: it must not be seen as that.
    RECT rect{0, 0, 100, 40};
    EXPECT_EQ(Draw(canvas, u"\t|", rect, DT_EXPANDTABS | DT_TABSTOP | 4 << 8), LineOf(canvas));
    const int left = canvas.Ink().left;
    canvas.Clear();
    TextOutW(canvas, 4 * average, 0, u"|", 1);
    EXPECT_EQ(left, canvas.Ink().left);
    EXPECT_EQ(rect.right, 100);
}

TEST(DrawTextLayout, TabStopHidesTheFlagsBeneathItsLength) {
    Canvas canvas(100, 40);
    // 0x08 is "no prefix", 0x80 "end ellipsis": both are only the length of the stops here.
    RECT rect{0, 0, 20, 40};
    Draw(canvas, u"&MMMMMM", rect, DT_TABSTOP | DT_NOPREFIX | DT_END_ELLIPSIS);
    Canvas expected(100, 40);
    Draw(expected, u"&MMMMMM", rect, 0);
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 100; ++x) ASSERT_EQ(canvas.Word(x, y), expected.Word(x, y));
    }
}

TEST(DrawTextLayout, ExternalLeadingIsAddedToEveryLine) {
    Canvas canvas(100, 200);
    canvas.Font("Noto Sans Tai Tham", -200);
    const TEXTMETRICA metrics = Metrics(canvas);
    ASSERT_EQ(metrics.tmExternalLeading, 7) << "35 units of 1000";
    int result = 0;
    Measured(canvas, u"a\nb", 100, DT_EXTERNALLEADING, &result);
    EXPECT_EQ(result, 2 * (metrics.tmHeight + metrics.tmExternalLeading));
}

TEST(DrawTextLayout, TextOfNothingIsAnEmptyRectangle) {
    Canvas canvas(10, 10);
    for (const std::u16string_view text : {u"", u"x"}) {
        Buffer buffer(text);
        const int count = text.empty() ? -1 : 0;
        RECT rect{10, 20, 50, 60};
        EXPECT_EQ(DrawTextW(canvas, buffer, count, &rect, DT_CALCRECT), 1);
        EXPECT_EQ(rect.right, 10);
        EXPECT_EQ(rect.bottom, 20);
        EXPECT_EQ(DrawTextW(canvas, buffer, count, &rect, DT_CALCRECT | DT_SINGLELINE),
                  LineOf(canvas));
        EXPECT_EQ(rect.right, 10);
        EXPECT_EQ(rect.bottom, 20 + LineOf(canvas));
    }
}

TEST(DrawTextLayout, InternalMeasuresWithTheSystemFont) {
    Canvas canvas(10, 10);
    canvas.Font("DejaVu Sans", -40);
    int result = 0;
    Measured(canvas, u"a", 100, DT_INTERNAL, &result);
    SelectObject(canvas, GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(result, LineOf(canvas));
}

TEST(DrawTextLayout, TheContextsSpacingCounts) {
    Canvas canvas(10, 10);
    const int plain = WidthOf(canvas, u"a b");
    SetTextCharacterExtra(canvas, 5);
    EXPECT_EQ(Measured(canvas, u"a b", 1, 0).right, 10 + plain + 15);
    SetTextCharacterExtra(canvas, 0);
    SetTextJustification(canvas, 9, 1);
    EXPECT_EQ(Measured(canvas, u"a b", 1, 0).right, 10 + plain + 9);
}

TEST(DrawTextLayout, TheContextsAlignmentCounts) {
    Canvas canvas(100, 40), expected(100, 40);
    SetTextAlign(canvas, TA_CENTER | TA_BOTTOM);
    RECT rect{50, 20, 90, 40};
    Draw(canvas, u"ab", rect, DT_NOCLIP);
    TextOutW(expected, 50 - WidthOf(canvas, u"ab") / 2, 20 - LineOf(canvas), u"ab", 2);
    EXPECT_EQ(canvas.Ink(), expected.Ink());
}

TEST(DrawTextLayout, AnsiTextIsConverted) {
    Canvas canvas(100, 40);
    RECT rect{0, 0, 1, 1};
    EXPECT_EQ(DrawTextA(canvas, "caf\xE9", -1, &rect, DT_CALCRECT), LineOf(canvas));
    EXPECT_EQ(rect.right, WidthOf(canvas, u"caf\u00E9"));
    EXPECT_EQ(DrawTextA(canvas, "caf\xE9", 2, &rect, DT_CALCRECT), LineOf(canvas));
    EXPECT_EQ(rect.right, WidthOf(canvas, u"ca"));
    EXPECT_EQ(DrawTextA(canvas, nullptr, -1, &rect, 0), 0);
    EXPECT_EQ(DrawTextA(canvas, "a", -2, &rect, 0), 0);
    EXPECT_EQ(DrawTextA(canvas, "a", 1, nullptr, 0), 0);
}

}  // namespace
}  // namespace vxgui::gdi
