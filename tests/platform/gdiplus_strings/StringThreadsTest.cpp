#include <atomic>
#include <chrono>
#include <thread>

#include "tests/platform/gdiplus_strings/StringCanvas.h"

namespace vxgui::gdiplus {
namespace {

constexpr const char16_t* kTexts[] = {
    u"The quick brown fox jumps over the lazy dog",
    u"\u4e2d\u6587\u5b57 and \u0645\u0631\u062d\u0628\u0627 and \u0e44\u0e17\u0e22",
    u"a\ttab\tand\nlines &with keys",
    u"/usr/share/fonts/truetype/name.ttf",
};
constexpr const char16_t* kFamilies[] = {u"DejaVu Sans", u"DejaVu Serif", u"DejaVu Sans Mono"};

/// A thread's own picture and objects.
class ThreadsCanvas : public StringCanvas {
public:
    void TestBody() override {}

    // Draws the same mixture whichever thread it is.
    std::vector<uint32_t> Round(int seed) {
        Clear();
        for (int i = 0; i < 12; ++i) {
            const int n = seed * 12 + i;
            GpStringFormat* format = n % 3 ? Default() : Typographic();
            GdipSetStringFormatTrimming(format, static_cast<StringTrimming>(n % 6));
            GdipSetStringFormatAlign(format, static_cast<StringAlignment>(n % 3));
            GdipSetTextRenderingHint(graphics_, static_cast<TextRenderingHint>(n % 6));
            GpFont* font =
                MakeFont(static_cast<REAL>(9 + n % 17), n % 4, UnitPixel, kFamilies[n % 3]);
            const GpRectF rect{static_cast<REAL>(n % 5), static_cast<REAL>(4 * i), 190, 30};
            EXPECT_EQ(Draw(kTexts[n % 4], font, rect, format), Ok);
        }
        return Picture().pixels;
    }
};

TEST(StringThreads, FourDrawMixedTextAtOnce) {
    constexpr int kRounds = 24, kThreads = 4;
    std::vector<std::vector<uint32_t>> expected;
    {
        ThreadsCanvas canvas;
        for (int i = 0; i < kRounds; ++i) expected.push_back(canvas.Round(i));
    }
    std::atomic<int> wrong{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([&, t] {
            ThreadsCanvas canvas;
            for (int i = 0; i < 2 * kRounds; ++i) {
                const int round = (i * (2 * t + 1) + t) % kRounds;  // each in an order of its own
                wrong += canvas.Round(round) != expected[static_cast<size_t>(round)];
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(wrong, 0);
}

TEST(StringThreads, AFontIsDrawnWithOnAnyThread) {
    ThreadsCanvas here;
    GpFont* font = here.MakeFont(15);
    const auto draw = [&](ThreadsCanvas& canvas) {
        EXPECT_EQ(canvas.Draw(kTexts[0], font, {2, 2, 0, 0}, nullptr), Ok);
        return canvas.Picture().pixels;
    };
    const std::vector<uint32_t> expected = draw(here);
    std::vector<uint32_t> there;
    std::thread([&] {
        ThreadsCanvas canvas;
        there = draw(canvas);
    }).join();
    EXPECT_EQ(there, expected);
}

}  // namespace
}  // namespace vxgui::gdiplus
