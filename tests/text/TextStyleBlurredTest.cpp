#include <gtest/gtest.h>

#include "tests/support/FlatCalls.h"
#include "tests/support/GdiplusSession.h"
#include "tests/text/TextCanvas.h"
#include "vxgui/gdip/GpFont.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {
namespace {

using test::TextCanvas;

constexpr int32_t kInk = 0x402010;     // a COLORREF: red 10, green 20, blue 40
constexpr int32_t kShadow = 0x0000FF;  // red

class BlurredShadow : public testing::Test {
protected:
    static Ref<TextStyle> StyleOf(int32_t shadowX, int32_t shadowY, int32_t thickness = 4,
                                  int32_t offset = 0) {
        const Ref<TextStyle> style = New<TextStyle>();
        style->Create(kInk, 0, 0, 5, 4, kShadow, thickness, shadowX, shadowY, offset, offset);
        return style;
    }
    static void Draw(TextCanvas& canvas, const Ref<TextStyle>& style,
                     const String& text = "Blurred") {
        style->DrawText(canvas.dc, text, DT_SINGLELINE, canvas.font, 10, 10, 150, 50);
    }
    // How much red there is more than blue, which only the shadow has.
    static int Redness(const TextCanvas& canvas) {
        int redness = 0;
        for (const uint32_t pixel : canvas.picture.pixels)
            redness += static_cast<int>(pixel >> 16 & 255) - static_cast<int>(pixel >> 8 & 255);
        return redness;
    }

