#include "vxgui/text/GpString.h"

#include <gtest/gtest.h>

#include "tests/support/Errors.h"
#include "tests/support/GdiplusSession.h"
#include "tests/text/TextCanvas.h"
#include "vxgui/platform/gdi/HandleTable.h"

namespace vxgui {
namespace {

using test::TextCanvas;

class RenderedString : public testing::Test {
protected:
    RenderedString() {
        const Ref<GpFont> font = New<GpFont>();
        font->Create("DejaVu Sans", 24, 0, gdiplus::UnitPixel);
        string_->Font(font);
        string_->Format(New<GpStringFormat>());
        string_->TextColor(0x102040);
        string_->ShadowColor(static_cast<int32_t>(0x80FF0000));
        string_->TextContrast(4);
    }

    test::GdiplusSession session_;
    const Ref<GpString> string_ = New<GpString>();
};

TEST_F(RenderedString, HoldsTheTextOnItsShadow) {
    string_->SetShadow(5, 4, 2, 2);
    string_->SetText("Rendered");
    const Ref<cAlphaDIBSection> surface = string_->AlphaDIBSection();
    ASSERT_GT(surface->Width(), 100);
    TextCanvas canvas(surface->Width() + 10, surface->Height() + 10);
    surface->AlphaPaintPicture(canvas.dc, 5, 5, -1, -1, 0, 0, -1, -1, 255, true);
    canvas.ExpectGolden("gdiplus/rendered_string");
    ASSERT_TRUE(string_->GpBitmap());
    EXPECT_EQ(string_->GpBitmap()->Width(), surface->Width());
    EXPECT_EQ(string_->GpBitmap()->Height(), surface->Height());
    EXPECT_TRUE(string_->Picture());
}

TEST_F(RenderedString, TheBitmapHoldsTheSameText) {
    string_->SetText("Same");
    const Ref<class GpBitmap> bitmap = string_->GpBitmap();
    int ink = 0;
    for (int32_t y = 0; y < bitmap->Height(); ++y) {
        for (int32_t x = 0; x < bitmap->Width(); ++x) ink += bitmap->GetPixel(x, y) == 0xFF102040;
    }
    EXPECT_GT(ink, 20);
}

TEST_F(RenderedString, MeasuresAgainOnEveryCall) {
    string_->SetBound(500, 400);
    string_->SetText("i");
    const int32_t width = string_->AlphaDIBSection()->Width();
    EXPECT_LT(width, 40);
    string_->SetText("iiii");
    EXPECT_GT(string_->AlphaDIBSection()->Width(), width);
}

TEST_F(RenderedString, WithoutReachThereIsAPixelToSpareAndNoMargin) {
    string_->SetText("H");
    const int32_t width = string_->AlphaDIBSection()->Width();
    // H is 1540 units wide, the padding a sixth of the em on both sides.
    EXPECT_NEAR(width, 24.0 * 1540 / 2048 + 24.0 / 3 + 1, 0.5);
    EXPECT_NEAR(string_->AlphaDIBSection()->Height(), 24.0 * 2384 / 2048 + 1, 0.5);
    string_->SetShadow(3, 2, 0, 0);
    string_->SetText("H");
    EXPECT_EQ(string_->AlphaDIBSection()->Width(), width + 6);
}

TEST_F(RenderedString, ItsContextEndsWithIt) {
    const size_t before = gdi::HandleTable::LiveCount();
    Ref<GpString> other = New<GpString>();
    EXPECT_GT(gdi::HandleTable::LiveCount(), before);
    other = nullptr;
    EXPECT_EQ(gdi::HandleTable::LiveCount(), before);
}

TEST_F(RenderedString, NeedsItsObjects) {
    const Ref<GpString> empty = New<GpString>();
    EXPECT_EQ(test::RaisedBy([&] { empty->SetText("text"); }), 91);
    empty->Font(string_->Font());
    EXPECT_EQ(test::RaisedBy([&] { empty->SetText("text"); }), 91);
    empty->Format(string_->Format());
    EXPECT_EQ(test::RaisedBy([&] { empty->SetText("text"); }), 91) << "the shadow's brush";
    empty->TextColor(0);
    empty->ShadowColor(0);
    EXPECT_EQ(test::RaisedBy([&] { empty->SetText("text"); }), 0);
}

TEST_F(RenderedString, AStyleThatIsNonePaintsTheTextOnce) {
    TextCanvas plain(160, 50, -20), ring(160, 50, -20);
    string_->DrawRect({10, 10, 150, 45});
    string_->DrawStyled(plain.dc, "styled", gdi::DT_SINGLELINE);
    EXPECT_FALSE(plain.IsBlank());
    EXPECT_EQ(gdi::GetTextColor(plain.dc), 0u) << "the old colour is back";
    string_->SetShadow(2, 2, 0, 0);
    string_->Style(2);
    string_->DrawStyled(ring.dc, "styled", gdi::DT_SINGLELINE);
    EXPECT_NE(plain.picture.pixels, ring.picture.pixels);
    EXPECT_EQ(gdi::GetTextColor(ring.dc), 0u);
}

TEST_F(RenderedString, EveryStylePaintsInItsOwnWay) {
    std::vector<std::vector<uint32_t>> pictures;
    string_->DrawRect({10, 10, 150, 45});
    string_->SetShadow(3, 2, 1, 1);
    for (const int32_t style : {0, 1, 2, 3, 5, 6}) {
        TextCanvas canvas(160, 55, -20);
        gdi::SetBkMode(canvas.dc, gdi::OPAQUE);
        string_->Style(style);
        string_->DrawStyled(canvas.dc, "styled", gdi::DT_SINGLELINE);
        EXPECT_FALSE(canvas.IsBlank()) << style;
        EXPECT_EQ(gdi::GetBkMode(canvas.dc), gdi::OPAQUE) << style;
        for (const auto& other : pictures) EXPECT_NE(other, canvas.picture.pixels) << style;
        pictures.push_back(canvas.picture.pixels);
    }
}

TEST_F(RenderedString, Style4ExchangesColoursAndFormat) {
    // The text's colour arrives as the format: as one that only measures, it paints nothing.
    TextCanvas canvas(160, 50, -20);
    string_->DrawRect({10, 10, 150, 45});
    string_->Style(4);
    string_->TextColor(gdi::DT_CALCRECT);
    string_->DrawStyled(canvas.dc, "styled", gdi::DT_SINGLELINE);
    EXPECT_TRUE(canvas.IsBlank());
}

TEST_F(RenderedString, AColourOfTheSystemsFormIsTranslated) {
    TextCanvas canvas(160, 50, -20);
    string_->DrawRect({10, 10, 150, 45});
    string_->TextColor(static_cast<int32_t>(0x80000005));
    string_->Style(6);
    string_->DrawStyled(canvas.dc, "styled", gdi::DT_SINGLELINE);
    EXPECT_EQ(gdi::GetTextColor(canvas.dc), 5u) << "its low 24 bits count";
}

}  // namespace
}  // namespace vxgui
