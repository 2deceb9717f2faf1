#include <gtest/gtest.h>

#include "tests/support/Bitmaps.h"
#include "tests/support/GdiplusSession.h"
#include "vxgui/gdip/GpBrush.h"
#include "vxgui/gdip/GpFont.h"
#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/gdip/GpStringFormat.h"
#include "vxgui/platform/gdi.h"
#include "vxgui/platform/gdi_dib.h"

namespace vxgui {
namespace {

constexpr int kWidth = 160, kHeight = 60;

/// A graphics over a black context with a font of 20 pixels and an orange text colour.
class GraphicsText : public testing::Test {
protected:
    GraphicsText() {
        uint8_t* bits = nullptr;
        dib_ = gdi::CreateDib(kWidth, kHeight, 32, &bits);
        dc_ = gdi::CreateCompatibleDC(nullptr);
        gdi::SelectObject(dc_, dib_);
        selected_ = gdi::CreateFontA(-20, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, "DejaVu Sans");
        gdi::SelectObject(dc_, selected_);
        gdi::SetTextColor(dc_, gdi::RGB(255, 128, 0));
        graphics_->FromHDC(dc_);
        graphics_->Clear(0xFF000000);
        font_->Create("DejaVu Serif", 12, 0, gdiplus::UnitPixel);
        brush_->CreateSolidBrush(0xFF00FF00);
    }
    ~GraphicsText() override {
        graphics_->Dispose();
        gdi::DeleteDC(dc_);
        gdi::DeleteObject(dib_);
        gdi::DeleteObject(selected_);
    }

    // The right edge, bottom edge and strongest colour of what isn't black.
    struct Ink {
        int right = 0, bottom = 0;
        uint32_t color = 0;
    };
    Ink Find() const {
        const test::TestPicture picture = test::PictureOf(dib_);
        Ink ink;
        for (int y = 0; y < kHeight; ++y) {
            for (int x = 0; x < kWidth; ++x) {
                const uint32_t color = picture.At(x, y) & 0xFFFFFF;
                if (color == 0) continue;
                ink.right = std::max(ink.right, x + 1);
                ink.bottom = std::max(ink.bottom, y + 1);
                ink.color = std::max(ink.color, color);
            }
        }
        return ink;
    }
    gdiplus::GpRectF Measured(gdiplus::GpFont* font = nullptr,
                              gdiplus::GpStringFormat* format = nullptr) {
        gdiplus::GpRectF box{};
        EXPECT_TRUE(graphics_->MeasureString("Measured", &box, -1, font, format));
        return box;
    }

