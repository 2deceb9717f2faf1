#include <gtest/gtest.h>

#include <thread>

#include "Canvas.h"
#include "vxgui/base/String.h"
#include "vxgui/platform/gdi/text/Shaper.h"
#include "vxgui/platform/gdi/text/TextEngine.h"

namespace vxgui::gdi {
namespace {

TEST(LruCache, DropsWhatWasUsedLongestAgo) {
    LruCache<int, int, std::hash<int>> cache(3);
    cache.Insert(1, 10, 1);
    cache.Insert(2, 20, 1);
    cache.Insert(3, 30, 1);
    EXPECT_EQ(*cache.Find(1), 10);
    cache.Insert(4, 40, 1);
    EXPECT_EQ(cache.Find(2), nullptr);
    EXPECT_EQ(*cache.Find(1), 10);
    EXPECT_EQ(cache.Count(), 3u);
    EXPECT_EQ(cache.Cost(), 3u);
}

TEST(LruCache, KeepsWhatIsBeyondTheBoundAlone) {
    LruCache<int, int, std::hash<int>> cache(3);
    cache.Insert(1, 10, 1);
    EXPECT_EQ(*cache.Insert(2, 20, 9), 20);
    EXPECT_EQ(cache.Count(), 1u);
    cache.Insert(3, 30, 1);
    EXPECT_EQ(cache.Cost(), 1u);
    cache.Clear();
    EXPECT_EQ(cache.Find(3), nullptr);
}

TEST(LruCache, CountsWhatAValueHasGrownTo) {
    LruCache<int, int, std::hash<int>> cache(5);
    cache.Insert(1, 10, 2);
    cache.Insert(2, 20, 2);
    EXPECT_EQ(*cache.Find(1), 10);
    cache.Reprice(3);
    EXPECT_EQ(cache.Cost(), 5u);
    cache.Reprice(4);
    EXPECT_EQ(cache.Cost(), 4u);
    EXPECT_EQ(cache.Find(2), nullptr);
    cache.Reprice(9);
    EXPECT_EQ(*cache.Find(1), 10);
}

TEST(TextCaches, AreBounded) {
    Canvas canvas(300, 300);
    for (int em = 8; em < 180; ++em) {
        canvas.Font("DejaVu Sans", -em);
        TextOutW(canvas, 0, 0, u"abcdefgh", 8);
    }
    for (int i = 0; i < 6000; ++i) {
        const vxgui::String text = vxgui::String("line number ") + vxgui::String::FromInt(i);
        Extent(canvas, text.view());
    }
    TextEngine& engine = TextEngine::Here();
    EXPECT_GT(engine.Glyphs().Cost(), 0u);
    EXPECT_LE(engine.Glyphs().Cost(), GlyphCache::kBound);
    EXPECT_GT(engine.Shapes().Cost(), ShapedTextCache::kBound / 2);
    EXPECT_LE(engine.Shapes().Cost(), ShapedTextCache::kBound);
}

TEST(TextCaches, KnowTheSameFontByItsRecord) {
    LOGFONTA font = LogFont("DejaVu Sans", -14);
    const auto first = TextEngine::Here().Realize(font);
    font.lfFaceName[20] = 'x';  // behind the end of the name
    EXPECT_EQ(TextEngine::Here().Realize(font), first);
    font.lfWeight = 700;
    EXPECT_NE(TextEngine::Here().Realize(font), first);
}

TEST(TextCaches, KeepShortLinesAndForgetLongOnes) {
    TextEngine& engine = TextEngine::Here();
    const auto font = engine.Realize(LogFont("DejaVu Sans", -14));
    EXPECT_EQ(Shape(engine, *font, u"short", false), Shape(engine, *font, u"short", false));
    EXPECT_NE(Shape(engine, *font, u"short", false), Shape(engine, *font, u"short", true));
    const std::u16string long_(ShapedTextCache::kLongestLine + 1, u'x');
    EXPECT_NE(Shape(engine, *font, long_, false), Shape(engine, *font, long_, false));
}

/// A picture of several scripts and sizes.
std::vector<uint32_t> Picture() {
    Canvas canvas(200, 80);
    for (int i = 0; i < 4; ++i) {
        canvas.Font("DejaVu Sans", -10 - i);
        TextOutW(canvas, 3, 18 * i, u"Text \u4E2D\u6587 \u0633\u0644\u0627\u0645", -1);
    }
    std::vector<uint32_t> words;
    for (int y = 0; y < 80; ++y) {
        for (int x = 0; x < 200; ++x) words.push_back(canvas.Word(x, y));
    }
    return words;
}

TEST(TextThreads, DrawTheSameSideBySide) {
    const std::vector<uint32_t> expected = Picture();
    std::vector<uint32_t> drawn[3];
    std::vector<std::thread> threads;
    for (auto& picture : drawn) {
        threads.emplace_back([&picture] {
            for (int i = 0; i < 5; ++i) picture = Picture();
        });
    }
    for (std::thread& thread : threads) thread.join();
    for (const auto& picture : drawn) EXPECT_EQ(picture, expected);
}

}  // namespace
}  // namespace vxgui::gdi
