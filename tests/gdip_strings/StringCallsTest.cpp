#include <gtest/gtest.h>

#include "tests/support/FlatCalls.h"
#include "tests/support/GdiplusSession.h"
#include "vxgui/gdip/GpBrush.h"
#include "vxgui/gdip/GpFont.h"
#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/gdip/GpPen.h"
#include "vxgui/gdip/GpStringFormat.h"
#include "vxgui/platform/gdi.h"
#include "vxgui/platform/gdi_dib.h"
#include "vxgui/platform/gdi_text.h"

namespace vxgui {
namespace {

using Lines = std::vector<std::string>;

/// The flat calls that string formats make, and graphics with strings.
class StringCalls : public testing::Test {
protected:
    test::GdiplusSession session_;
    test::FlatCalls calls_;
};

TEST_F(StringCalls, ANewFormatIsACopyOfTheSharedOneWhichIsGivenBack) {
    const Ref<GpStringFormat> format = New<GpStringFormat>();
    EXPECT_EQ(calls_.TakeOf({"GdipStringFormatGetGenericDefault", "GdipCloneStringFormat",
                             "GdipDeleteStringFormat"}),
              (Lines{"GdipStringFormatGetGenericDefault(*)", "GdipCloneStringFormat(*, *)",
                     "GdipDeleteStringFormat(*)"}));
    format->GetGenericTypographic();
    EXPECT_EQ(calls_.Take(),
              (Lines{"GdipStringFormatGetGenericTypographic(*)", "GdipCloneStringFormat(*, *)",
                     "GdipDeleteStringFormat(*)", "GdipDeleteStringFormat(*)"}))
        << "the old one and the shared one";
}

TEST_F(StringCalls, AFormatPassesItsArguments) {
    const Ref<GpStringFormat> format = New<GpStringFormat>();
    const float stops[] = {4, 5};
    gdiplus::LANGID language = 0;
    const gdiplus::CharacterRange ranges[] = {{0, 1}, {2, 3}};
    calls_.Take();
    format->SetTabStops(2, 3, stops);
    format->SetDigitSubstitution(gdiplus::StringDigitSubstituteNational);
    format->SetDigitSubstitution(gdiplus::StringDigitSubstituteNational, 7);
    format->GetDigitSubstitution(&language);
    format->SetMeasurableCharacterRanges(2, ranges);
    format->GetTabStopCount();
    format->GetMeasurableCharacterRangeCount();
    EXPECT_EQ(calls_.Take(), (Lines{"GdipSetStringFormatTabStops(*, 3, 2, *)",
                                    "GdipSetStringFormatDigitSubstitution(*, 0, 2)",
                                    "GdipSetStringFormatDigitSubstitution(*, 7, 2)",
                                    "GdipGetStringFormatDigitSubstitution(*, *, *)",
                                    "GdipSetStringFormatMeasurableCharacterRanges(*, 2, *)",
                                    "GdipGetStringFormatTabStopCount(*, *)",
                                    "GdipGetStringFormatMeasurableCharacterRangeCount(*, *)"}));
    format->Create(5);
    EXPECT_EQ(calls_.Take(),
              (Lines{"GdipCreateStringFormat(5, 0, *)", "GdipDeleteStringFormat(*)"}));
}

TEST_F(StringCalls, ReadingTheLineAlignmentSetsTheAlignment) {
    const Ref<GpStringFormat> format = New<GpStringFormat>();
    format->LineAlignment(gdiplus::StringAlignmentCenter);
    calls_.Take();
    EXPECT_EQ(format->LineAlignment(), 0);
    EXPECT_EQ(calls_.Take(),
              (Lines{"GdipGetStringFormatLineAlign(*, *)", "GdipSetStringFormatAlign(*, 1)"}));
}

TEST_F(StringCalls, FromDTFlagsWorksOnACopyInOrder) {
    const Ref<GpStringFormat> format = New<GpStringFormat>();
    for (const bool typographic : {false, true}) {
        calls_.Take();
        ASSERT_EQ(format->FromDTFlags(gdi::DT_RIGHT | gdi::DT_VCENTER | gdi::DT_PATH_ELLIPSIS |
                                          gdi::DT_SINGLELINE | gdi::DT_HIDEPREFIX,
                                      typographic, 0x800),
                  gdiplus::Ok);
        EXPECT_EQ(
            calls_.Take(),
            (Lines{typographic ? "GdipStringFormatGetGenericTypographic(*)"
                               : "GdipStringFormatGetGenericDefault(*)",
                   "GdipCloneStringFormat(*, *)", "GdipSetStringFormatAlign(*, 2)",
                   "GdipSetStringFormatLineAlign(*, 1)", "GdipSetStringFormatTrimming(*, 5)",
                   "GdipSetStringFormatHotkeyPrefix(*, 2)", "GdipSetStringFormatFlags(*, 6144)",
                   "GdipDeleteStringFormat(*)", "GdipDeleteStringFormat(*)"}))
            << "the old format, and the source behind it";
    }
}

TEST_F(StringCalls, FromDTFlagsStopsAtTheFirstFailureAndKeepsTheOldFormat) {
    const char* const steps[] = {
        "GdipStringFormatGetGenericDefault", "GdipCloneStringFormat",
        "GdipSetStringFormatAlign",          "GdipSetStringFormatLineAlign",
        "GdipSetStringFormatTrimming",       "GdipSetStringFormatHotkeyPrefix",
        "GdipSetStringFormatFlags"};
    const Ref<GpStringFormat> format = New<GpStringFormat>();
    gdiplus::GpStringFormat* const handle = format->Handle();
    for (size_t i = 0; i < std::size(steps); ++i) {
        calls_.AnswerNothing();
        calls_.Answer(steps[i], gdiplus::ValueOverflow);
        format->Status = gdiplus::Ok;
        calls_.Take();
        EXPECT_EQ(format->FromDTFlags(0), gdiplus::ValueOverflow) << steps[i];
        EXPECT_EQ(format->Status, gdiplus::ValueOverflow);
        EXPECT_EQ(format->Handle(), handle);
        const Lines lines = calls_.Take();
        const size_t deleted = std::min<size_t>(i, 2);
        ASSERT_EQ(lines.size(), i + 1 + deleted) << steps[i];
        EXPECT_EQ(lines[i].substr(0, lines[i].find('(')), steps[i]);
        for (size_t d = 0; d < deleted; ++d)
            EXPECT_EQ(lines[i + 1 + d], "GdipDeleteStringFormat(*)") << steps[i];
    }
}

/// A graphics over a context with a text colour of orange.
class GraphicsTextCalls : public StringCalls {
protected:
    GraphicsTextCalls() {
        uint8_t* bits = nullptr;
        dib_ = gdi::CreateDib(160, 60, 32, &bits);
        dc_ = gdi::CreateCompatibleDC(nullptr);
        gdi::SelectObject(dc_, dib_);
        gdi::SetTextColor(dc_, gdi::RGB(255, 128, 1));
        graphics_->FromHDC(dc_);
        font_->Create("DejaVu Sans", 20, 0, gdiplus::UnitPixel);
        brush_->CreateSolidBrush(0xFF00FF00);
        calls_.Take();
    }
    ~GraphicsTextCalls() override {
        graphics_->Dispose();
        gdi::DeleteDC(dc_);
        gdi::DeleteObject(dib_);
    }
    // The calls that say what is drawn, and on what.
    Lines Drawn() {
        return calls_.TakeOf({"GdipStringFormatGetGenericDefault", "GdipGetDC", "GdipReleaseDC",
                              "GdipCreateFontFromDC", "GdipCreateSolidFill", "GdipMeasureString",
                              "GdipDrawString"});
    }

