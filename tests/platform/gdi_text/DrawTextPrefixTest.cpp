#include <gtest/gtest.h>

#include "Canvas.h"
#include "vxgui/platform/gdi/text/PrefixText.h"

namespace vxgui::gdi {
namespace {

struct PrefixRow {
    std::u16string_view text, shown;
    size_t mark;
};
constexpr size_t kNone = PrefixText::npos;
class Prefix : public testing::TestWithParam<PrefixRow> {};
INSTANTIATE_TEST_SUITE_P(
    , Prefix,
    testing::Values(PrefixRow{u"File", u"File", kNone}, PrefixRow{u"&File", u"File", 0},
                    PrefixRow{u"Fi&le", u"File", 2}, PrefixRow{u"&F&ile", u"File", 1},
                    PrefixRow{u"Q&&A", u"Q&A", kNone}, PrefixRow{u"&&&A", u"&A", 1},
                    PrefixRow{u"&A&&", u"A&", 0}, PrefixRow{u"File&", u"File", kNone},
                    PrefixRow{u"&", u"", kNone}, PrefixRow{u"&&", u"&", kNone},
                    PrefixRow{u"a& b", u"a b", 1}));

TEST_P(Prefix, MarksTheCharacterBehindIt) {
    const PrefixText prefix(GetParam().text, true);
    EXPECT_EQ(prefix.Shown(), GetParam().shown);
    EXPECT_EQ(prefix.LastMark(0, prefix.Shown().size()), GetParam().mark);
    for (size_t i = 0; i < prefix.Shown().size(); ++i) {
        EXPECT_EQ(GetParam().text[prefix.SourceOf(i)], prefix.Shown()[i]);
    }
    EXPECT_EQ(PrefixText(GetParam().text, false).Shown(), GetParam().text);
}

TEST(PrefixRange, TheLastOfARangeCounts) {
    const PrefixText prefix(u"&a b &c", true);
    EXPECT_EQ(prefix.LastMark(0, 5), 4u);
    EXPECT_EQ(prefix.LastMark(0, 4), 0u);
    EXPECT_EQ(prefix.LastMark(1, 4), kNone);
}

/// The pixels in which two flags or texts differ.
Box Difference(const Canvas& a, const Canvas& b) {
    Box box{a.Width(), a.Height(), 0, 0};
    for (int y = 0; y < a.Height(); ++y) {
        for (int x = 0; x < a.Width(); ++x) {
            if (a.Word(x, y) == b.Word(x, y)) continue;
            box = {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x + 1), y + 1};
        }
    }
    return box.right == 0 ? Box{} : box;
}

class DrawnPrefix : public testing::Test {
protected:
    void Paint(std::u16string_view marked, UINT flags) {
        RECT rect{10, 5, 150, 35};
        Draw(canvas, marked, rect, flags);
    }
    void PaintPlain(std::u16string_view text, UINT flags = 0) {
        RECT rect{10, 5, 150, 35};
        Draw(plain, text, rect, flags | DT_NOPREFIX);
    }
    Canvas canvas{160, 40};
    Canvas plain{160, 40};
};

TEST_F(DrawnPrefix, IsUnderlinedByOnePixel) {
    Paint(u"Sa&ve", 0);
    PaintPlain(u"Save");
    const int left = 10 + static_cast<int>(Extent(canvas, u"Sa").cx);
    const int top = 5 + static_cast<int>(Metrics(canvas).tmAscent) + 1;
    EXPECT_EQ(Difference(canvas, plain),
              (Box{left, top, left + static_cast<int>(Extent(canvas, u"v").cx), top + 1}));
}

TEST_F(DrawnPrefix, StaysOnePixelInLargeText) {
    canvas.Font("DejaVu Sans", -30);
    plain.Font("DejaVu Sans", -30);
    Paint(u"&i", DT_NOCLIP);
    PaintPlain(u"i", DT_NOCLIP);
    EXPECT_EQ(Difference(canvas, plain).Height(), 1);
}

TEST_F(DrawnPrefix, MovesWithTheAlignment) {
    Paint(u"Sa&ve", DT_RIGHT);
    PaintPlain(u"Save", DT_RIGHT);
    const int left = 150 - static_cast<int>(Extent(canvas, u"ve").cx);
    EXPECT_EQ(Difference(canvas, plain).left, left);
}

TEST_F(DrawnPrefix, StandsInItsOwnLine) {
    Paint(u"one\n&two", 0);
    PaintPlain(u"one\ntwo");
    EXPECT_EQ(Difference(canvas, plain).top,
              5 + Metrics(canvas).tmHeight + Metrics(canvas).tmAscent + 1);
    EXPECT_EQ(Difference(canvas, plain).left, 10);
}

TEST_F(DrawnPrefix, StandsBehindATab) {
    Paint(u"a\t&b", DT_EXPANDTABS);
    PaintPlain(u"a\tb", DT_EXPANDTABS);
    EXPECT_EQ(Difference(canvas, plain).left, 10 + 8 * Metrics(canvas).tmAveCharWidth);
}

TEST_F(DrawnPrefix, IsNotReadWithNoPrefix) {
    Paint(u"Sa&ve", DT_NOPREFIX);
    TextOutW(plain, 10, 5, u"Sa&ve", 5);
    EXPECT_TRUE(Difference(canvas, plain).Empty());
}

TEST_F(DrawnPrefix, IsReadAndHiddenWithHidePrefix) {
    Paint(u"Sa&ve", DT_HIDEPREFIX);
    PaintPlain(u"Save");
    EXPECT_TRUE(Difference(canvas, plain).Empty());
}

TEST_F(DrawnPrefix, IsAllThatPrefixOnlyDraws) {
    Paint(u"Sa&ve", DT_PREFIXONLY);
    EXPECT_EQ(canvas.Ink().Height(), 1);
    EXPECT_EQ(canvas.Ink().Width(), Extent(canvas, u"v").cx);
}

TEST_F(DrawnPrefix, IsNotMeasured) {
    RECT rect{};
    Draw(canvas, u"Sa&ve && go", rect, DT_CALCRECT);
    EXPECT_EQ(rect.right, Extent(canvas, u"Save & go").cx);
}

}  // namespace
}  // namespace vxgui::gdi
