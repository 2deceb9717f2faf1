#include <gtest/gtest.h>

#include "tests/support/GdiplusSession.h"
#include "tests/text/TextCanvas.h"
#include "vxgui/frame/VxGuiGlobal.h"
#include "vxgui/gdip/GpBrush.h"
#include "vxgui/gdip/GpFont.h"
#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/gdip/GpPen.h"
#include "vxgui/gdip/GpStringFormat.h"

namespace vxgui {
namespace {

using test::TextCanvas;

class OutlineText : public testing::Test {
protected:
    // A graphics over the canvas.
    static Ref<GpGraphics> On(TextCanvas& canvas) {
        Ref<GpGraphics> graphics = New<GpGraphics>();
        graphics->FromHDC(canvas.dc);
        return graphics;
    }
    static Ref<GpFont> FontOf(float size) {
        Ref<GpFont> font = New<GpFont>();
        font->Create("DejaVu Sans", size, gdiplus::FontStyleBold, gdiplus::UnitPixel);
        return font;
    }
    static Ref<GpBrush> BrushOf(gdiplus::ARGB color) {
        Ref<GpBrush> brush = New<GpBrush>();
        brush->CreateSolidBrush(color);
        return brush;
    }
    static Ref<GpPen> PenOf(gdiplus::ARGB color, float width) {
        Ref<GpPen> pen = New<GpPen>();
        pen->Create(color, width);
        return pen;
    }
    // The rows that aren't white.
    static int InkHeight(const TextCanvas& canvas) {
        int rows = 0;
        for (int y = 0; y < canvas.picture.height; ++y) {
            for (int x = 0; x < canvas.picture.width; ++x) {
                if (canvas.Colour(x, y) == 0xFFFFFF) continue;
                ++rows;
                break;
            }
        }
        return rows;
    }

    test::GdiplusSession session_;
};

TEST_F(OutlineText, AStrokeLiesUnderTheFill) {
    TextCanvas canvas(240, 60);
    EXPECT_EQ(Global().DrawOutLineText(On(canvas), "Outline", 10, 2, FontOf(40),
                                       BrushOf(0xFFFFD000), PenOf(0xFF0000A0, 4)),
              0);
    canvas.ExpectGolden("gdiplus/text_outline");
}

TEST_F(OutlineText, TheContextsFontIsUsedFrom20Upwards) {
    TextCanvas small(200, 80, -10), twenty(200, 80, -20), large(200, 80, -40);
    for (TextCanvas* canvas : {&small, &twenty, &large})
        Global().DrawOutLineText(On(*canvas), "HHH", 5, 5);
    EXPECT_GT(InkHeight(small), 13);
    EXPECT_EQ(InkHeight(small), InkHeight(twenty));
    EXPECT_GT(InkHeight(large), 1.7 * InkHeight(small));
}

TEST_F(OutlineText, TheContextsColourFillsAndItsComplementStrokes) {
    TextCanvas canvas(200, 80, -60);
    gdi::SetTextColor(canvas.dc, gdi::RGB(255, 0, 0));
    Global().DrawOutLineText(On(canvas), "M", 20, 0);
    EXPECT_GT(canvas.Count(0xFF0000), 100);
    EXPECT_GT(canvas.Count(0x00FFFF), 100) << "cyan";
}

TEST_F(OutlineText, TheGraphicsKeepsTheBestModes) {
    TextCanvas canvas(200, 80);
    const Ref<GpGraphics> graphics = On(canvas);
    Global().DrawOutLineText(graphics, "M", 20, 0);
    EXPECT_EQ(graphics->SmoothingMode(), gdiplus::SmoothingModeAntiAlias);
    EXPECT_EQ(graphics->InterpolationMode(), gdiplus::InterpolationModeHighQualityBicubic);
}

TEST_F(OutlineText, TheWrappersOwnFillsWithTheDefaultModes) {
    TextCanvas canvas(240, 60);
    const Ref<GpGraphics> graphics = On(canvas);
    const Ref<GpPen> pen = PenOf(0xFF0000A0, 5);
    ASSERT_TRUE(graphics->DrawOutLineText("Outline", FontOf(40), New<GpStringFormat>(), pen,
                                          BrushOf(0xFFFFD000), 10, 2, 0, 0));
    EXPECT_EQ(pen->LineJoin(), gdiplus::LineJoinRound);
    EXPECT_NE(graphics->SmoothingMode(), gdiplus::SmoothingModeAntiAlias);
    EXPECT_GT(canvas.Count(0xFFD000), 300);
    EXPECT_GT(canvas.Count(0x0000A0), 200);
}

}  // namespace
}  // namespace vxgui