    gdi::HBITMAP dib_ = nullptr;
    gdi::HDC dc_ = nullptr;
    const Ref<GpGraphics> graphics_ = New<GpGraphics>();
    const Ref<GpFont> font_ = New<GpFont>();
    const Ref<GpBrush> brush_ = New<GpBrush>();
    const Ref<GpStringFormat> format_ = New<GpStringFormat>();
};

TEST_F(GraphicsTextCalls, WhatIsLeftOutOfAMeasurementIsMadeForIt) {
    gdiplus::GpRectF box{};
    ASSERT_TRUE(graphics_->MeasureString("text", &box));
    EXPECT_EQ(Drawn(), (Lines{"GdipStringFormatGetGenericDefault(*)", "GdipGetDC(*, *)",
                              "GdipCreateFontFromDC(*, *)", "GdipReleaseDC(*, *)",
                              "GdipMeasureString(*, \"text\", -1, *, [0 0 0 0], *, *, 0, 0)"}));
    const gdiplus::GpRectF layout{1, 2, 30, 40};
    int32_t units = 0, lines = 0;
    ASSERT_TRUE(graphics_->MeasureString("text", &box, 2, font_->Handle(), format_->Handle(),
                                         &layout, &units, &lines));
    EXPECT_EQ(Drawn(), Lines{"GdipMeasureString(*, \"text\", 2, *, [1 2 30 40], *, *, *, *)"});
}

TEST_F(GraphicsTextCalls, AFontThatCannotBeMadeIsNone) {
    calls_.Answer("GdipCreateFontFromDC", gdiplus::NotTrueTypeFont);
    gdiplus::GpRectF box{};
    EXPECT_FALSE(graphics_->MeasureString("text", &box));
    EXPECT_EQ(Drawn().back(), "GdipMeasureString(*, \"text\", -1, 0, [0 0 0 0], *, *, 0, 0)");
    EXPECT_EQ(graphics_->Status, gdiplus::InvalidParameter) << "of the measurement";
}

TEST_F(GraphicsTextCalls, WhatIsLeftOutOfADrawingIsMadeForIt) {
    ASSERT_TRUE(graphics_->DrawString("text", 5, 6, 70, 40));
    EXPECT_EQ(Drawn(), (Lines{"GdipStringFormatGetGenericDefault(*)", "GdipGetDC(*, *)",
                              "GdipCreateFontFromDC(*, *)", "GdipCreateSolidFill(4278288639, *)",
                              "GdipReleaseDC(*, *)",
                              "GdipDrawString(*, \"text\", -1, *, [5 6 70 40], *, *)"}))
        << "the brush is FF0180FF: red and blue of the colour exchanged, one context for both";
    ASSERT_TRUE(graphics_->DrawString("text", 5, 6, 70, 40, 3, format_->Handle(), nullptr,
                                      font_->Handle()));
    EXPECT_EQ(Drawn(),
              (Lines{"GdipGetDC(*, *)", "GdipCreateSolidFill(4278288639, *)", "GdipReleaseDC(*, *)",
                     "GdipDrawString(*, \"text\", 3, *, [5 6 70 40], *, *)"}));
}

TEST_F(GraphicsTextCalls, ARectangleBelow1IsMeasuredFirst) {
    const auto draw = [&](int32_t width, int32_t height) {
        EXPECT_TRUE(graphics_->DrawString("text", 5, 6, width, height, -1, format_->Handle(),
                                          brush_->Handle(), font_->Handle()));
        return Drawn();
    };
    EXPECT_EQ(draw(1, 1), Lines{"GdipDrawString(*, \"text\", -1, *, [5 6 1 1], *, *)"});
    gdiplus::GpRectF box{};
    const gdiplus::GpRectF layout{5, 6, 70, 0};
    graphics_->MeasureString("text", &box, -1, font_->Handle(), format_->Handle(), &layout);
    calls_.Take();
    const Lines lines = draw(70, 0);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0], "GdipMeasureString(*, \"text\", -1, *, [5 6 70 0], *, *, 0, 0)");
    std::ostringstream size;
    size << "[5 6 " << box.Width << " " << box.Height << "]";
    EXPECT_EQ(lines[1], "GdipDrawString(*, \"text\", -1, *, " + size.str() + ", *, *)");
    EXPECT_EQ(draw(0, 40).front(), "GdipMeasureString(*, \"text\", -1, *, [5 6 0 40], *, *, 0, 0)");
    EXPECT_EQ(draw(-3, 40).size(), 2u);
}

