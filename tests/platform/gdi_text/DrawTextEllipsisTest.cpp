#include <gtest/gtest.h>

#include "Canvas.h"

namespace vxgui::gdi {
namespace {

struct EllipsisRow {
    const char* name;
    std::u16string_view text;
    std::u16string_view room;  ///< the rectangle is as wide as this
    UINT flags;
    std::u16string_view expected;
};

void PrintTo(const EllipsisRow& row, std::ostream* out) { *out << row.name; }

class DrawTextEllipsis : public testing::TestWithParam<EllipsisRow> {};

INSTANTIATE_TEST_SUITE_P(
    , DrawTextEllipsis,
    testing::Values(
        EllipsisRow{"EndFits", u"nnnnnn", u"nnnnnn", DT_END_ELLIPSIS, u"nnnnnn"},
        EllipsisRow{"EndAsManyAsFit", u"nnnnnnnn", u"nnnn...", DT_END_ELLIPSIS, u"nnnn..."},
        EllipsisRow{"EndWithoutRoom", u"nnnnnnnn", u"i", DT_END_ELLIPSIS, u"..."},
        EllipsisRow{"EndOfASingleLine", u"nnnnnnnn", u"nn...", DT_END_ELLIPSIS | DT_SINGLELINE,
                    u"nn..."},
        EllipsisRow{"WordOnASingleLine", u"nnnnnnnn", u"nn...", DT_WORD_ELLIPSIS, u"nn..."},
        EllipsisRow{"WithoutAFlagNothing", u"nnnnnnnn", u"nn...", 0, u"nnnnnnnn"},
        EllipsisRow{"PathKeepsTheName", u"c:\\nnnnnn\\nnnnnn\\file", u"c:\\nn...\\file",
                    DT_PATH_ELLIPSIS, u"c:\\nn...\\file"},
        EllipsisRow{"PathKnowsBothSeparators", u"/nnnnnn/nnnnnn/file", u"/nn.../file",
                    DT_PATH_ELLIPSIS, u"/nn.../file"},
        EllipsisRow{"PathFits", u"c:\\a\\b", u"c:\\a\\b", DT_PATH_ELLIPSIS, u"c:\\a\\b"},
        EllipsisRow{"PathKeepsALongNameWhole", u"c:\\nnnnnn\\nnnnnnnnnn", u"nnnn", DT_PATH_ELLIPSIS,
                    u"...\\nnnnnnnnnn"},
        EllipsisRow{"PathAndEndCutTheName", u"c:\\nnnnnn\\nnnnnnnnnn", u"...\\nnn...",
                    DT_PATH_ELLIPSIS | DT_END_ELLIPSIS, u"...\\nnn..."},
        EllipsisRow{"PathWithoutSeparatorsCutsTheMiddle", u"nnnnnnnnnn", u"nn...nn",
                    DT_PATH_ELLIPSIS, u"...nnnn"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_P(DrawTextEllipsis, DrawsMeasuresAndWritesBackTheSame) {
    const EllipsisRow& row = GetParam();
    Canvas canvas(200, 40), expected(200, 40);
    const int room = Extent(canvas, row.room).cx;
    const UINT flags = row.flags | DT_NOPREFIX;
    RECT rect{5, 5, 5 + room, 40};
    Draw(canvas, row.text, rect, flags);
    Draw(expected, row.expected, rect, DT_NOPREFIX);
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 200; ++x) ASSERT_EQ(canvas.Word(x, y), expected.Word(x, y));
    }
    RECT measured = rect;
    Draw(canvas, row.text, measured, flags | DT_CALCRECT);
    EXPECT_EQ(measured.right - measured.left, Extent(canvas, row.expected).cx);

    Buffer buffer(row.text);
    DrawTextW(canvas, buffer, -1, &rect, flags | DT_MODIFYSTRING);
    EXPECT_EQ(buffer.Text(), row.expected);
    Buffer kept(row.text);
    DrawTextW(canvas, kept, -1, &rect, flags);
    EXPECT_EQ(kept.Text(), row.text);
}

TEST(DrawTextEllipsisLines, EndActsOnTheLastLineAndWordOnEach) {
    Canvas canvas(200, 60);
    const int room = Extent(canvas, u"nn...").cx;
    RECT rect{0, 0, room, 60};
    Buffer end(u"nnnnnn\nnnnnnnn");
    DrawTextW(canvas, end, -1, &rect, DT_END_ELLIPSIS | DT_MODIFYSTRING);
    EXPECT_EQ(end.Text(), u"nnnnnn\nnn...");
    Buffer word(u"nnnnnn\nnnnnnnn");
    DrawTextW(canvas, word, -1, &rect, DT_WORD_ELLIPSIS | DT_MODIFYSTRING);
    EXPECT_EQ(word.Text(), u"nn...\nnn...");
}

TEST(DrawTextEllipsisLines, EndSaysThatLinesAreOutOfSight) {
    Canvas canvas(200, 60);
    RECT rect{0, 0, static_cast<LONG>(Extent(canvas, u"nnn nnn").cx), 2 * Metrics(canvas).tmHeight};
    Buffer wrapped(u"nnn nnn nnn nnn nnn nnn");
    EXPECT_EQ(
        DrawTextW(canvas, wrapped, -1, &rect, DT_WORDBREAK | DT_END_ELLIPSIS | DT_MODIFYSTRING),
        2 * Metrics(canvas).tmHeight);
    EXPECT_TRUE(wrapped.Text().starts_with(u"nnn nnn nnn n"));
    EXPECT_TRUE(wrapped.Text().ends_with(u"..."));
    Buffer short_(u"a\nb\nc");
    DrawTextW(canvas, short_, -1, &rect, DT_END_ELLIPSIS | DT_MODIFYSTRING);
    EXPECT_EQ(short_.Text(), u"a\nb...");
    Buffer all(u"a\nb\nc");
    DrawTextW(canvas, all, -1, &rect, DT_END_ELLIPSIS | DT_MODIFYSTRING | DT_NOCLIP);
    EXPECT_EQ(all.Text(), u"a\nb\nc");
}

TEST(DrawTextEllipsisLines, KeepsPrefixesInTheText) {
    Canvas canvas(200, 60);
    RECT rect{0, 0, static_cast<LONG>(Extent(canvas, u"nnn...").cx), 60};
    Buffer text(u"n&n&&nnnnnnn");
    DrawTextW(canvas, text, -1, &rect, DT_END_ELLIPSIS | DT_MODIFYSTRING);
    EXPECT_TRUE(text.Text().starts_with(u"n&n"));
    EXPECT_TRUE(text.Text().ends_with(u"..."));
    RECT again = rect;
    Buffer same(text.Text());
    DrawTextW(canvas, same, -1, &again, DT_END_ELLIPSIS | DT_MODIFYSTRING);
    EXPECT_EQ(same.Text(), text.Text());
}

TEST(DrawTextEllipsisLines, AMarkThatIsCutAwayIsNotUnderlined) {
    Canvas canvas(200, 60), plain(200, 60);
    RECT rect{0, 0, static_cast<LONG>(Extent(canvas, u"nnn...").cx), 60};
    Draw(canvas, u"nnnnnnnn&n", rect, DT_END_ELLIPSIS);
    Draw(plain, u"nnn...", rect, 0);
    for (int y = 0; y < 60; ++y) {
        for (int x = 0; x < 200; ++x) ASSERT_EQ(canvas.Word(x, y), plain.Word(x, y));
    }
}

TEST(DrawTextEllipsisLines, WritesNothingBehindItsRoom) {
    Canvas canvas(200, 60);
    // "i" gives way to "...": the text grows by two units and a zero, within its four.
    std::u16string memory(u"WWWi");
    memory.append(8, u'#');
    RECT rect{0, 0, static_cast<LONG>(Extent(canvas, u"WWWi").cx - 1), 60};
    DrawTextW(canvas, memory.data(), 4, &rect, DT_END_ELLIPSIS | DT_MODIFYSTRING);
    EXPECT_EQ(std::u16string_view(memory.c_str()), u"WW...");
    EXPECT_EQ(memory.substr(8), u"####");
}

TEST(DrawTextEllipsisLines, DoesNotSplitAPairOfSurrogates) {
    Canvas canvas(200, 60);
    const std::u16string_view text = u"\U0001D538\U0001D538\U0001D538\U0001D538";
    for (LONG width = 0; width < Extent(canvas, text).cx; ++width) {
        RECT rect{0, 0, width, 60};
        Buffer buffer(text);
        DrawTextW(canvas, buffer, -1, &rect, DT_END_ELLIPSIS | DT_MODIFYSTRING);
        ASSERT_EQ(buffer.Text().size() % 2, 1u) << "whole pairs and three dots";
    }
}

}  // namespace
}  // namespace vxgui::gdi
