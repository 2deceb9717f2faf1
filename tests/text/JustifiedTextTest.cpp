#include "vxgui/text/JustifiedText.h"

#include <gtest/gtest.h>

#include <climits>
#include <random>

#include "tests/text/TextCanvas.h"

namespace vxgui {
namespace {

using test::TextCanvas;
using test::TextRecorder;

constexpr int32_t kSpread = -1;

struct Line {
    std::u16string text;
    int x = 0;
    int y = 0;
    int width = 0;
    bool operator==(const Line&) const = default;
};
void PrintTo(const Line& line, std::ostream* out) {
    *out << '"' << String(line.text).Utf8() << "\" at " << line.x << ", " << line.y << ", "
         << line.width << " wide";
}

/// The breaker in its plainest form, which measures each line anew from its start.
class PlainBreaker {
public:
    PlainBreaker(gdi::HDC dc, std::u16string text, gdi::RECT rect, int32_t align)
        : dc_(dc), text_(std::move(text)), rect_(rect), align_(align) {}

    std::vector<Line> Lines() {
        const int count = static_cast<int>(text_.size());
        const int width = rect_.right - rect_.left;
        int start = 0, last = 0, breaks = -1;
        bool justify = false;
        std::vector<Line> lines;
        gdi::TEXTMETRICA metrics;
        gdi::GetTextMetricsA(dc_, &metrics);
        for (int i = 0; i <= count; ++i) {
            const char16_t c = At(i);
            bool flush = false;
            if (c == u'\t' || c == u' ') {
                if (Width(start, i) <= width) {
                    last = i, ++breaks;
                } else {
                    flush = justify = true;
                }
            } else if (c == 0 || c == 10 || c == 13) {
                ++breaks, last = i, flush = true;
                if (c == 0) justify = true;
            } else if (i == count) {
                ++breaks, last = i, flush = justify = true;
            }
            if (!flush) continue;
            lines.push_back({Part(start, last), rect_.left,
                             rect_.top + static_cast<int>(lines.size()) * metrics.tmHeight, 0});
            const bool spread = justify && align_ == kSpread;
            if (spread) gdi::SetTextJustification(dc_, width - Width(start, last), breaks);
            lines.back().width = Width(start, last);
            if (spread) gdi::SetTextJustification(dc_, 0, 0);
            if (c == 0 || c == 10 || c == 13 || c == u' ') ++last;
            if ((c == 10 && At(last) == 13) || (c == 13 && At(last) == 10)) ++last;
            start = last, breaks = 0;
        }
        return lines;
    }

private:
    char16_t At(int i) const { return static_cast<size_t>(i) < text_.size() ? text_[i] : u'\0'; }
    std::u16string Part(int from, int to) const {
        const int start = std::min(from, static_cast<int>(text_.size()));
        return text_.substr(start, std::max(to - from, 0));
    }
    int Width(int from, int to) const {
        const std::u16string part = Part(from, to);
        return static_cast<int16_t>(
            gdi::GetTabbedTextExtentW(dc_, part.data(), static_cast<int>(part.size()), 0, nullptr));
    }