TEST_F(GraphicsTextCalls, AFailedMeasurementDoesntStopTheDrawing) {
    calls_.Answer("GdipMeasureString", gdiplus::ValueOverflow);
    EXPECT_TRUE(graphics_->DrawString("text", 5, 6, 0, 0, -1, format_->Handle(), brush_->Handle(),
                                      font_->Handle()));
    EXPECT_EQ(Drawn().back(), "GdipDrawString(*, \"text\", -1, *, [5 6 0 0], *, *)");
    EXPECT_EQ(graphics_->Status, gdiplus::ValueOverflow);
    calls_.Answer("GdipDrawString", gdiplus::GenericError);
    EXPECT_FALSE(graphics_->DrawString("text"));
    EXPECT_EQ(graphics_->Status, gdiplus::GenericError);
}

TEST_F(GraphicsTextCalls, AnOutlineIsStrokedSmoothlyAndFilledAsTheModesAreBelow) {
    const Ref<GpPen> pen = New<GpPen>();
    pen->Create(0xFF0000A0, 5);
    font_->PathEmSize();
    calls_.Take();
    ASSERT_TRUE(graphics_->DrawOutLineText("text", font_, format_, pen, brush_, 10, 2, 100, 40));
    EXPECT_EQ(
        calls_.TakeOf({"GdipSetSmoothingMode", "GdipSetInterpolationMode", "GdipCreatePath",
                       "GdipAddPathStringI", "GdipSetPenLineJoin", "GdipDrawPath", "GdipFillPath"}),
        (Lines{"GdipSetSmoothingMode(*, 4)", "GdipSetInterpolationMode(*, 7)",
               "GdipCreatePath(0, *)",
               "GdipAddPathStringI(*, \"text\", -1, *, 0, 20, [10 2 100 40], *)",
               "GdipSetPenLineJoin(*, 2)", "GdipDrawPath(*, *, *)", "GdipSetSmoothingMode(*, 0)",
               "GdipSetInterpolationMode(*, 0)", "GdipFillPath(*, *, *)"}));
}

}  // namespace
}  // namespace vxgui
