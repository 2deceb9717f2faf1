#include <gtest/gtest.h>

#include "Canvas.h"
#include "vxgui/platform/gdi/text/ItemShaper.h"
#include "vxgui/platform/gdi/text/Shaper.h"
#include "vxgui/platform/gdi/text/TextEngine.h"

namespace vxgui::gdi {
namespace {

ShapedTextRef ShapeOf(std::u16string_view text, bool rightToLeft = false) {
    TextEngine& engine = TextEngine::Here();
    return Shape(engine, *engine.Realize(LogFont("DejaVu Serif", -20)), text, rightToLeft);
}

/// The units of the glyphs, leftmost first.
std::vector<int> Order(std::u16string_view text, bool rightToLeft = false) {
    std::vector<int> order;
    for (const ShapedGlyph& glyph : ShapeOf(text, rightToLeft)->glyphs) order.push_back(glyph.unit);
    return order;
}

TEST(Scripts, RightToLeftWordsAreTurnedAround) {
    EXPECT_EQ(Order(u"ab \u05D0\u05D1"), (std::vector<int>{0, 1, 2, 4, 3}));
    EXPECT_EQ(Order(u"\u05D0\u05D1 12"), (std::vector<int>{3, 4, 2, 1, 0}));
}

TEST(Scripts, TheReadingOrderPlacesWhatHasNoDirection) {
    EXPECT_EQ(Order(u"\u05D0\u05D1.", false), (std::vector<int>{1, 0, 2}));
    EXPECT_EQ(Order(u"\u05D0\u05D1.", true), (std::vector<int>{2, 1, 0}));
    EXPECT_EQ(Order(u"ab.", true), (std::vector<int>{2, 0, 1}));
}

TEST(Scripts, DrawTextReadsFromTheRightOnDemand) {
    Canvas read(80, 40), turned(80, 40);
    RECT rect{0, 0, 80, 40};
    Draw(read, u"ab!", rect, DT_RTLREADING);
    Draw(turned, u"!ab", rect, 0);
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 80; ++x) ASSERT_EQ(read.Word(x, y), turned.Word(x, y));
    }
}

TEST(Scripts, ArabicLettersJoin) {
    // Meem alone, and meem between two others.
    const ShapedTextRef alone = ShapeOf(u"\u0645");
    const ShapedTextRef joined = ShapeOf(u"\u0645\u0645\u0645");
    ASSERT_EQ(joined->glyphs.size(), 3u);
    EXPECT_NE(joined->glyphs[1].index, alone->glyphs[0].index);
    EXPECT_NE(joined->glyphs[0].index, joined->glyphs[2].index);
}

TEST(Scripts, LettersThatBecomeOneGlyphShareItsWidth) {
    const ShapedTextRef lamAlef = ShapeOf(u"\u0644\u0627");
    ASSERT_EQ(lamAlef->advances.size(), 2u);
    EXPECT_GT(lamAlef->advances[0], 0);
    EXPECT_EQ(lamAlef->advances[0] + lamAlef->advances[1], lamAlef->width);
}

TEST(Scripts, MissingCharactersComeFromOtherFaces) {
    const std::shared_ptr<RealizedFont> font =
        TextEngine::Here().Realize(LogFont("DejaVu Serif", -20));
    const ShapedTextRef mixed = Shape(TextEngine::Here(), *font, u"a\u4E2D\u0E01", false);
    ASSERT_EQ(mixed->glyphs.size(), 3u);
    EXPECT_NE(mixed->glyphs[0].face, mixed->glyphs[1].face);
    EXPECT_NE(mixed->glyphs[1].face, mixed->glyphs[2].face);
    for (const ShapedGlyph& glyph : mixed->glyphs) {
        EXPECT_NE(glyph.index, 0u);
        EXPECT_TRUE(font->Face(glyph.face).face);
    }
}

TEST(Scripts, WhatNoFaceHasIsTheMissingGlyph) {
    const ShapedTextRef none = ShapeOf(u"\uE123");
    ASSERT_EQ(none->glyphs.size(), 1u);
    EXPECT_EQ(none->glyphs[0].index, 0u);
    EXPECT_GT(none->width, 0);
    Canvas canvas(40, 40);
    TextOutW(canvas, 5, 5, u"\uE123", 1);
    EXPECT_FALSE(canvas.Blank());
}

class ControlCharacter : public testing::TestWithParam<char16_t> {};
INSTANTIATE_TEST_SUITE_P(, ControlCharacter,
                         testing::Values(u'\0', u'\t', u'\r', u'\n', u'\x1F', u'\x7F', u'\x85',
                                         char16_t{0x2028}, char16_t{0x2029}, char16_t{0xFFFE},
                                         char16_t{0xFFFF}));

TEST_P(ControlCharacter, IsTheMissingGlyphWhereTextIsPaintedAsItIs) {
    const char16_t text[] = {u'a', GetParam(), u'b'};
    const ShapedTextRef shaped = ShapeOf({text, 3});
    ASSERT_EQ(shaped->glyphs.size(), 3u);
    EXPECT_EQ(shaped->glyphs[1].index, 0u);
    EXPECT_GT(shaped->glyphs[1].advance, 0);
    EXPECT_EQ(shaped->glyphs[2].unit, 2);
}

TEST(Scripts, InvisibleCharactersHaveNoWidth) {
    EXPECT_EQ(ShapeOf(u"a\u200Eb")->width, ShapeOf(u"ab")->width);
    EXPECT_EQ(ShapeOf(u"a\u200Bb")->width, ShapeOf(u"ab")->width);
}

TEST(Scripts, AccentsBelongToTheirLetter) {
    const ShapedTextRef accented = ShapeOf(u"x\u0301y");
    EXPECT_EQ(accented->advances[1], 0);
    EXPECT_EQ(accented->width, ShapeOf(u"xy")->width);
}

TEST(Scripts, LoneSurrogatesAreReplaced) {
    for (const std::u16string_view text :
         {std::u16string_view(u"\xD835", 1), std::u16string_view(u"\xDC00", 1)}) {
        const ShapedTextRef shaped = ShapeOf(text);
        EXPECT_EQ(shaped->width, ShapeOf(u"\uFFFD")->width);
        EXPECT_EQ(shaped->glyphs[0].index, ShapeOf(u"\uFFFD")->glyphs[0].index);
    }
}

TEST(Scripts, APairAtTheEndOfAPieceStaysTogether) {
    std::u16string text(kLongestPiece - 1, u'a');
    text += u"\U0001D538b";
    const ShapedTextRef shaped = ShapeOf(text);
    EXPECT_EQ(shaped->advances[kLongestPiece], 0);
    EXPECT_EQ(shaped->width,
              ShapeOf(text.substr(0, kLongestPiece - 1))->width + ShapeOf(u"\U0001D538b")->width);
}

}  // namespace
}  // namespace vxgui::gdi
