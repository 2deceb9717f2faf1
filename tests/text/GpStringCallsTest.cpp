#include <gtest/gtest.h>

#include "tests/support/FlatCalls.h"
#include "tests/support/GdiplusSession.h"
#include "tests/text/TextCanvas.h"
#include "vxgui/text/GpString.h"

namespace vxgui {
namespace {

using Lines = std::vector<std::string>;

/// The flat calls of a string that is rendered, with a font of 24 pixels and all it needs.
class StringCalls : public testing::Test {
protected:
    StringCalls() {
        const Ref<GpFont> font = New<GpFont>();
        font->Create("DejaVu Sans", 24, 0, gdiplus::UnitPixel);
        string_->Font(font);
        string_->Format(New<GpStringFormat>());
        string_->TextColor(0x102040);
        string_->ShadowColor(0x304050);
        string_->TextRenderingHint(gdiplus::TextRenderingHintAntiAlias);
        string_->TextContrast(7);
        calls_.Take();
    }
    static std::string At(int x, int y, int w, int h) {
        return "GdipDrawString(*, \"H\", -1, *, [" + std::to_string(x) + " " + std::to_string(y) +
               " " + std::to_string(w) + " " + std::to_string(h) + "], *, *)";
    }

    test::GdiplusSession session_;
    test::FlatCalls calls_;
    const Ref<GpString> string_ = New<GpString>();
};

TEST_F(StringCalls, TheTextIsRenderedOnTheSurfaceAndThenOnABitmap) {
    string_->SetShadow(5, 4, 2, 1);
    string_->SetText("H");
    const Lines lines = calls_.TakeOf(
        {"GdipMeasureString", "GdipCreateFromHDC", "GdipSetTextRenderingHint",
         "GdipSetTextContrast", "GdipDrawString", "GdipCreateBitmapFromGraphics",
         "GdipGetImageGraphicsContext", "GdipBitmapLockBits", "GdipBitmapUnlockBits"});
    // The measured box has a pixel more each way: 34.046875 by 28.9375.
    const int w = 27, h = 29;
    EXPECT_EQ(string_->AlphaDIBSection()->Width(), w + 10);
    EXPECT_EQ(string_->AlphaDIBSection()->Height(), h + 8);
    EXPECT_EQ(lines, (Lines{"GdipCreateFromHDC(*, *)",
                            "GdipMeasureString(*, \"H\", -1, *, [0 0 0 0], *, *, 0, 0)",
                            "GdipCreateFromHDC(*, *)", "GdipSetTextRenderingHint(*, 4)",
                            "GdipSetTextContrast(*, 7)", At(7, 5, w, h), At(5, 4, w, h),
                            "GdipCreateBitmapFromGraphics(37, 37, *, *)",
                            "GdipGetImageGraphicsContext(*, *)", "GdipSetTextRenderingHint(*, 4)",
                            At(7, 5, w, h), "GdipBitmapLockBits(*, [0 0 37 37], 3, 2498570, *)",
                            "GdipBitmapUnlockBits(*, *)", At(5, 4, w, h)}));
}

TEST_F(StringCalls, AStepThatFailsLeavesWhatThereIs) {
    string_->SetText("H");
    const Ref<class GpBitmap> bitmap = string_->GpBitmap();
    const int32_t width = string_->AlphaDIBSection()->Width();
    calls_.Answer("GdipMeasureString", gdiplus::GenericError);
    string_->SetText("HHH");
    EXPECT_EQ(string_->AlphaDIBSection()->Width(), width);
    EXPECT_EQ(string_->GpBitmap(), bitmap);
    calls_.AnswerNothing();
    string_->SetShadow(-100, 0, 0, 0);
    string_->SetText("HHH");
    EXPECT_EQ(string_->GpBitmap(), bitmap) << "no surface of that size";
    string_->SetShadow(0, 0, 0, 0);
    calls_.Answer("GdipCreateBitmapFromGraphics", gdiplus::OutOfMemory);
    calls_.Take();
    string_->SetText("HHH");
    EXPECT_GT(string_->AlphaDIBSection()->Width(), width) << "the surface is drawn by then";
    EXPECT_EQ(string_->GpBitmap()->Handle(), nullptr);
    EXPECT_EQ(calls_.TakeOf({"GdipDrawString"}).size(), 2u);
}

TEST_F(StringCalls, ColoursAreOpaqueOrOfTheSystemOrAsTheyStand) {
    struct Row {
        uint32_t color, brush;
    };
    for (const Row& row :
         {Row{0x00102040, 0xFF102040}, Row{0x80000005, 0xFF000005}, Row{0x80000100, 0x80000100},
          Row{0x80FF0000, 0x80FF0000}, Row{0x01000000, 0x01000000}, Row{0, 0xFF000000}}) {
        const Lines expected{"GdipCreateSolidFill(" + std::to_string(row.brush) + ", *)"};
        calls_.Take();
        string_->TextColor(static_cast<int32_t>(row.color));
        EXPECT_EQ(calls_.TakeOf({"GdipCreateSolidFill"}), expected) << std::hex << row.color;
        string_->ShadowColor(static_cast<int32_t>(row.color));
        EXPECT_EQ(calls_.TakeOf({"GdipCreateSolidFill"}), expected) << std::hex << row.color;
    }
}

TEST_F(StringCalls, Style6DrawsABlurredBitmapUnderTheText) {
    test::TextCanvas canvas(160, 60, -20);
    string_->DrawRect({10, 12, 150, 45});
    string_->SetShadow(3, 2, 1, -1);
    string_->Style(6);
    calls_.Take();
    string_->DrawStyled(canvas.dc, "H", gdi::DT_CENTER);
    EXPECT_EQ(
        calls_.TakeOf({"GdipCreateFromHDC", "GdipCreateFontFromDC", "GdipCreateSolidFill",
                       "GdipCreateBitmapFromGraphics", "GdipGetImageGraphicsContext",
                       "GdipGetTextRenderingHint", "GdipSetTextRenderingHint", "GdipDrawString",
                       "GdipBitmapLockBits", "GdipBitmapUnlockBits", "GdipDrawImageRectRectI"}),
        (Lines{"GdipCreateFromHDC(*, *)", "GdipCreateFontFromDC(*, *)",
               "GdipCreateSolidFill(4279246912, *)", "GdipCreateBitmapFromGraphics(146, 37, *, *)",
               "GdipGetImageGraphicsContext(*, *)", "GdipGetTextRenderingHint(*, *)",
               "GdipSetTextRenderingHint(*, 0)", "GdipCreateSolidFill(4281352272, *)",
               At(3, 2, 140, 33), "GdipBitmapLockBits(*, [0 0 146 37], 3, 2498570, *)",
               "GdipBitmapUnlockBits(*, *)",
               "GdipDrawImageRectRectI(*, *, 8, 9, 146, 37, 0, 0, 146, 37, 2, 0, 0, 0)",
               At(10, 12, 140, 33)}));
    string_->SetShadow(-70, 0, 0, 0);
    string_->DrawStyled(canvas.dc, "H", 0);
    EXPECT_EQ(calls_.TakeOf({"GdipCreateBitmapFromGraphics", "GdipDrawString"}),
              Lines{At(10, 12, 140, 33)})
        << "no room for a shadow";
}

TEST_F(StringCalls, Style6LeavesNoObjectBehind) {
    test::TextCanvas canvas(160, 60, -20);
    string_->DrawRect({10, 12, 150, 45});
    string_->SetShadow(3, 2, 0, 0);
    string_->Style(6);
    calls_.Take();
    string_->DrawStyled(canvas.dc, "H", 0);
    EXPECT_EQ(calls_.TakeOf({"GdipCreateBitmapFromGraphics", "GdipCloneImage", "GdipDisposeImage"}),
              (Lines{"GdipCreateBitmapFromGraphics(146, 37, *, *)", "GdipDisposeImage(*)"}));
}

}  // namespace
}  // namespace vxgui
