#include "vxgui/platform/gdi/text/LineImages.h"

#include <gtest/gtest.h>

#include "Canvas.h"
#include "vxgui/platform/gdi/text/Shaper.h"
#include "vxgui/platform/gdi/text/TextEngine.h"

namespace vxgui::gdi {
namespace {

constexpr int kWidth = 210, kHeight = 60;

std::vector<uint32_t> WordsOf(const Canvas& canvas, int depth) {
    std::vector<uint32_t> words;
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x)
            words.push_back(depth == 32 ? canvas.Word(x, y) : canvas.Color(x, y));
    }
    return words;
}

std::vector<int> WidthsOf(HDC dc, std::u16string_view text) {
    std::vector<int> widths;
    for (size_t i = 0; i < text.size(); ++i)
        widths.push_back(static_cast<int>(Extent(dc, text.substr(i, 1)).cx));
    return widths;
}

/// A text at (x, y) inside a rectangle. With widths of its own, which are the font's, it is painted
/// glyph by glyph.
std::vector<uint32_t> Painted(const LOGFONTA& font, std::u16string_view text, int x, int y,
                              int depth, bool byGlyph) {
    Canvas canvas(kWidth, kHeight, depth, depth == 32 ? 0x80C8507F : 0xC8507F);
    canvas.Font(font);
    SetTextColor(canvas, RGB(20, 200, 90));
    const std::vector<int> widths = WidthsOf(canvas, text);
    const RECT rect{4, 3, kWidth - 9, kHeight - 7};
    ExtTextOutW(canvas, x, y, ETO_CLIPPED, &rect, text.data(), static_cast<UINT>(text.size()),
                byGlyph ? widths.data() : nullptr);
    return WordsOf(canvas, depth);
}

TEST(LineImages, LeaveThePixelsThatTheGlyphsLeave) {
    for (const char* const face : {"DejaVu Sans", "DejaVu Serif", "DejaVu Sans Mono"}) {
        for (const int em : {7, 12, 13, 31}) {
            for (const BYTE italic : {BYTE{0}, BYTE{1}}) {
                LOGFONTA font = LogFont(face, -em, italic ? 700 : 400);
                font.lfItalic = italic;
                for (const int depth : {1, 8, 24, 32}) {
                    for (const int x : {-20, 3, 120}) {
                        const std::u16string_view text = u"fjWA quick_T/~ji VAT";
                        ASSERT_EQ(Painted(font, text, x, x / 3, depth, false),
                                  Painted(font, text, x, x / 3, depth, true))
                            << face << em << " " << x << " " << depth;
                    }
                }
            }
        }
    }
}

ShapedTextRef Shaped(RealizedFont& font, std::u16string_view text) {
    return Shape(TextEngine::Here(), font, text, false);
}

TEST(LineImages, PutGlyphsThatMeetIntoImagesOfTheirOwn) {
    TextEngine& engine = TextEngine::Here();
    const auto font = engine.Realize(LogFont("DejaVu Sans", -14));
    const auto layersOf = [&](std::u16string_view text) {
        return engine.Lines().Find(Shaped(*font, text), *font, engine.Glyphs())->size();
    };
    EXPECT_EQ(layersOf(u"   "), 0u);
    EXPECT_EQ(layersOf(u"l l"), 1u);
    // The same glyph over itself, without a width of its own.
    ShapedText doubled = *Shaped(*font, u"l");
    for (ShapedGlyph& glyph : doubled.glyphs) glyph.advance = 0;
    doubled.glyphs.push_back(doubled.glyphs[0]);
    const auto twice = std::make_shared<const ShapedText>(doubled);
    EXPECT_EQ(engine.Lines().Find(twice, *font, engine.Glyphs())->size(), 2u);
    for (int i = 0; i < 9; ++i) doubled.glyphs.push_back(doubled.glyphs[0]);
    const auto often = std::make_shared<const ShapedText>(doubled);
    EXPECT_EQ(engine.Lines().Find(often, *font, engine.Glyphs()), nullptr);
}

TEST(LineImages, AreKeptWithinABoundAndNotForLargeTexts) {
    TextEngine& engine = TextEngine::Here();
    const auto font = engine.Realize(LogFont("DejaVu Sans", -20));
    for (int i = 0; i < 2000; ++i) {
        const std::string number = std::to_string(i);
        const std::u16string text(number.begin(), number.end());
        ASSERT_TRUE(engine.Lines().Find(Shaped(*font, u"a line " + text), *font, engine.Glyphs()));
    }
    EXPECT_GT(engine.Lines().Cost(), LineImages::kBound / 2);
    EXPECT_LE(engine.Lines().Cost(), LineImages::kBound);
    const auto large = engine.Realize(LogFont("DejaVu Sans", -150));
    const ShapedTextRef shaped = Shaped(*large, u"wide");
    EXPECT_EQ(engine.Lines().Find(shaped, *large, engine.Glyphs()), nullptr);
    EXPECT_EQ(engine.Lines().Find(shaped, *large, engine.Glyphs()), nullptr);
}

TEST(LineImages, HoldTheTextThatTheyStandFor) {
    TextEngine& engine = TextEngine::Here();
    const auto font = engine.Realize(LogFont("DejaVu Sans", -14));
    const auto text = std::make_shared<const ShapedText>(*Shaped(*font, u"held"));
    const LineImage* const image = engine.Lines().Find(text, *font, engine.Glyphs());
    EXPECT_EQ(text.use_count(), 2);
    EXPECT_EQ(engine.Lines().Find(text, *font, engine.Glyphs()), image);
}

}  // namespace
}  // namespace vxgui::gdi
