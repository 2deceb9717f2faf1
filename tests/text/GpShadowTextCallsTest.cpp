#include <gtest/gtest.h>

#include "tests/support/FlatCalls.h"
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

using Lines = std::vector<std::string>;

/// The flat calls of shadowed and outlined text on a graphics whose text colour is red.
class ShadowTextCalls : public testing::Test {
protected:
    ShadowTextCalls() {
        gdi::SetTextColor(canvas_.dc, gdi::RGB(255, 0, 0));
        graphics_->FromHDC(canvas_.dc);
        font_->Create("DejaVu Sans", 24, 0, gdiplus::UnitPixel);
        brush_->CreateSolidBrush(0xFF00FF00);
        calls_.Take();
    }
    Lines Shadowed() {
        return calls_.TakeOf({"GdipGetDC", "GdipReleaseDC", "GdipCreateFontFromDC",
                              "GdipCreateSolidFill", "GdipCreateBitmapFromGraphics",
                              "GdipGetImageGraphicsContext", "GdipGetTextRenderingHint",
                              "GdipSetTextRenderingHint", "GdipDrawString", "GdipBitmapLockBits",
                              "GdipBitmapUnlockBits", "GdipDrawImageRectRectI"});
    }
    Lines Outlined() {
        return calls_.TakeOf({"GdipSetSmoothingMode", "GdipSetInterpolationMode", "GdipGetDC",
                              "GdipReleaseDC", "GdipCreateFontFromDC", "GdipCreateFont",
                              "GdipCreateSolidFill", "GdipCreatePen1", "GdipSetPenLineJoin",
                              "GdipCreatePath", "GdipAddPathString", "GdipDrawPath",
                              "GdipFillPath"});
    }

    test::GdiplusSession session_;
    test::FlatCalls calls_;
    test::TextCanvas canvas_{200, 60, -30};
    const Ref<GpGraphics> graphics_ = New<GpGraphics>();
    const Ref<GpFont> font_ = New<GpFont>();
    const Ref<GpBrush> brush_ = New<GpBrush>();
    const Ref<GpStringFormat> format_ = New<GpStringFormat>();
};

TEST_F(ShadowTextCalls, WhatIsLeftOutComesFromTheContext) {
    graphics_->TextRenderingHint(gdiplus::TextRenderingHintAntiAlias);
    calls_.Take();
    EXPECT_EQ(Global().GpDrawShadowText(graphics_, "text", {10, 5, 180, 50}), 0);
    EXPECT_EQ(
        Shadowed(),
        (Lines{"GdipGetDC(*, *)", "GdipCreateFontFromDC(*, *)",
               "GdipCreateSolidFill(4294901760, *)", "GdipReleaseDC(*, *)",
               "GdipCreateBitmapFromGraphics(188, 60, *, *)", "GdipGetImageGraphicsContext(*, *)",
               "GdipGetTextRenderingHint(*, *)", "GdipSetTextRenderingHint(*, 4)",
               "GdipCreateSolidFill(4278190080, *)",
               "GdipDrawString(*, \"text\", -1, *, [4 5 180 50], *, *)",
               "GdipBitmapLockBits(*, [0 0 188 60], 3, 2498570, *)", "GdipBitmapUnlockBits(*, *)",
               "GdipDrawImageRectRectI(*, *, 8, 2, 188, 60, 0, 0, 188, 60, 2, 0, 0, 0)",
               "GdipDrawString(*, \"text\", -1, *, [10 5 180 50], *, *)"}))
        << "red for the text and black for the shadow";
}

TEST_F(ShadowTextCalls, WhatIsGivenNeedsNoContextAndIsRoundedToTheEvenPixel) {
    const Ref<GpColor> color = New<GpColor>();
    color->Value(0x40123456);
    Global().GpDrawShadowText(graphics_, "text", {10.5f, 5.5f, 99.5f, 30.5f}, color, 3, 1, -7, 9,
                              font_, format_, brush_);
    EXPECT_EQ(
        Shadowed(),
        (Lines{"GdipCreateBitmapFromGraphics(106, 32, *, *)", "GdipGetImageGraphicsContext(*, *)",
               "GdipGetTextRenderingHint(*, *)", "GdipSetTextRenderingHint(*, 0)",
               "GdipCreateSolidFill(1074934870, *)",
               "GdipDrawString(*, \"text\", -1, *, [3 1 100 30], *, *)",
               "GdipBitmapLockBits(*, [0 0 106 32], 3, 2498570, *)", "GdipBitmapUnlockBits(*, *)",
               "GdipDrawImageRectRectI(*, *, 0, 14, 106, 32, 0, 0, 106, 32, 2, 0, 0, 0)",
               "GdipDrawString(*, \"text\", -1, *, [10 6 100 30], *, *)"}));
}