    test::GdiplusSession session_;
    gdi::HBITMAP dib_ = nullptr;
    gdi::HDC dc_ = nullptr;
    gdi::HFONT selected_ = nullptr;
    const Ref<GpGraphics> graphics_ = New<GpGraphics>();
    const Ref<GpFont> font_ = New<GpFont>();
    const Ref<GpBrush> brush_ = New<GpBrush>();
};

TEST_F(GraphicsText, MeasuresWithTheContextsFontAndTheDefaultFormat) {
    const Ref<GpFont> same = New<GpFont>();
    same->Create("DejaVu Sans", 20, 0, gdiplus::UnitPixel);
    const Ref<GpStringFormat> typographic = New<GpStringFormat>();
    typographic->GetGenericTypographic();
    EXPECT_EQ(Measured().Width, Measured(same->Handle()).Width);
    EXPECT_NEAR(Measured().Height, 20.0 * 2384 / 2048, 1e-4);
    EXPECT_NE(Measured().Width, Measured(font_->Handle()).Width);
    EXPECT_NEAR(Measured(nullptr, typographic->Handle()).Width, Measured().Width - 20.0 / 3, 1e-3);
}

TEST_F(GraphicsText, MeasuresInALayoutRectangle) {
    const gdiplus::GpRectF layout{10, 20, 60, 30};
    gdiplus::GpRectF box{};
    int32_t units = 0, lines = 0;
    ASSERT_TRUE(graphics_->MeasureString("one two three four", &box, -1, font_->Handle(), nullptr,
                                         &layout, &units, &lines));
    EXPECT_EQ(box.X, 10);
    EXPECT_EQ(box.Y, 20);
    EXPECT_EQ(lines, 3) << "two whole lines and the top of one";
    EXPECT_GT(units, 7);
    ASSERT_TRUE(
        graphics_->MeasureString("one two", &box, 3, font_->Handle(), nullptr, nullptr, &units));
    EXPECT_EQ(units, 3);
}

TEST_F(GraphicsText, AFailureLeavesTheBoxAndSticks) {
    gdiplus::GpRectF box{1, 2, 3, 4};
    EXPECT_FALSE(graphics_->MeasureString("text", &box, -5, font_->Handle()));
    EXPECT_EQ(graphics_->Status, gdiplus::InvalidParameter);
    EXPECT_EQ(box.Width, 3);
    EXPECT_FALSE(graphics_->DrawString("text", 0, 0, 0, 0, -5));
    const Ref<GpGraphics> empty = New<GpGraphics>();
    EXPECT_FALSE(empty->MeasureString("text", &box));
    EXPECT_FALSE(empty->DrawString("text"));
}

TEST_F(GraphicsText, TheDefaultBrushExchangesRedAndBlue) {
    ASSERT_TRUE(graphics_->DrawString("MMM"));
    EXPECT_EQ(Find().color, 0x0080FFu) << "of orange";
}

TEST_F(GraphicsText, DrawsWithWhatItIsGiven) {
    ASSERT_TRUE(graphics_->DrawString("MMM", 5, 7, 100, 40, -1, nullptr, brush_->Handle(),
                                      font_->Handle()));
    EXPECT_EQ(Find().color, 0x00FF00u);
    const Ink large = [&] {
        graphics_->Clear(0xFF000000);
        graphics_->DrawString("MMM", 5, 7, 100, 40, -1, nullptr, brush_->Handle());
        return Find();
    }();
    graphics_->Clear(0xFF000000);
    graphics_->DrawString("MMM", 5, 7, 100, 40, 1, nullptr, brush_->Handle());
    EXPECT_LT(Find().right, large.right) << "one character of three";
}

TEST_F(GraphicsText, ARectangleBoundsAndASizeOf0DoesNot) {
    graphics_->DrawString("MMMMMM MMM", 5, 0, 60, 60, -1, nullptr, brush_->Handle());
    EXPECT_LE(Find().right, 65);
    graphics_->Clear(0xFF000000);
    graphics_->DrawString("MMMMMM MMM", 5, 0, 0, 60, -1, nullptr, brush_->Handle());
    EXPECT_GT(Find().right, 120) << "the measured box takes its place";
    EXPECT_LT(Find().bottom, 30) << "one line";
}

TEST_F(GraphicsText, GivesTheContextBack) {
    ASSERT_TRUE(graphics_->DrawString("M"));
    ASSERT_TRUE(graphics_->DrawString("M")) << "a context that is still out would stop this";
    const gdi::HDC dc = graphics_->GetHDC();
    EXPECT_FALSE(
        graphics_->DrawString("M", 0, 0, 0, 0, -1, nullptr, brush_->Handle(), font_->Handle()));
    EXPECT_EQ(graphics_->Status, gdiplus::ObjectBusy);
    graphics_->ReleaseHDC(dc);
}

TEST_F(GraphicsText, AFontIsReweighedThroughAGraphics) {
    ASSERT_TRUE(font_->SetWeightWithGraphics(700, graphics_)) << "the context is handed out for it";
    EXPECT_TRUE(font_->Bold());
    EXPECT_EQ(font_->SIZE(), 12);
    EXPECT_EQ(font_->Unit(), gdiplus::UnitWorld);
    ASSERT_TRUE(font_->SetWeightWithGraphics(400));
    EXPECT_FALSE(font_->Bold());
    gdi::LOGFONTA record{};
    EXPECT_TRUE(font_->GetLogFontWith(&record, graphics_));
    EXPECT_EQ(record.lfHeight, -12);
    EXPECT_TRUE(font_->GetLogFontWith(&record, nullptr));
    EXPECT_NEAR(font_->Height(graphics_->Handle()), 12.0 * 2384 / 2048, 1e-4);
    EXPECT_FALSE(font_->SetWeightWithGraphics(700, New<GpGraphics>()));
}

}  // namespace
}  // namespace vxgui
