#include <gtest/gtest.h>

#include <functional>

#include "tests/support/GdiplusSession.h"
#include "tests/text/TextCanvas.h"
#include "vxgui/frame/modVxCoreHlp.h"
#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/text/GpString.h"
#include "vxgui/text/ShadowText.h"

namespace vxgui {
namespace {

using test::TextCanvas;

constexpr COLORREF kInk = 0x102040, kShadow = 0x8090A0;
constexpr UINT kFormat = gdi::DT_SINGLELINE | gdi::DT_CENTER;
constexpr gdi::RECT kRect{10, 12, 150, 45};

/// Each style beside the same picture drawn with the platform's own calls.
class StringStyles : public testing::Test {
protected:
    StringStyles() {
        string_->TextColor(kInk);
        string_->ShadowColor(kShadow);
        string_->DrawRect(kRect);
        string_->SetShadow(3, 2, 4, 1);
    }
    static void Text(gdi::HDC dc, COLORREF color, int dx = 0, int dy = 0) {
        gdi::RECT rect{kRect.left + dx, kRect.top + dy, kRect.right + dx, kRect.bottom + dy};
        gdi::SetTextColor(dc, color);
        gdi::DrawTextA(dc, "styled", -1, &rect, kFormat);
    }
    // What `expected` draws is what the style draws, and the context ends with `color`.
    void Expect(int32_t style, COLORREF color, const std::function<void(gdi::HDC)>& expected) {
        constexpr COLORREF kOld = 0x123456;
        TextCanvas ours(160, 60, -20), theirs(160, 60, -20);
        gdi::SetBkMode(theirs.dc, gdi::TRANSPARENT);
        gdi::SetTextColor(theirs.dc, kInk);
        expected(theirs.dc);
        EXPECT_FALSE(theirs.IsBlank());
        gdi::SetBkMode(ours.dc, gdi::OPAQUE);
        gdi::SetTextColor(ours.dc, kOld);
        const gdi::HGDIOBJ font = gdi::GetCurrentObject(ours.dc, gdi::OBJ_FONT);
        string_->Style(style);
        string_->DrawStyled(ours.dc, "styled", kFormat);
        EXPECT_EQ(ours.picture.pixels, theirs.picture.pixels);
        EXPECT_EQ(gdi::GetBkMode(ours.dc), gdi::OPAQUE);
        EXPECT_EQ(gdi::GetTextColor(ours.dc), color);
        EXPECT_EQ(gdi::GetCurrentObject(ours.dc, gdi::OBJ_FONT), font);
    }

    static constexpr COLORREF kRestored = 0x123456;
    test::GdiplusSession session_;
    const Ref<GpString> string_ = New<GpString>();
};

TEST_F(StringStyles, PlainIsTheTextAlone) {
    for (const int32_t style : {0, 7, -1}) {
        Expect(style, kRestored, [](gdi::HDC dc) { Text(dc, kInk); });
    }
}

TEST_F(StringStyles, OneIsACopyMovedByTheReach) {
    Expect(1, kRestored, [](gdi::HDC dc) {
        Text(dc, kShadow, 3, 2);
        Text(dc, kInk);
    });
}

TEST_F(StringStyles, TwoIsARing) {
    Expect(2, kRestored, [](gdi::HDC dc) {
        for (const auto& [dx, dy] :
             {std::pair{-3, -2}, {0, -2}, {3, -2}, {3, 0}, {-3, 0}, {-3, 2}, {0, 2}, {3, 2}}) {
            Text(dc, kShadow, dx, dy);
        }
        Text(dc, kInk);
    });
}

TEST_F(StringStyles, ThreeIsTwoCopiesOnADiagonal) {
    Expect(3, kRestored, [](gdi::HDC dc) {
        Text(dc, kShadow, -3, -2);
        Text(dc, kShadow, 3, 2);
        Text(dc, kInk);
    });
}

TEST_F(StringStyles, FourPassesColoursAndFormatInTheWrongPlaces) {
    Expect(4, kInk, [](gdi::HDC dc) {
        gdi::RECT rect = kRect;
        DrawShadowTextA(dc, rect,
                        {"styled", -1, kInk, static_cast<int32_t>(kShadow),
                         static_cast<int32_t>(kFormat), 3, 2, 4, 1});
    });
}

TEST_F(StringStyles, FiveIsTheBlackShadow) {
    Expect(5, kInk, [](gdi::HDC dc) {
        gdi::RECT rect = kRect;
        DrawShadowTextBlur(dc, rect,
                           {"styled", -1, kFormat, static_cast<int32_t>(kInk),
                            static_cast<int32_t>(kShadow), 3, 2, 4, 1});
    });
}

TEST_F(StringStyles, SixIsAShadowThatIsBlurredAcross) {
    const auto brushOf = [](COLORREF color) {
        Ref<GpBrush> brush = New<GpBrush>();
        brush->CreateSolidBrush(0xFF000000 | color);
        return brush;
    };
    Expect(6, kInk, [&](gdi::HDC dc) {
        const Ref<GpGraphics> graphics = New<GpGraphics>(), scratch = New<GpGraphics>();
        const Ref<GpFont> font = New<GpFont>();
        const Ref<class GpBitmap> bitmap = New<class GpBitmap>();
        graphics->FromHDC(dc);
        font->FromHDC(dc);
        bitmap->FromGraphics(146, 37, graphics->Handle());
        scratch->FromImage(reinterpret_cast<gdiplus::GpImage*>(bitmap->Handle()));
        scratch->DrawString("styled", 3, 2, 140, 33, -1, nullptr, brushOf(kShadow)->Handle(),
                            font->Handle());
        gdiplus::BitmapData data = bitmap->LockBits();
        HlpGaussianBlur(data.Scan0, 0, 146, 37, 3, 0);
        bitmap->UnlockBits(data);
        graphics->DrawBitmap(bitmap->Handle(), 10 - 3 + 4, 12 - 2 + 1);
        graphics->DrawString("styled", 10, 12, 140, 33, -1, nullptr, brushOf(kInk)->Handle(),
                             font->Handle());
    });
}

TEST_F(StringStyles, AFontOfTheStringsOwnIsNotTheContexts) {
    const Ref<GpFont> font = New<GpFont>();
    font->Create("DejaVu Serif", 9);
    string_->Font(font);
    Expect(0, kRestored, [](gdi::HDC dc) { Text(dc, kInk); });
}

}  // namespace
}  // namespace vxgui