    test::GdiplusSession session_;
};

TEST_F(BlurredShadow, LiesUnderTheText) {
    TextCanvas canvas(160, 60, -24);
    Draw(canvas, StyleOf(4, 4, 8, 2));
    canvas.ExpectGolden("gdiplus/style_blurred");
}

TEST_F(BlurredShadow, WithoutReachThereIsOnlyTheText) {
    TextCanvas canvas(160, 60), shadowed(160, 60);
    Draw(canvas, StyleOf(0, 0));
    EXPECT_FALSE(canvas.IsBlank());
    EXPECT_LE(Redness(canvas), 0) << "the ink has more blue than red";
    Draw(shadowed, StyleOf(0, 2));
    EXPECT_GT(Redness(shadowed), 1000) << "one way is enough";
}

TEST_F(BlurredShadow, ThicknessScalesIt) {
    TextCanvas none(160, 60), half(160, 60), neutral(160, 60), full(160, 60);
    Draw(none, StyleOf(3, 3, 0));
    Draw(half, StyleOf(3, 3, 2));
    Draw(neutral, StyleOf(3, 3, 4));
    Draw(full, StyleOf(3, 3, 8));
    EXPECT_LE(Redness(none), 0) << "0 erases it";
    EXPECT_LT(Redness(none), Redness(half));
    EXPECT_LT(Redness(half), Redness(neutral));
    EXPECT_LT(Redness(neutral), Redness(full));
}

TEST_F(BlurredShadow, AShadowThatCannotBeMadeIsLeftOut) {
    TextCanvas canvas(160, 60);
    const Ref<TextStyle> style = StyleOf(-100, 2);
    Draw(canvas, style);
    EXPECT_FALSE(canvas.IsBlank());
    EXPECT_LE(Redness(canvas), 0);
}

TEST_F(BlurredShadow, TheContextKeepsItsColourAndMode) {
    TextCanvas canvas(160, 60);
    gdi::SetTextColor(canvas.dc, 0x123456);
    gdi::SetBkMode(canvas.dc, gdi::OPAQUE);
    const gdi::HGDIOBJ font = gdi::GetCurrentObject(canvas.dc, gdi::OBJ_FONT);
    Draw(canvas, StyleOf(3, 3));
    EXPECT_EQ(gdi::GetTextColor(canvas.dc), 0x123456u);
    EXPECT_EQ(gdi::GetBkMode(canvas.dc), gdi::OPAQUE);
    EXPECT_EQ(gdi::GetCurrentObject(canvas.dc, gdi::OBJ_FONT), font);
}

TEST_F(BlurredShadow, TheQualityOfTheFontIsTheRenderingHint) {
    TextCanvas mono(160, 60), smooth(160, 60);
    mono.font->Quality = 1;  // one bit a pixel
    Draw(mono, StyleOf(0, 0));
    for (const uint32_t pixel : mono.picture.pixels)
        EXPECT_TRUE((pixel & 0xFFFFFF) == 0xFFFFFF || (pixel & 0xFFFFFF) == 0x102040);
    Draw(smooth, StyleOf(0, 0));
    EXPECT_LT(smooth.Count(0x102040), mono.Count(0x102040));
}

TEST_F(BlurredShadow, DrawsTheShadowOnASurfaceAndThenTheText) {
    TextCanvas canvas(160, 60);
    const Ref<TextStyle> style = StyleOf(3, 2);
    style->ShadowOffsetX = 1;
    style->ShadowOffsetY = -1;
    style->TextContrast = 6;
    style->FormatFlags = 0x800;
    style->TextAlignHorz = TextAlignHorzRight;
    style->TextBrush();
    style->ShadowBrush();
    canvas.font->GpFont();
    test::FlatCalls calls;
    Draw(canvas, style, "text");
    const std::vector<std::string> lines =
        calls.TakeOf({"GdipStringFormatGetGenericTypographic", "GdipSetStringFormatAlign",
                      "GdipSetStringFormatFlags", "GdipCreateFromHDC", "GdipSetTextRenderingHint",
                      "GdipSetTextContrast", "GdipDrawString", "GdipDeleteGraphics"});
    EXPECT_EQ(
        lines,
        (std::vector<std::string>{
            "GdipStringFormatGetGenericTypographic(*)", "GdipSetStringFormatAlign(*, 2)",
            "GdipSetStringFormatFlags(*, 6144)", "GdipCreateFromHDC(*, *)",
            "GdipSetTextRenderingHint(*, 4)", "GdipSetTextContrast(*, 6)",
            "GdipDrawString(*, \"text\", -1, *, [4 1 140 40], *, *)", "GdipCreateFromHDC(*, *)",
            "GdipDeleteGraphics(*)", "GdipSetTextRenderingHint(*, 4)", "GdipSetTextContrast(*, 6)",
            "GdipDrawString(*, \"text\", -1, *, [10 10 140 40], *, *)", "GdipDeleteGraphics(*)"}));
}

TEST_F(BlurredShadow, FormatFlagsActOnIt) {
    TextCanvas plain(160, 60), vertical(160, 60);
    const Ref<TextStyle> style = StyleOf(0, 0);
    Draw(plain, style);
    style->FormatFlags = gdiplus::StringFormatFlagsDirectionVertical;
    Draw(vertical, style);
    EXPECT_FALSE(vertical.IsBlank());
    EXPECT_NE(plain.picture.pixels, vertical.picture.pixels);
}

TEST_F(BlurredShadow, AlignsByTheFlags) {
    const auto firstColumn = [](const Ref<TextStyle>& style) {
        TextCanvas canvas(160, 60);
        Draw(canvas, style, "i");
        for (int x = 0; x < 160; ++x) {
            for (int y = 0; y < 60; ++y) {
                if (canvas.Colour(x, y) != 0xFFFFFF) return x;
            }
        }
        return -1;
    };
    const Ref<TextStyle> style = StyleOf(0, 0);
    EXPECT_NEAR(firstColumn(style), 11, 2);
    style->TextAlignHorz = TextAlignHorzCenter;
    EXPECT_NEAR(firstColumn(style), 79, 2);
    style->TextAlignHorz = TextAlignHorzRight;
    EXPECT_NEAR(firstColumn(style), 147, 2);
}

TEST_F(BlurredShadow, BrushesDontFollowTheFields) {
    const Ref<TextStyle> style = StyleOf(1, 1);
    const Ref<GpBrush> text = style->TextBrush();
    EXPECT_EQ(text->GetColor(), 0xFF102040u);
    EXPECT_EQ(style->ShadowBrush()->GetColor(), 0xFFFF0000u);
    style->TextColor = 0;
    style->ShadowColor = 0;
    EXPECT_EQ(style->TextBrush(), text);
    EXPECT_EQ(style->TextBrush()->GetColor(), 0xFF102040u);
    EXPECT_EQ(style->ShadowBrush()->GetColor(), 0xFFFF0000u);
    EXPECT_EQ(style->Clone()->TextBrush()->GetColor(), 0xFF000000u) << "a clone makes its own";
}

TEST_F(BlurredShadow, ThePenDoesntFollowTheFieldsEither) {
    const Ref<TextStyle> style = StyleOf(3, 1);
    const Ref<GpPen> pen = style->ShadowPen();
    EXPECT_EQ(pen->Color(), 0xFFFF0000u);
    EXPECT_EQ(pen->Width(), 6);
    EXPECT_EQ(pen->Unit(), gdiplus::UnitPixel);
    style->ShadowX = 9;
    EXPECT_EQ(style->ShadowPen(), pen);
}

TEST_F(BlurredShadow, AFontThatIsMissingIsReplacedInTheCallersVariable) {
    TextCanvas canvas(160, 60);
    Ref<LFont> none;
    StyleOf(2, 2)->DrawText(canvas.dc, "text", DT_SINGLELINE, none, 10, 10, 150, 50);
    EXPECT_TRUE(none);
    EXPECT_FALSE(canvas.IsBlank());
}

}  // namespace
}  // namespace vxgui
