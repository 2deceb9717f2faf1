#include <gtest/gtest.h>

#include <chrono>

#include "Canvas.h"

namespace vxgui::gdi {
namespace {

constexpr UINT kEveryEllipsis = DT_END_ELLIPSIS | DT_WORD_ELLIPSIS | DT_PATH_ELLIPSIS;

TEST(AbsurdText, OfAMillionCharactersIsLaidOut) {
    Canvas canvas(200, 50);
    std::u16string text;
    while (text.size() < 1000000) text += u"words and more ";
    const int line = Metrics(canvas).tmHeight;
    for (const UINT flags :
         {UINT{0}, UINT{DT_WORDBREAK}, UINT{DT_END_ELLIPSIS}, UINT{DT_WORDBREAK | DT_END_ELLIPSIS},
          UINT{DT_SINGLELINE | DT_CENTER}}) {
        RECT rect{0, 0, 200, 50};
        const int height = Draw(canvas, text, rect, flags);
        EXPECT_GE(height, line);
        EXPECT_LE(height, 50 + line) << "lines out of sight aren't drawn";
    }
    RECT rect{0, 0, 200, 50};
    EXPECT_GT(Draw(canvas, text, rect, DT_WORDBREAK | DT_CALCRECT), 10000 * line);
    EXPECT_LE(rect.right, 200);
}

TEST(AbsurdText, OfOneWordIsLaidOut) {
    Canvas canvas(200, 50);
    const std::u16string text(1000000, u'n');
    RECT rect{0, 0, 200, 50};
    Draw(canvas, text, rect, DT_WORDBREAK | DT_EDITCONTROL | DT_NOCLIP);
    Draw(canvas, text, rect, DT_WORDBREAK | DT_CALCRECT);
    EXPECT_EQ(rect.right, 1000000 * Extent(canvas, u"n").cx);
}

TEST(AbsurdText, OfBreaksAloneIsLaidOut) {
    Canvas canvas(200, 50);
    const std::u16string text(1000000, u'\n');
    RECT rect{0, 0, 200, 50};
    EXPECT_EQ(Draw(canvas, text, rect, DT_CALCRECT), 1000000 * Metrics(canvas).tmHeight);
}

TEST(AbsurdText, OfPrefixesAloneIsLaidOut) {
    Canvas canvas(200, 50);
    const std::u16string text(1000000, u'&');
    RECT rect{0, 0, 200, 50};
    Draw(canvas, text, rect, DT_END_ELLIPSIS);
    EXPECT_FALSE(canvas.Blank());
}

TEST(AbsurdText, OfEveryUnitIsDrawn) {
    Canvas canvas(200, 50);
    std::u16string text;
    for (int unit = 0; unit < 0x10000; unit += 7) text += static_cast<char16_t>(unit);
    RECT rect{0, 0, 200, 50};
    for (const UINT flags : {UINT{0}, UINT{DT_WORDBREAK | DT_EXPANDTABS}, kEveryEllipsis,
                             UINT{DT_RTLREADING | DT_SINGLELINE}}) {
        Draw(canvas, text, rect, flags);
    }
    EXPECT_GT(Extent(canvas, text).cx, 0);
}

class AbsurdHeight : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(, AbsurdHeight,
                         testing::Values(0, 1, -1, 30000, -30000, INT32_MAX, INT32_MIN));

TEST_P(AbsurdHeight, IsDrawnInLittleMemory) {
    Canvas canvas(100, 100);
    LOGFONTA font = LogFont("DejaVu Sans", GetParam());
    for (const int escapement : {0, 450}) {
        font.lfEscapement = escapement;
        font.lfUnderline = font.lfStrikeOut = 1;
        canvas.Font(font);
        SetBkMode(canvas, OPAQUE);
        for (const int y : {0, -12000, -24000, INT32_MAX, INT32_MIN}) {
            TextOutW(canvas, -100, y, u"Large \u4E2D", 7);
            TextOutW(canvas, INT32_MIN, y, u"Large \u4E2D", 7);
        }
        RECT rect{0, 0, 100, 100};
        Draw(canvas, u"Large &letters", rect, DT_WORDBREAK | DT_END_ELLIPSIS);
    }
    EXPECT_GT(Extent(canvas, u"x").cy, 0);
}

TEST(AbsurdText, AWordOfHugeLettersIsMeasuredWithoutOverflow) {
    Canvas canvas(10, 10);
    canvas.Font("DejaVu Sans", -30000);
    const std::u16string text(200000, u'W');
    EXPECT_EQ(Extent(canvas, text).cx, INT32_MAX);
    RECT rect{0, 0, 10, 10};
    Draw(canvas, text, rect, DT_CALCRECT);
    EXPECT_EQ(rect.right, INT32_MAX);
    TextOutW(canvas, 0, 0, text.data(), static_cast<int>(text.size()));
}

class AbsurdRectangle : public testing::TestWithParam<RECT> {};
INSTANTIATE_TEST_SUITE_P(, AbsurdRectangle,
                         testing::Values(RECT{50, 40, 10, 5}, RECT{0, 0, 0, 0},
                                         RECT{INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX},
                                         RECT{INT32_MAX, INT32_MAX, INT32_MIN, INT32_MIN},
                                         RECT{INT32_MAX, 0, INT32_MAX, INT32_MAX}));

TEST_P(AbsurdRectangle, IsDrawnInWithEveryFlag) {
    for (UINT bit = 1; bit < 0x400000; bit <<= 1) {
        for (const UINT with :
             {UINT{0}, UINT{DT_SINGLELINE}, UINT{DT_WORDBREAK}, UINT{DT_CALCRECT}}) {
            Canvas canvas(60, 30);
            RECT rect = GetParam();
            EXPECT_NE(Draw(canvas, u"A &text\tof some\nwords", rect, bit | with), 0);
        }
    }
}

TEST(AbsurdText, InAnInvertedRectangleIsNotSeen) {
    Canvas canvas(60, 30);
    RECT rect{50, 25, 10, 5};
    Draw(canvas, u"words", rect, 0);
    EXPECT_TRUE(canvas.Blank());
}

TEST(AbsurdText, SpacingOfAnySizeWraps) {
    Canvas canvas(60, 30);
    SetTextCharacterExtra(canvas, INT32_MAX);
    SetTextJustification(canvas, INT32_MIN, 1);
    Extent(canvas, u"a b c");
    TextOutW(canvas, 0, 0, u"a b c", 5);
    TabbedTextOutW(canvas, 0, 0, u"a\tb c", 5, 0, nullptr, INT32_MIN);
    RECT rect{0, 0, 60, 30};
    EXPECT_NE(Draw(canvas, u"a b c", rect, DT_WORDBREAK | kEveryEllipsis), 0);
}

}  // namespace
}  // namespace vxgui::gdi
