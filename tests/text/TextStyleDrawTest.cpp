#include <gtest/gtest.h>

#include <chrono>
#include <climits>
#include <cmath>

#include "tests/text/TextCanvas.h"
#include "tests/text/TextSupport.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {
namespace {

using test::TextCanvas;
using test::TextRecorder;
using test::WideCall;

constexpr int32_t kInk = 0x402010;     // a COLORREF
constexpr int32_t kShadow = 0x30A0F0;  // another

Ref<TextStyle> StyleOf(int32_t drawStyle, int32_t horz = 0, int32_t vert = 0) {
    const Ref<TextStyle> style = New<TextStyle>();
    style->Create(kInk, horz, vert, drawStyle, 4, kShadow, 4, 3, 2);
    return style;
}

void Draw(TextCanvas& canvas, const Ref<TextStyle>& style, const String& text, uint32_t flags,
          gdi::RECT rect = {5, 4, 195, 96}) {
    style->DrawText(canvas.dc, text, flags, canvas.font, rect.left, rect.top, rect.right,
                    rect.bottom);
}

gdi::SIZE ExtentOf(TextCanvas& canvas, const String& text) {
    gdi::SIZE size{};
    gdi::GetTextExtentPoint32W(canvas.dc, text.data(), static_cast<int>(text.size()), &size);
    return size;
}

void ExpectRect(const gdi::RECT& actual, const gdi::RECT& expected) {
    EXPECT_EQ(actual.left, expected.left);
    EXPECT_EQ(actual.top, expected.top);
    EXPECT_EQ(actual.right, expected.right);
    EXPECT_EQ(actual.bottom, expected.bottom);
}

TEST(TextStyleFlags, TheAlignmentOfTheStyleReplacesThatOfTheCaller) {
    const uint32_t horz[] = {0, DT_CENTER, DT_RIGHT, 0};
    const uint32_t vert[] = {0, DT_VCENTER, DT_BOTTOM, 0};
    TextCanvas canvas(200, 100);
    for (int32_t h = 0; h < 4; ++h) {
        for (int32_t v = 0; v < 4; ++v) {
            const Ref<TextStyle> style = StyleOf(0, h, v);
            const uint32_t all = DT_CENTER | DT_RIGHT | DT_VCENTER | DT_BOTTOM;
            Draw(canvas, style, "text", DT_SINGLELINE | all);
            EXPECT_EQ(style->DTFlags, DT_SINGLELINE | DT_END_ELLIPSIS | horz[h] | vert[v]);
        }
    }
}

TEST(TextStyleFlags, RightAlignmentInTheFlagsIsIgnored) {
    TextCanvas left(200, 100), plain(200, 100);
    Draw(left, StyleOf(0), "text", DT_SINGLELINE | DT_RIGHT);
    Draw(plain, StyleOf(0), "text", DT_SINGLELINE);
    EXPECT_FALSE(plain.IsBlank());
    EXPECT_EQ(left.picture.pixels, plain.picture.pixels);
}

TEST(TextStyleFlags, AnyEllipsisOfTheCallerStopsTheEndEllipsis) {
    TextCanvas canvas(200, 100);
    const Ref<TextStyle> style = StyleOf(0);
    for (uint32_t ellipsis : {DT_WORD_ELLIPSIS, DT_PATH_ELLIPSIS, DT_END_ELLIPSIS}) {
        Draw(canvas, style, "text", DT_SINGLELINE | ellipsis);
        EXPECT_EQ(style->DTFlags, DT_SINGLELINE | ellipsis);
    }
}

TEST(TextStyleFlags, MeasuringAddsNoEllipsis) {
    TextCanvas canvas(200, 100);
    const TextRecorder recorder;
    StyleOf(0, 1, 2)->TextHeight(canvas.dc, "text", DT_RIGHT | DT_WORDBREAK, canvas.font, 90);
    ASSERT_EQ(recorder.calls.size(), 1u);
    EXPECT_EQ(recorder.calls[0].flags, DT_WORDBREAK | DT_CENTER | DT_BOTTOM | DT_CALCRECT);
    EXPECT_EQ(recorder.calls[0].count, -1);
    ExpectRect(recorder.calls[0].rect, {0, 0, 90, INT_MAX});
}

TEST(TextStyleVertical, ASingleLineIsCentredByThePlatform) {
    TextCanvas canvas(200, 100);
    const TextRecorder recorder;
    const Ref<TextStyle> style = StyleOf(0, 0, TextAlignVertCenter);
    Draw(canvas, style, "text", DT_SINGLELINE);
    ASSERT_EQ(recorder.calls.size(), 1u);
    EXPECT_EQ(recorder.calls[0].name, "draw");
    EXPECT_EQ(recorder.calls[0].flags, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS);
    ExpectRect(recorder.calls[0].rect, {5, 4, 195, 96});
    EXPECT_EQ(style->DTFlags, recorder.calls[0].flags);
}

TEST(TextStyleVertical, OtherTextIsMeasuredAndItsRectangleMovedWhole) {
    TextCanvas canvas(200, 100);
    for (const int32_t bottom : {96, 97, 98, 99, 6}) {
        const TextRecorder recorder;
        const Ref<TextStyle> style = StyleOf(0, 0, TextAlignVertCenter);
        Draw(canvas, style, "some words that wrap around once", 0, {5, 4, 120, bottom});
        const uint32_t flags = DT_WORDBREAK | DT_END_ELLIPSIS;
        EXPECT_EQ(style->DTFlags, flags);
        ASSERT_EQ(recorder.calls.size(), 2u);
        EXPECT_EQ(recorder.calls[0].name, "measure");
        EXPECT_EQ(recorder.calls[0].flags, flags | DT_CALCRECT);
        gdi::RECT measured{5, 4, 120, bottom};
        std::u16string text = recorder.calls[0].text;
        gdi::DrawTextW(canvas.dc, text.data(), -1, &measured, flags | DT_CALCRECT);
        const int spare = measured.top - measured.bottom - 4 + bottom;
        const int down = static_cast<int>(std::nearbyint(spare / 2.0));
        EXPECT_EQ(recorder.calls[1].flags, flags);
        ExpectRect(recorder.calls[1].rect, {5, 4 + down, 120, bottom + down});
    }
}

TEST(TextStyleSpread, OneCharacterIsCentredAndTheExtraStays) {
    TextCanvas canvas(200, 100);
    for (const char* text : {"x", ""}) {
        const TextRecorder recorder;
        gdi::SetTextCharacterExtra(canvas.dc, 7);
        const Ref<TextStyle> style = StyleOf(0, TextAlignHorzJustifyChar);
        Draw(canvas, style, text, DT_SINGLELINE);
        EXPECT_EQ(style->DTFlags, DT_SINGLELINE | DT_CENTER | DT_END_ELLIPSIS);
        ASSERT_EQ(recorder.calls.size(), 1u);
        EXPECT_EQ(recorder.calls[0].name, "line");
        EXPECT_EQ(recorder.calls[0].count, static_cast<int>(String(text).size()));
        EXPECT_EQ(recorder.calls[0].flags, gdi::ETO_CLIPPED);
        EXPECT_EQ(recorder.calls[0].extra, 7);
        EXPECT_EQ(gdi::GetTextCharacterExtra(canvas.dc), 7);
    }
}

TEST(TextStyleSpread, LettersAreSpreadByTheCharacterExtra) {
    TextCanvas canvas(200, 100);
    const String text = "letters";
    const gdi::SIZE size = ExtentOf(canvas, text);
    const int tops[] = {4, 4 + (92 - size.cy) / 2, 96 - size.cy, 4};
    for (int32_t vert = 0; vert < 4; ++vert) {
        const TextRecorder recorder;
        gdi::SetTextCharacterExtra(canvas.dc, 7);
        // A single line, as other text is also moved by what the platform measures.
        Draw(canvas, StyleOf(0, TextAlignHorzJustifyChar, vert), text, DT_SINGLELINE);
        ASSERT_EQ(recorder.calls.size(), 1u);
        EXPECT_EQ(recorder.calls[0].extra, (190 - size.cx) / 6);
        ExpectRect(recorder.calls[0].rect, {5, tops[vert], 195, 96});
        EXPECT_EQ(gdi::GetTextCharacterExtra(canvas.dc), 7);
    }
}

TEST(TextStyleSpread, TextThatIsTooWideIsDrawnTogether) {
    TextCanvas canvas(200, 100);
    const TextRecorder recorder;
    const String text = "letters";
    const int wide = ExtentOf(canvas, text).cx;
    Draw(canvas, StyleOf(0, TextAlignHorzJustifyChar), text, DT_SINGLELINE, {5, 4, 5 + 20, 96});
    EXPECT_EQ(recorder.calls.at(0).extra, -((wide - 20) / 6));
}

TEST(TextStyleSpread, WordsGoToTheJustifiedPainterAtTheirTop) {
    TextCanvas canvas(200, 100);
    const String text = "two words";
    const int height = ExtentOf(canvas, text).cy;
    const int tops[] = {4, 4 + (92 - height) / 2, 96 - height, 4};
    for (int32_t vert = 0; vert < 4; ++vert) {
        const TextRecorder recorder;
        Draw(canvas, StyleOf(0, TextAlignHorzJustify, vert), text, DT_SINGLELINE);
        ASSERT_EQ(recorder.calls.size(), 1u);
        EXPECT_EQ(recorder.calls[0].name, "tabbed");
        EXPECT_EQ(recorder.calls[0].width, 190);
        ExpectRect(recorder.calls[0].rect, {5, tops[vert], 5, 0});
    }
}

TEST(TextStyleSpread, TextOfSeveralLinesIsCentredOnceMoreByWhatThePlatformMeasures) {
    TextCanvas canvas(200, 100);
    const String text = "letters";
    const gdi::SIZE size = ExtentOf(canvas, text);
    const int top = 4 + (92 - size.cy) / 2;
    for (const int32_t horz : {TextAlignHorzJustify, TextAlignHorzJustifyChar}) {
        const TextRecorder recorder;
        const int extra = horz == TextAlignHorzJustifyChar ? (190 - size.cx) / 6 : 0;
        Draw(canvas, StyleOf(0, horz, TextAlignVertCenter), text, 0);
        ASSERT_EQ(recorder.calls.size(), 2u);
        EXPECT_EQ(recorder.calls[0].name, "measure");
        EXPECT_EQ(recorder.calls[0].extra, extra);
        ExpectRect(recorder.calls[0].rect, {5, top, 195, 96});
        gdi::RECT measured{5, top, 195, 96};
        std::u16string units = text.units();
        gdi::SetTextCharacterExtra(canvas.dc, extra);
        gdi::DrawTextW(canvas.dc, units.data(), -1, &measured, recorder.calls[0].flags);
        gdi::SetTextCharacterExtra(canvas.dc, 0);
        const int spare = measured.top - measured.bottom - top + 96;
        const int down = static_cast<int>(std::nearbyint(spare / 2.0));
        EXPECT_GT(down, 0);
        EXPECT_EQ(recorder.calls[1].rect.top, top + down);
    }
}

struct Step {
    int x, y;
    int32_t color;
};

void ExpectSteps(int32_t drawStyle, const std::vector<Step>& steps) {
    TextCanvas canvas(200, 100);
    const TextRecorder recorder;
    gdi::SetTextColor(canvas.dc, 0x123456);
    const Ref<TextStyle> style = StyleOf(drawStyle);
    // They play no part in these draw styles.
    style->ShadowOffsetX = 40;
    style->ShadowOffsetY = 40;
    Draw(canvas, style, "text", DT_SINGLELINE);
    ASSERT_EQ(recorder.calls.size(), steps.size());
    for (size_t i = 0; i < steps.size(); ++i) {
        const auto [x, y, color] = steps[i];
        ExpectRect(recorder.calls[i].rect, {5 + x, 4 + y, 195 + x, 96 + y});
        EXPECT_EQ(recorder.calls[i].color, static_cast<COLORREF>(color));
    }
    EXPECT_EQ(gdi::GetTextColor(canvas.dc), 0x123456u);
}

TEST(TextStyleDrawStyle, OneAndTwoPaintARingOfEightCopies) {
    for (int32_t drawStyle : {1, 2}) {
        ExpectSteps(drawStyle, {{-3, -2, kShadow},
                                {0, -2, kShadow},
                                {3, -2, kShadow},
                                {3, 0, kShadow},
                                {-3, 0, kShadow},
                                {-3, 2, kShadow},
                                {0, 2, kShadow},
                                {3, 2, kShadow},
                                {0, 0, kInk}});
    }
}

TEST(TextStyleDrawStyle, ThreePaintsTwoDiagonalCopies) {
    ExpectSteps(3, {{-3, -2, kShadow}, {3, 2, kShadow}, {0, 0, kInk}});
}

TEST(TextStyleDrawStyle, TheCopiesAreJustifiedAsTheTextIs) {
    const struct {
        int32_t drawStyle;
        size_t paints;
    } rows[] = {{0, 1}, {1, 9}, {2, 9}, {3, 3}};
    for (const auto& [drawStyle, paints] : rows) {
        TextCanvas canvas(200, 100);
        const TextRecorder recorder;
        Draw(canvas, StyleOf(drawStyle, TextAlignHorzJustify), "two words", DT_SINGLELINE);
        ASSERT_EQ(recorder.calls.size(), paints);
        for (const WideCall& call : recorder.calls) {
            EXPECT_EQ(call.name, "tabbed");
            EXPECT_EQ(call.width, 190);
        }
        const int extra = (190 - ExtentOf(canvas, "two words").cx) / 8;
        Draw(canvas, StyleOf(drawStyle, TextAlignHorzJustifyChar), "two words", DT_SINGLELINE);
        ASSERT_EQ(recorder.calls.size(), 2 * paints);
        for (size_t i = paints; i < 2 * paints; ++i) {
            EXPECT_EQ(recorder.calls[i].name, "line");
            EXPECT_EQ(recorder.calls[i].flags, gdi::ETO_CLIPPED);
            EXPECT_EQ(recorder.calls[i].extra, extra);
            EXPECT_EQ(recorder.calls[i].rect.left, recorder.calls[i - paints].rect.left);
            EXPECT_EQ(recorder.calls[i].rect.top, recorder.calls[i - paints].rect.top);
        }
    }
}

TEST(TextStyleDrawStyle, APlainPaintLeavesItsColourInTheContext) {
    for (int32_t drawStyle : {0, 6, -1}) {
        TextCanvas canvas(200, 100);
        const TextRecorder recorder;
        gdi::SetTextColor(canvas.dc, 0x123456);
        Draw(canvas, StyleOf(drawStyle), "text", DT_SINGLELINE);
        ASSERT_EQ(recorder.calls.size(), 1u);
        EXPECT_EQ(recorder.calls[0].color, static_cast<COLORREF>(kInk));
        EXPECT_EQ(gdi::GetTextColor(canvas.dc), static_cast<COLORREF>(kInk));
    }
}

TEST(TextStyleDrawStyle, FourPaintsASoftShadowAndGivesTheColourBack) {
    TextCanvas canvas(200, 100, -40);
    gdi::SetTextColor(canvas.dc, 0x123456);
    const Ref<TextStyle> style = StyleOf(4);
    style->ShadowColor = 0xFF;
    style->ShadowX = style->ShadowY = 1;
    style->ShadowOffsetX = 60;
    Draw(canvas, style, "II", DT_SINGLELINE);
    EXPECT_EQ(gdi::GetTextColor(canvas.dc), 0x123456u);
    // The bytes of the colour go to the pixel in their own order, each one more at least.
    EXPECT_GT(canvas.Count(0x0101FF), 20);
    EXPECT_GT(canvas.Count(0x102040), 20);
}

TEST(TextStyleDraw, GivesTheFontAndTheModeBack) {
    for (int32_t drawStyle = 0; drawStyle <= 4; ++drawStyle) {
        TextCanvas canvas(200, 100);
        const gdi::HGDIOBJ other = gdi::GetStockObject(gdi::SYSTEM_FONT);
        gdi::SelectObject(canvas.dc, other);
        gdi::SetBkMode(canvas.dc, gdi::OPAQUE);
        Draw(canvas, StyleOf(drawStyle), "text", DT_SINGLELINE);
        EXPECT_EQ(gdi::GetCurrentObject(canvas.dc, gdi::OBJ_FONT), other);
        EXPECT_EQ(gdi::GetBkMode(canvas.dc), gdi::OPAQUE);
        EXPECT_EQ(canvas.Colour(199, 99), 0xFFFFFFu);
    }
}

TEST(TextStyleDraw, TheStyleKeepsTheFontThatItDrewWithLast) {
    TextCanvas canvas(200, 100);
    const Ref<TextStyle> style = StyleOf(0);
    Ref<LFont> font = New<LFont>();
    font->Create("DejaVu Sans", -9);
    const gdi::HFONT handle = font->hFont();
    style->DrawText(canvas.dc, "text", 0, font, 0, 0, 100, 50);
    font = nullptr;
    EXPECT_TRUE(test::IsAlive(handle));
    Draw(canvas, style, "text", 0);  // with the canvas's font
    EXPECT_FALSE(test::IsAlive(handle));
}

TEST(TextStyleDraw, NoFontComesBackAsANewOne) {
    TextCanvas canvas(200, 100);
    const Ref<TextStyle> style = StyleOf(0);
    Ref<LFont> fonts[3];
    style->DrawText(canvas.dc, "text", 0, fonts[0], 0, 0, 100, 100);
    style->TextWidth(canvas.dc, "text", 0, fonts[1]);
    style->TextHeight(canvas.dc, "text", 0, fonts[2], 100);
    for (const Ref<LFont>& font : fonts) {
        ASSERT_TRUE(font);
        EXPECT_TRUE(font->Equal(New<LFont>()));
    }
    EXPECT_FALSE(canvas.IsBlank());
}

TEST(TextStyleMeasure, TheWidthCountsTheShadowInEveryDrawStyle) {
    TextCanvas canvas(200, 100);
    const int width = ExtentOf(canvas, "text").cx;
    for (int32_t drawStyle = -1; drawStyle <= 6; ++drawStyle) {
        const Ref<TextStyle> style = StyleOf(drawStyle);
        EXPECT_EQ(style->TextWidth(canvas.dc, "text", DT_SINGLELINE, canvas.font), width + 3);
        EXPECT_EQ(style->TextWidth(canvas.dc, "text", DT_SINGLELINE, canvas.font, 1), width + 3);
    }
}

TEST(TextStyleMeasure, TheWidthIsThatOfTheTextInTheCodePage) {
    TextCanvas canvas(200, 100);
    const String outside(u"\U0001D54F");
    const std::string ansi = kernel::AnsiFromText(outside);
    const Ref<TextStyle> style = StyleOf(0);
    gdi::RECT rect{0, 0, INT_MAX, INT_MAX};
    gdi::DrawTextA(canvas.dc, ansi.c_str(), -1, &rect, DT_SINGLELINE | DT_CALCRECT);
    EXPECT_EQ(style->TextWidth(canvas.dc, outside, DT_SINGLELINE, canvas.font), rect.right + 3);
}

TEST(TextStyleMeasure, OnlyPlainDrawStylesMeasureTheHeight) {
    TextCanvas canvas(200, 100);
    const int line = ExtentOf(canvas, "x").cy;
    for (int32_t drawStyle = -1; drawStyle <= 6; ++drawStyle) {
        const Ref<TextStyle> style = StyleOf(drawStyle);
        const int32_t height =
            style->TextHeight(canvas.dc, "some words", DT_WORDBREAK, canvas.font, 50);
        const bool measures = drawStyle < 1 || drawStyle > 5;
        EXPECT_EQ(height, measures ? 2 * line + 2 : INT_MIN + 1) << drawStyle;
    }
}

TEST(TextStyleMeasure, WorksOnTheScreenWithoutAContext) {
    TextCanvas canvas(200, 100);
    const Ref<TextStyle> style = StyleOf(0);
    EXPECT_EQ(style->TextWidth(nullptr, "text", DT_SINGLELINE, canvas.font),
              style->TextWidth(canvas.dc, "text", DT_SINGLELINE, canvas.font));
    EXPECT_EQ(style->TextHeight(nullptr, "text", DT_SINGLELINE, canvas.font, 9),
              ExtentOf(canvas, "text").cy + 2);
}

TEST(TextStylePicture, EveryDrawStyleIsAsItWas) {
    TextCanvas canvas(250, 200, -26);
    for (int32_t drawStyle = 0; drawStyle <= 4; ++drawStyle) {
        const Ref<TextStyle> style = StyleOf(drawStyle);
        style->ShadowOffsetX = 2;
        style->ShadowOffsetY = 2;
        Draw(canvas, style, "Draw style " + std::to_string(drawStyle), DT_SINGLELINE,
             {8, 4 + drawStyle * 38, 245, 40 + drawStyle * 38});
    }
    canvas.ExpectGolden("text_draw_styles");
}

TEST(TextStylePicture, EveryAlignmentIsAsItWas) {
    TextCanvas canvas(800, 640, -15);
    gdi::SetBkMode(canvas.dc, gdi::TRANSPARENT);
    for (int32_t horz = 0; horz < 5; ++horz) {
        for (int32_t vert = 0; vert < 4; ++vert) {
            const int x = 10 + horz * 158, y = 10 + vert * 158;
            for (int i = 0; i < 148; ++i) {
                canvas.picture.At(x + i, y) = canvas.picture.At(x + i, y + 147) = 0xFFA0A0A0;
                canvas.picture.At(x, y + i) = canvas.picture.At(x + 147, y + i) = 0xFFA0A0A0;
            }
            const char* text = horz == 4 ? "Spread letters" : "Words in a box that go around twice";
            Draw(canvas, StyleOf(0, horz, vert), text, DT_WORDBREAK,
                 {x + 2, y + 2, x + 146, y + 146});
        }
    }
    canvas.ExpectGolden("text_alignments");
}

TEST(TextStyleHostile, AMillionCharactersAreDrawnInBoundedTime) {
    TextCanvas canvas(200, 100);
    for (const char16_t* pattern : {u"word ", u"x", u" ", u"a\t", u"\n"}) {
        std::u16string text;
        while (text.size() < 1000000) text += pattern;
        const auto start = std::chrono::steady_clock::now();
        for (uint32_t flags : {uint32_t{DT_SINGLELINE}, uint32_t{DT_WORDBREAK}})
            Draw(canvas, StyleOf(0, 0, 1), String(text), flags);
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
    }
}

TEST(TextStyleHostile, UnusualTextFontsAndRectanglesAreSurvived) {
    const String texts[] = {String(u"\xD800"), String(u"a\xDC00\xD800z"),
                            String(std::u16string(u"a\0b", 3)), String(u"\xFFFF\x202E\x0301")};
    const gdi::RECT rects[] = {{0, 0, 100, 40},
                               {100, 40, 0, 0},
                               {INT_MIN, INT_MIN, INT_MAX, INT_MAX},
                               {INT_MAX, INT_MAX, INT_MIN, INT_MIN},
                               {-30000, -30000, 30000, 30000}};
    TextCanvas canvas(100, 40);
    for (int32_t height : {0, 30000, -30000, -14}) {
        Ref<LFont> font = New<LFont>();
        font->Create("No such face", height);
        for (int32_t drawStyle = 0; drawStyle <= 3; ++drawStyle) {
            for (int32_t horz = 0; horz < 5; ++horz) {
                const Ref<TextStyle> style = StyleOf(drawStyle, horz, horz % 3);
                for (size_t i = 0; i < std::size(rects) * std::size(texts); ++i) {
                    const gdi::RECT& r = rects[i % std::size(rects)];
                    style->DrawText(canvas.dc, texts[i % std::size(texts)], 0, font, r.left, r.top,
                                    r.right, r.bottom);
                }
            }
        }
    }
    // The context still works as it should.
    TextCanvas fresh(100, 40);
    std::fill(canvas.picture.pixels.begin(), canvas.picture.pixels.end(), 0xFFFFFFFF);
    Draw(canvas, StyleOf(0), "text", DT_SINGLELINE, {0, 0, 100, 40});
    Draw(fresh, StyleOf(0), "text", DT_SINGLELINE, {0, 0, 100, 40});
    EXPECT_EQ(canvas.picture.pixels, fresh.picture.pixels);
}

TEST(TextStyleHostile, AZeroInsideEndsTheTextWhereItIsMeasuredAndWhereItIsDrawn) {
    TextCanvas cut(200, 100), whole(200, 100);
    const String text(std::u16string(u"ab\0cd", 5));
    Draw(cut, StyleOf(0), text, DT_SINGLELINE);
    Draw(whole, StyleOf(0), "ab", DT_SINGLELINE);
    EXPECT_EQ(cut.picture.pixels, whole.picture.pixels);
    EXPECT_EQ(StyleOf(0)->TextWidth(cut.dc, text, DT_SINGLELINE, cut.font),
              StyleOf(0)->TextWidth(cut.dc, "ab", DT_SINGLELINE, cut.font));
}

}  // namespace
}  // namespace vxgui