TEST_F(ShadowTextCalls, TheTextIsDrawnWithoutABitmapToo) {
    const std::string text = "GdipDrawString(*, \"text\", -1, *, [10 5 180 50], *, *)";
    for (const char* name : {"GdipCreateBitmapFromGraphics", "GdipGetImageGraphicsContext"}) {
        calls_.Answer(name, gdiplus::OutOfMemory);
        Global().GpDrawShadowText(graphics_, "text", {10, 5, 180, 50});
        const Lines lines = Shadowed();
        EXPECT_EQ(lines.back(), text) << name;
        EXPECT_EQ(lines[lines.size() - 2].substr(0, std::string(name).size()), name);
        calls_.AnswerNothing();
    }
    calls_.Answer("GdipBitmapLockBits", gdiplus::Win32Error);
    Global().GpDrawShadowText(graphics_, "text", {10, 5, 180, 50});
    EXPECT_EQ(Shadowed().back(), text) << "a shadow that isn't softened";
}

TEST_F(ShadowTextCalls, AFailureIsShownAndEndsIt) {
    EXPECT_EQ(Global().GpDrawShadowText(nullptr, "text", {10, 5, 180, 50}), 0);
    EXPECT_EQ(calls_.message,
              "Unexpected error in procedure: GpDrawShadowTextError #91: Object not set");
    EXPECT_EQ(calls_.messageStyle, 0x10010u);
    EXPECT_EQ(Shadowed(), Lines{});
}

TEST_F(ShadowTextCalls, WithoutRoomNothingIsDrawn) {
    for (const gdiplus::GpRectF& rect :
         {gdiplus::GpRectF{0, 0, -8, 50}, gdiplus::GpRectF{0, 0, 50, -10}}) {
        Global().GpDrawShadowText(graphics_, "text", rect);
        EXPECT_EQ(Shadowed().back(), "GdipReleaseDC(*, *)") << "what is missing is made before";
    }
}

TEST_F(ShadowTextCalls, AnOutlineTakesWhatIsMissingFromOneContext) {
    Global().DrawOutLineText(graphics_, "text", 5, 6);
    EXPECT_EQ(Outlined(),
              (Lines{"GdipSetSmoothingMode(*, 4)", "GdipSetInterpolationMode(*, 7)",
                     "GdipGetDC(*, *)", "GdipCreateFontFromDC(*, *)",
                     "GdipCreateSolidFill(4294901760, *)", "GdipCreatePen1(4278255615, 3.75, 2, *)",
                     "GdipSetPenLineJoin(*, 2)", "GdipCreatePath(0, *)", "GdipReleaseDC(*, *)",
                     "GdipAddPathString(*, \"text\", 4, *, 0, 30, [5 6 0 0], *)",
                     "GdipDrawPath(*, *, *)", "GdipFillPath(*, *, *)"}))
        << "the pen is cyan, and an eighth of the font's 30 wide";
}

TEST_F(ShadowTextCalls, APenAloneIsMadeWithoutAContext) {
    Global().DrawOutLineText(graphics_, "text", 5, 6, font_, brush_, nullptr, format_);
    EXPECT_EQ(Outlined(), (Lines{"GdipSetSmoothingMode(*, 4)", "GdipSetInterpolationMode(*, 7)",
                                 "GdipCreatePen1(4278255615, 3, 2, *)", "GdipSetPenLineJoin(*, 2)",
                                 "GdipCreatePath(0, *)",
                                 "GdipAddPathString(*, \"text\", 4, *, 0, 24, [5 6 0 0], *)",
                                 "GdipDrawPath(*, *, *)", "GdipFillPath(*, *, *)"}))
        << "cyan: no context answers -1, which as a colour is red, and that lies half a turn away";
}

TEST_F(ShadowTextCalls, ASmallFontOfTheContextIsRaisedTo20) {
    test::TextCanvas small(200, 60, -19);
    graphics_->FromHDC(small.dc);
    calls_.Take();
    Global().DrawOutLineText(graphics_, "text", 5, 6);
    EXPECT_EQ(calls_.TakeOf({"GdipCreateFont", "GdipAddPathString"}),
              (Lines{"GdipCreateFont(*, 20, 0, 0, *)",
                     "GdipAddPathString(*, \"text\", 4, *, 0, 20, [5 6 0 0], *)"}));
    const Ref<GpFont> own = New<GpFont>();
    own->Create("DejaVu Sans", 9);
    calls_.Take();
    Global().DrawOutLineText(graphics_, "text", 5, 6, own);
    EXPECT_EQ(calls_.TakeOf({"GdipAddPathString"}),
              Lines{"GdipAddPathString(*, \"text\", 4, *, 0, 9, [5 6 0 0], *)"})
        << "a caller's font stays as it is";
}

}  // namespace
}  // namespace vxgui
