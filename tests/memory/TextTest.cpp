#include "tests/memory/EveryFailure.h"
#include "tests/support/GdiplusSession.h"
#include "vxgui/colour/GpColor.h"
#include "vxgui/frame/VxGuiGlobal.h"
#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/gdip/GpPen.h"
#include "vxgui/platform/gdi.h"
#include "vxgui/text/GpString.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui::test {
namespace {

void DoNothing() {}

/// A host's window with a font selected.
class TextWithoutMemory : public testing::Test {
protected:
    TextWithoutMemory() {
        kernel::SetMessageBoxFunction(
            [](const String&, const String&, UINT) { return kernel::IDOK; });
        dc_ = gdi::CreateHostDC({pixels_.data(), 200, 60, 800, false});
        font_->Create("DejaVu Sans", -20);
        gdi::SelectObject(dc_, font_->hFont());
    }
    ~TextWithoutMemory() override {
        gdi::DeleteDC(dc_);
        kernel::SetMessageBoxFunction(nullptr);
    }

    test::GdiplusSession session_;
    const String text_ = "A caption with more words than there is room for in a line";
    std::vector<uint32_t> pixels_ = std::vector<uint32_t>(size_t{200} * 60);
    gdi::HDC dc_;
    Ref<LFont> font_ = New<LFont>();
};

TEST_F(TextWithoutMemory, AStyleMeasures) {
    const Ref<TextStyle> style = New<TextStyle>();
    FailEverywhere(
        [&] {
            Ref<LFont> none;
            style->TextWidth(dc_, text_, DT_SINGLELINE, font_);
            style->TextHeight(nullptr, text_, DT_WORDBREAK, none, 90);
        },
        DoNothing);
}

TEST_F(TextWithoutMemory, AFontTurnsIntoAStandardFontAndBack) {
    const Ref<LFont> other = New<LFont>();
    FailEverywhere(
        [&] {
            other->FromStdFont(font_->StdFont());
            other->DefaultGuiFont();
        },
        DoNothing);
}

/// Runs `work` with one allocation after the other failing: errors of the library alone come out.
template <class Work>
void FailInOrder(Work work) {
    for (int warm = 0; warm < 3; ++warm) work();
    const size_t handles = gdi::HandleTable::LiveCount();
    for (const size_t n : AllocationsOf(work)) {
        const FailingMemory failing(n);
        EXPECT_TRUE(EndsWell(work)) << "allocation " << n;
        EXPECT_LE(gdi::HandleTable::LiveCount(), handles) << "allocation " << n;
    }
}

TEST_F(TextWithoutMemory, ThePaintersDraw) {
    gdi::RECT rect{5, 5, 195, 55};
    FailInOrder([&] {
        for (int32_t style = 1; style <= 3; ++style)
            Global().DrawShadowTextEx(dc_, text_, &rect, DT_WORDBREAK, style, -1, 0, 255, 3, 3);
        Global().DrawShadowText(dc_, text_, &rect, 0, 255);
        Global().DrawJustifiedText(dc_, text_, -1, &rect, -1);
    });
}

TEST_F(TextWithoutMemory, AnOutlineIsDrawn) {
    const Ref<GpGraphics> graphics = New<GpGraphics>();
    graphics->FromHDC(dc_);
    FailInOrder([&] { Global().DrawOutLineText(graphics, text_, 5, 5); });
}

TEST_F(TextWithoutMemory, AShadowOfTheFlatLayerIsDrawn) {
    const Ref<GpGraphics> graphics = New<GpGraphics>();
    graphics->FromHDC(dc_);
    FailInOrder([&] { Global().GpDrawShadowText(graphics, text_, {5, 5, 190, 50}); });
}

TEST_F(TextWithoutMemory, AStringIsRenderedAndDrawn) {
    const Ref<GpString> string = New<GpString>();
    string->Font(font_->GpFont());
    string->Format(New<GpStringFormat>());
    string->TextColor(0);
    string->ShadowColor(255);
    string->SetShadow(3, 3, 1, 1);
    string->DrawRect({5, 5, 195, 55});
    FailInOrder([&] {
        string->SetText(text_);
        for (int32_t style = 0; style <= 6; ++style) {
            string->Style(style);
            string->DrawStyled(dc_, text_, DT_WORDBREAK);
        }
    });
}

}  // namespace
}  // namespace vxgui::test