    gdi::HDC dc_;
    std::u16string text_;
    gdi::RECT rect_;
    int32_t align_;
};

std::vector<Line> Drawn(const TextRecorder& recorder) {
    std::vector<Line> lines;
    for (const test::WideCall& call : recorder.calls)
        lines.push_back({call.text, call.rect.left, call.rect.top, call.width});
    return lines;
}

int WidthOf(TextCanvas& canvas, const String& text) {
    return gdi::GetTabbedTextExtentW(canvas.dc, text.data(), static_cast<int>(text.size()), 0,
                                     nullptr) &
           0xFFFF;
}

int LineHeight(TextCanvas& canvas) {
    gdi::TEXTMETRICA metrics;
    gdi::GetTextMetricsA(canvas.dc, &metrics);
    return metrics.tmHeight;
}

TEST(JustifiedText, LinesAreThoseOfThePlainBreaker) {
    const std::u16string words[] = {u"a",
                                    u"word",
                                    u" ",
                                    u" ",
                                    u" ",
                                    u"\t",
                                    u"\n",
                                    u"\r",
                                    u"\r\n",
                                    u"\n\r",
                                    u"longer",
                                    u"\u6F22\u5B57",
                                    u"\u0628\u0644",
                                    u"e\u0301",
                                    u"\xD83D\xDE00",
                                    u"."};
    TextCanvas canvas(10, 10);
    std::mt19937 random(1);
    for (int round = 0; round < 400; ++round) {
        std::u16string text;
        for (int n = static_cast<int>(random() % 40); n > 0; --n)
            text += words[random() % std::size(words)];
        if (round % 16 == 0) text += std::u16string(u"\0after it", 9);
        const int widths[] = {0, 9, 30, 80, 200, 5000};
        const gdi::RECT rect{3, 5, 3 + widths[random() % 6], 50};
        for (int32_t align : {0, kSpread}) {
            const TextRecorder recorder;
            const int32_t height = DrawJustifiedText(canvas.dc, String(text), -1, rect, align);
            const std::vector<Line> expected = PlainBreaker(canvas.dc, text, rect, align).Lines();
            ASSERT_EQ(Drawn(recorder), expected)
                << "round " << round << ": " << String(text).Utf8();
            EXPECT_EQ(height, static_cast<int>(expected.size()) * LineHeight(canvas));
        }
    }
}

TEST(JustifiedText, WordsOfAnySizeAreMeasuredAsWholeLinesAre) {
    TextCanvas canvas(10, 10);
    for (size_t size : {255, 256, 257, 700}) {
        std::u16string text(size, u'i');
        text[254] = 0xD83D, text[255 % size] = 0xDE00;
        text += u"\tword " + std::u16string(size, u'm') + u" \t end";
        const gdi::RECT rect{0, 0, 2600, 50};
        const TextRecorder recorder;
        DrawJustifiedText(canvas.dc, String(text), -1, rect, 0);
        EXPECT_EQ(Drawn(recorder), PlainBreaker(canvas.dc, text, rect, 0).Lines());
    }
}

TEST(JustifiedText, AWidthBeyondSixteenBitsWrapsAndSoFits) {
    TextCanvas canvas(10, 10);
    std::u16string text;
    while (text.size() < 8000) text += u"words ";
    const gdi::RECT rect{0, 0, 32767, 50};
    const TextRecorder recorder;
    DrawJustifiedText(canvas.dc, String(text), -1, rect, 0);
    const std::vector<Line> lines = PlainBreaker(canvas.dc, text, rect, 0).Lines();
    EXPECT_EQ(Drawn(recorder), lines);
    EXPECT_EQ(lines.size(), 1u);
}

TEST(JustifiedText, StartsWhereTheAlignmentSays) {
    TextCanvas canvas(200, 100);
    const struct {
        int32_t align;
        int x;
    } cases[] = {{0, 4}, {2, 151}, {6, 78}, {kSpread, 4}, {8, 4}, {24, 4}};
    for (const auto& [align, x] : cases) {
        const TextRecorder recorder;
        DrawJustifiedText(canvas.dc, "text", -1, {4, 7, 151, 90}, align);
        ASSERT_EQ(recorder.calls.size(), 1u);
        EXPECT_EQ(recorder.calls[0].rect.left, x);  // 77.5 is rounded to even
        EXPECT_EQ(recorder.calls[0].rect.top, 7);
        EXPECT_EQ(recorder.calls[0].rect.right, 4);  // the origin of the tabs
        EXPECT_EQ(gdi::GetTextAlign(canvas.dc), align == kSpread ? 0u : static_cast<UINT>(align));
    }
}

TEST(JustifiedText, ALineThatOverflowsIsSpreadOverTheWidth) {
    TextCanvas canvas(200, 100);
    const int width = WidthOf(canvas, "two words") + 9;
    const TextRecorder recorder;
    DrawJustifiedText(canvas.dc, "two words overflow it", -1, {0, 0, width, 90}, kSpread);
    ASSERT_EQ(recorder.calls.size(), 2u);
    EXPECT_EQ(recorder.calls[0].text, u"two words");
    EXPECT_EQ(recorder.calls[0].width, width);
}

TEST(JustifiedText, OneWordALineHasNoBreaksToSpread) {
    TextCanvas canvas(200, 100);
    const int word = WidthOf(canvas, "words");
    const TextRecorder recorder;
    DrawJustifiedText(canvas.dc, "words words words", -1, {0, 0, word + 3, 90}, kSpread);
    ASSERT_FALSE(recorder.calls.empty());
    EXPECT_EQ(recorder.calls[0].text, u"words");
    EXPECT_EQ(recorder.calls[0].width, word);
}

TEST(JustifiedText, LinesThatEndByThemselvesStayRaggedUntilOneOverflows) {
    TextCanvas canvas(400, 200);
    const int width = WidthOf(canvas, "aaa bbb ccc") + 12;
    const TextRecorder recorder;
    DrawJustifiedText(canvas.dc, "a b\naaa bbb ccc ddd eee\na b\nc d", -1, {0, 0, width, 90},
                      kSpread);
    const std::vector<Line> lines = Drawn(recorder);
    ASSERT_GE(lines.size(), 4u);
    EXPECT_EQ(lines[0].width, WidthOf(canvas, "a b"));
    // From the second line on the break behind a line has its share too.
    EXPECT_EQ(lines[1].text, u"aaa bbb ccc");
    EXPECT_EQ(lines[1].width, width - 12 + 12 * 2 / 3);
    EXPECT_EQ(lines[lines.size() - 2].text, u"a b");
    EXPECT_GT(lines[lines.size() - 2].width, WidthOf(canvas, "a b"));
    EXPECT_EQ(lines.back().text, u"c d");
    EXPECT_GT(lines.back().width, WidthOf(canvas, "c d"));
}

TEST(JustifiedText, TheEndOfTheTextCountsAsOverflow) {
    TextCanvas canvas(200, 100);
    const TextRecorder recorder;
    DrawJustifiedText(canvas.dc, "a b c", -1, {0, 0, 190, 90}, kSpread);
    ASSERT_EQ(recorder.calls.size(), 1u);
    EXPECT_EQ(recorder.calls[0].width, 190);
}

TEST(JustifiedText, ASpaceAtTheEndHasCountedAsABreak) {
    TextCanvas canvas(200, 100);
    const TextRecorder recorder;
    DrawJustifiedText(canvas.dc, "aa bb ", -1, {0, 0, 190, 90}, kSpread);
    ASSERT_EQ(recorder.calls.size(), 1u);
    EXPECT_EQ(recorder.calls[0].text, u"aa bb ");
    EXPECT_EQ(recorder.calls[0].width, 190);
    // Both spaces are stretched alike, so the letters end before the edge.
    const int spare = 190 - WidthOf(canvas, "aa bb ");
    gdi::SetTextJustification(canvas.dc, spare, 2);
    EXPECT_LT(WidthOf(canvas, "aa bb"), 190 - spare / 2);
    gdi::SetTextJustification(canvas.dc, 0, 0);
}

TEST(JustifiedText, ACountEndsTheTextEarly) {
    TextCanvas canvas(200, 100);
    const struct {
        int32_t count;
        std::vector<std::u16string> lines;
    } cases[] = {{3, {u"ab "}},  // "c" is where the text ends
                 {2, {}},        // the space there is a break and no end
                 {0, {u""}},
                 {99, {u"ab cd"}},
                 {-2, {}}};
    for (const auto& [count, expected] : cases) {
        const TextRecorder recorder;
        const int32_t height =
            DrawJustifiedText(canvas.dc, "ab cd", count, {0, 0, 190, 90}, kSpread);
        std::vector<std::u16string> lines;
        for (const test::WideCall& call : recorder.calls) lines.push_back(call.text);
        EXPECT_EQ(lines, expected) << count;
        EXPECT_EQ(height, static_cast<int>(lines.size()) * LineHeight(canvas));
    }
}

// Cost that grew with the square of the length would run into the time that a test may take.
class JustifiedTextOfAMillion : public testing::TestWithParam<const char16_t*> {};

TEST_P(JustifiedTextOfAMillion, CharactersFillLinesOfFullHeight) {
    TextCanvas canvas(200, 100);
    std::u16string text;
    while (text.size() < 1000000) text += GetParam();
    for (int width : {190, 10, 30000}) {
        const int32_t height =
            DrawJustifiedText(canvas.dc, String(text), -1, {0, 0, width, 100}, kSpread);
        EXPECT_GT(height, 0) << width;
        EXPECT_EQ(height % LineHeight(canvas), 0) << width;
    }
}

INSTANTIATE_TEST_SUITE_P(Patterns, JustifiedTextOfAMillion,
                         testing::Values(u"word ", u"x", u" ", u"a\t", u"\r\n", u"\t"),
                         [](const auto& info) { return "Pattern" + std::to_string(info.index); });

TEST(JustifiedTextHostile, UnusualTextAndRectanglesAreSurvived) {
    TextCanvas canvas(60, 20);
    const gdi::RECT rects[] = {{0, 0, 0, 0},
                               {50, 10, 0, 0},
                               {INT_MIN, INT_MIN, INT_MAX, INT_MAX},
                               {INT_MAX, 0, INT_MIN, 0}};
    const String texts[] = {"", String(u"\xD800 \xDC00\t\xD800"), String(u"\xFFFF \x202E b")};
    for (const gdi::RECT& rect : rects) {
        for (const String& text : texts) {
            for (int32_t align : {kSpread, 0, 2, 6, INT_MIN}) {
                const int32_t height = DrawJustifiedText(canvas.dc, text, -1, rect, align);
                EXPECT_GT(height, 0);
            }
        }
    }
}

}  // namespace
}  // namespace vxgui
