#include <gtest/gtest.h>

#include "tests/text/TextCanvas.h"
#include "vxgui/frame/VxGuiGlobal.h"
#include "vxgui/text/JustifiedText.h"
#include "vxgui/text/ShadowText.h"

namespace vxgui {
namespace {

using test::TextCanvas;

constexpr uint32_t kSingle = gdi::DT_SINGLELINE;

TEST(GlobalText, AStyleOfNoughtPaintsNothing) {
    TextCanvas canvas(200, 100, -40);
    gdi::RECT rect{20, 20, 180, 80};
    EXPECT_EQ(Global().DrawShadowTextEx(canvas.dc, "text", &rect), 0);
    EXPECT_EQ(Global().DrawShadowTextEx(canvas.dc, "text", &rect, kSingle, 0), 0);
    EXPECT_TRUE(canvas.IsBlank());
}

TEST(GlobalText, MeasuringGivesTheRectangleBackAndPaintsNothing) {
    TextCanvas canvas(200, 100, -40);
    const uint32_t flags = kSingle | gdi::DT_CALCRECT;
    gdi::RECT expected{20, 20, 21, 21};
    const int32_t height = gdi::DrawTextA(canvas.dc, "text", -1, &expected, flags);
    for (int32_t style = 1; style <= 3; ++style) {
        gdi::RECT rect{20, 20, 21, 21};
        EXPECT_EQ(Global().DrawShadowTextEx(canvas.dc, "text", &rect, flags, style), 0);
        EXPECT_EQ(rect.right, expected.right);
        EXPECT_EQ(rect.bottom, expected.bottom);
    }
    gdi::RECT rect{20, 20, 21, 21};
    EXPECT_EQ(Global().DrawShadowText(canvas.dc, "text", &rect, 0, 0, flags), height);
    EXPECT_EQ(rect.right, expected.right);
    EXPECT_TRUE(canvas.IsBlank());
}

TEST(GlobalText, TheStylesAreThoseOfThePainters) {
    for (int32_t style = 1; style <= 3; ++style) {
        TextCanvas global(200, 100, -40), direct(200, 100, -40);
        gdi::RECT rect{20, 20, 180, 80};
        EXPECT_EQ(Global().DrawShadowTextEx(global.dc, "text", &rect, kSingle, style, 3, 0x204060,
                                            0x3050F0, 3, 4, 5, 6),
                  0);
        DrawShadowTextByStyle(direct.dc, rect, style,
                              {"text", 3, kSingle, 0x204060, 0x3050F0, 3, 4, 5, 6});
        EXPECT_EQ(global.picture.pixels, direct.picture.pixels);
        EXPECT_EQ(rect.right, 180);
    }
}

TEST(GlobalText, TheSoftShadowHasDefaults) {
    TextCanvas global(200, 100, -40), direct(200, 100, -40);
    gdi::RECT rect{20, 20, 180, 80};
    const int32_t height = Global().DrawShadowText(global.dc, "text", &rect, 0x204060, 0x3050F0);
    EXPECT_EQ(height,
              DrawShadowTextA(direct.dc, rect, {"text", -1, 0, 0x204060, 0x3050F0, 4, 5, 3, -2}));
    EXPECT_GT(height, 0);
    EXPECT_EQ(global.picture.pixels, direct.picture.pixels);
    EXPECT_FALSE(global.IsBlank());
}

TEST(GlobalText, JustifiedTextAnswersItsHeight) {
    TextCanvas global(200, 100), direct(200, 100);
    const gdi::RECT rect{20, 10, 120, 80};
    const String text = "words that go around more than once";
    const int32_t height = Global().DrawJustifiedText(global.dc, text, -1, &rect, -1);
    EXPECT_EQ(height, DrawJustifiedText(direct.dc, text, -1, rect, -1));
    EXPECT_GT(height, 20);
    EXPECT_EQ(global.picture.pixels, direct.picture.pixels);
    EXPECT_FALSE(global.IsBlank());
}

TEST(GlobalText, WithoutARectangleNothingIsDrawn) {
    TextCanvas canvas(200, 100);
    EXPECT_EQ(Global().DrawShadowTextEx(canvas.dc, "text", nullptr, 0, 1), 0);
    EXPECT_EQ(Global().DrawShadowText(canvas.dc, "text", nullptr, 0, 0), 0);
    EXPECT_EQ(Global().DrawJustifiedText(canvas.dc, "text", -1, nullptr, 0), 0);
    EXPECT_TRUE(canvas.IsBlank());
}

}  // namespace
}  // namespace vxgui
