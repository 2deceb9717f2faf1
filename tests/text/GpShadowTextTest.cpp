#include <gtest/gtest.h>

#include "tests/support/GdiplusSession.h"
#include "tests/text/TextCanvas.h"
#include "vxgui/colour/GpColor.h"
#include "vxgui/frame/VxGuiGlobal.h"
#include "vxgui/gdip/GpBrush.h"
#include "vxgui/gdip/GpFont.h"
#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/gdip/GpPen.h"
#include "vxgui/gdip/GpStringFormat.h"

namespace vxgui {
namespace {

using test::TextCanvas;

class GpShadowText : public testing::Test {
protected:
    static Ref<GpGraphics> On(TextCanvas& canvas) {
        Ref<GpGraphics> graphics = New<GpGraphics>();
        graphics->FromHDC(canvas.dc);
        return graphics;
    }
    static Ref<GpColor> ColorOf(uint32_t argb) {
        Ref<GpColor> color = New<GpColor>();
        color->Value(static_cast<int32_t>(argb));
        return color;
    }

    test::GdiplusSession session_;
};

TEST_F(GpShadowText, TheTextStandsOnASoftShadow) {
    TextCanvas canvas(200, 60, -30);
    gdi::SetTextColor(canvas.dc, gdi::RGB(200, 40, 0));
    EXPECT_EQ(Global().GpDrawShadowText(On(canvas), "Shadow", {10, 5, 180, 50}), 0);
    canvas.ExpectGolden("gdiplus/text_shadow");
}

TEST_F(GpShadowText, AGreyTextOnItsOwnShadowBecomesBlack) {
    TextCanvas canvas(200, 60, -30);
    gdi::SetTextColor(canvas.dc, gdi::RGB(128, 128, 128));
    Global().GpDrawShadowText(On(canvas), "MM", {10, 5, 180, 50}, ColorOf(0xFF808080));
    EXPECT_GT(canvas.Count(0x000000), 50) << "from a luminance of 120";
}

TEST_F(GpShadowText, ADarkGreyTextOnItsOwnShadowBecomesWhite) {
    TextCanvas canvas(200, 60, -30);
    gdi::SetTextColor(canvas.dc, 0);
    Global().GpDrawShadowText(On(canvas), "MM", {10, 5, 180, 50});
    EXPECT_EQ(canvas.Count(0x000000), 0) << "the shadow is soft, and the text is white";
    EXPECT_FALSE(canvas.IsBlank());
}

TEST_F(GpShadowText, ALuminanceOf119IsStillDark) {
    TextCanvas canvas(200, 60, -30);
    gdi::SetTextColor(canvas.dc, gdi::RGB(126, 126, 126));
    Global().GpDrawShadowText(On(canvas), "MM", {10, 5, 180, 50}, ColorOf(0xFF7E7E7E));
    EXPECT_EQ(canvas.Count(0x000000), 0);
    EXPECT_FALSE(canvas.IsBlank());
}

TEST_F(GpShadowText, AnotherAlphaIsAnotherColour) {
    TextCanvas canvas(200, 60, -30);
    gdi::SetTextColor(canvas.dc, gdi::RGB(126, 126, 126));
    Global().GpDrawShadowText(On(canvas), "MM", {10, 5, 180, 50}, ColorOf(0x807E7E7E));
    EXPECT_GT(canvas.Count(0x7E7E7E), 50) << "the text's alpha is 255";
}

TEST_F(GpShadowText, AColouredTextOnItsOwnShadowTakesTheComplement) {
    TextCanvas canvas(200, 60, -30);
    gdi::SetTextColor(canvas.dc, gdi::RGB(255, 0, 0));
    Global().GpDrawShadowText(On(canvas), "MM", {10, 5, 180, 50}, ColorOf(0xFFFF0000));
    EXPECT_GT(canvas.Count(0x00FFFF), 50);
}

TEST_F(GpShadowText, WithoutRoomNothingIsPainted) {
    TextCanvas canvas(200, 60, -30);
    Global().GpDrawShadowText(On(canvas), "MM", {10, 5, -8, 50}, nullptr, 4, 5);
    EXPECT_TRUE(canvas.IsBlank());
}

}  // namespace
}  // namespace vxgui
