#include <gtest/gtest.h>

#include "Canvas.h"

namespace vxgui::gdi {
namespace {

TEST(Extent, OfATextIsThatOfItsPartsTogether) {
    Canvas canvas(1, 1);
    const int whole = Extent(canvas, u"AVATAR To office fi").cx;
    int sum = 0;
    for (const char16_t c : std::u16string_view(u"AVATAR To office fi"))
        sum += Extent(canvas, {&c, 1}).cx;
    EXPECT_EQ(whole, sum);
}

TEST(Extent, OfNoTextIsOneLineHigh) {
    Canvas canvas(1, 1);
    const SIZE size = Extent(canvas, u"");
    EXPECT_EQ(size.cx, 0);
    EXPECT_EQ(size.cy, Metrics(canvas).tmHeight);
}

TEST(Extent, ATextWithoutACountEndsAtItsZero) {
    Canvas canvas(1, 1);
    SIZE size{};
    EXPECT_TRUE(GetTextExtentPoint32W(canvas, u"ab\0cd", -1, &size));
    EXPECT_EQ(size.cx, Extent(canvas, u"ab").cx);
}

TEST(Extent, CharacterExtraComesAfterEveryCharacterTheLastIncluded) {
    Canvas canvas(1, 1);
    const int plain = Extent(canvas, u"abcd").cx;
    SetTextCharacterExtra(canvas, 3);
    EXPECT_EQ(Extent(canvas, u"abcd").cx, plain + 12);
    EXPECT_EQ(Extent(canvas, u"").cx, 0);
    SetTextCharacterExtra(canvas, -2);
    EXPECT_EQ(Extent(canvas, u"abcd").cx, plain - 8);
}

TEST(Extent, APairOfSurrogatesIsOneCharacter) {
    Canvas canvas(1, 1);
    const int plain = Extent(canvas, u"\U0001D538b").cx;
    SetTextCharacterExtra(canvas, 5);
    EXPECT_EQ(Extent(canvas, u"\U0001D538b").cx, plain + 10);
}

struct JustifyRow {
    int extra, breaks, expected;  ///< of "a b c d e", which has four breaks
};
class Justification : public testing::TestWithParam<JustifyRow> {};
INSTANTIATE_TEST_SUITE_P(, Justification,
                         testing::Values(JustifyRow{20, 4, 20}, JustifyRow{21, 4, 21},
                                         JustifyRow{23, 4, 23}, JustifyRow{3, 4, 3},
                                         JustifyRow{-6, 4, -6}, JustifyRow{10, 0, 0},
                                         JustifyRow{0, 4, 0}, JustifyRow{20, 8, 8 + 4},
                                         JustifyRow{20, -1, 0}));

TEST_P(Justification, IsSpreadExactlyOverTheBreaks) {
    Canvas canvas(1, 1);
    const int plain = Extent(canvas, u"a b c d e").cx;
    SetTextJustification(canvas, GetParam().extra, GetParam().breaks);
    // With eight breaks of which four are here, the first four get 3 3 3 3: 20 = 8 * 2 + 4.
    EXPECT_EQ(Extent(canvas, u"a b c d e").cx - plain, GetParam().expected);
}

TEST(JustifiedText, GivesTheRemainderToTheFirstBreaks) {
    Canvas canvas(1, 1);
    const int space = Extent(canvas, u" ").cx;
    SetTextJustification(canvas, 8, 3);  // 3 3 2
    EXPECT_EQ(Extent(canvas, u" ").cx, space + 3);
    EXPECT_EQ(Extent(canvas, u"  ").cx, 2 * space + 6);
    EXPECT_EQ(Extent(canvas, u"   ").cx, 3 * space + 8);
}

TEST(JustifiedText, StretchesTheBreakCharacterAlone) {
    Canvas canvas(1, 1);
    const int plain = Extent(canvas, u"a\u00A0b\u3000c").cx;
    SetTextJustification(canvas, 30, 2);
    EXPECT_EQ(Extent(canvas, u"a\u00A0b\u3000c").cx, plain);
}

TEST(Extent, LettersThatJoinAreMeasuredAsTheyAreDrawn) {
    Canvas canvas(200, 40);
    const std::u16string_view word = u"\u0633\u0644\u0627\u0645";
    const SIZE size = Extent(canvas, word);
    TextOutW(canvas, 20, 5, word.data(), static_cast<int>(word.size()));
    const Box ink = canvas.Ink();
    EXPECT_NEAR(ink.Width(), size.cx, 4);
}

TEST(Extent, OfATextThatIsShapedInPiecesIsTheSum) {
    Canvas canvas(1, 1);
    const std::u16string text(40000, u'n');
    EXPECT_EQ(Extent(canvas, text).cx, 40000 * Extent(canvas, u"n").cx);
}

}  // namespace
}  // namespace vxgui::gdi
