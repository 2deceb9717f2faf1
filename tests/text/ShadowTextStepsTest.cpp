#include <gtest/gtest.h>

#include <cstring>

#include "tests/text/TextCanvas.h"
#include "vxgui/colour/modColours.h"
#include "vxgui/surface/cAlphaDIBSection.h"
#include "vxgui/text/AlphaShadow.h"
#include "vxgui/text/ShadowText.h"

namespace vxgui {
namespace {

using test::TextCanvas;

constexpr gdi::RECT kRect{20, 22, 180, 82};
constexpr int32_t kInk = 0x204060, kShadow = 0x3050F0;
constexpr int32_t kReachX = 6, kReachY = 3, kOffsetX = 7, kOffsetY = -5;
constexpr int32_t kWidth = 160 + 2 * kReachX, kHeight = 60 + 2 * kReachY;

/// Each painter beside the same picture made step by step on a surface of the test's own.
class ShadowTextSteps : public testing::Test {
protected:
    ShadowTextSteps() {
        for (TextCanvas* canvas : {&ours_, &theirs_}) {
            gdi::SetBkMode(canvas->dc, gdi::TRANSPARENT);
            gdi::SetTextCharacterExtra(canvas->dc, 2);
        }
        surface_->CreateWithCompatibleDC(kWidth, kHeight, theirs_.dc);
        gdi::SelectObject(surface_->hDC(), theirs_.font->hFont());
        gdi::SetBkMode(surface_->hDC(), gdi::TRANSPARENT);
    }
    ~ShadowTextSteps() override { gdi::SelectObject(surface_->hDC(), gdi::GetStockObject(13)); }

    static ShadowTextArguments Arguments(int32_t shadow) {
        return {"Ill", -1, gdi::DT_RIGHT, kInk, shadow, kReachX, kReachY, kOffsetX, kOffsetY};
    }
    static void Text(gdi::HDC dc, int32_t color, gdi::RECT rect) {
        gdi::SetTextColor(dc, static_cast<COLORREF>(color));
        gdi::DrawTextA(dc, "Ill", -1, &rect, gdi::DT_RIGHT);
    }
    static void Line(gdi::HDC dc, int32_t color, const gdi::RECT& rect, UINT options) {
        gdi::SetTextColor(dc, static_cast<COLORREF>(color));
        gdi::ExtTextOutW(dc, rect.left, rect.top, options, &rect, u"Ill\tIll", 7, nullptr);
    }
    void Blend(int32_t x, int32_t y) {
        surface_->AlphaPaintPicture(theirs_.dc, x, y, -1, -1, 0, 0, -1, -1, 255, true);
    }
    void ExpectTheSame() {
        EXPECT_FALSE(theirs_.IsBlank());
        EXPECT_EQ(ours_.picture.pixels, theirs_.picture.pixels);
    }

    TextCanvas ours_{220, 110, -40}, theirs_{220, 110, -40};
    const Ref<cAlphaDIBSection> surface_ = New<cAlphaDIBSection>();
    gdi::RECT rect_ = kRect;
};

TEST_F(ShadowTextSteps, TheSoftShadowIsTheTextsShapeInABoxBlur) {
    DrawShadowTextA(ours_.dc, rect_, Arguments(kShadow | 0x60000000));
    Text(surface_->hDC(), kInk, {kReachX, kReachY, kReachX + 160, kReachY + 60});
    MakeAlphaShadowXP(surface_->DIBSectionBitsPtr(), kWidth, kHeight, kReachX, kReachY,
                      {0xF0, 0x50, 0x30, 0x60});
    Blend(20 - kReachX + kOffsetX, 22 - kReachY + kOffsetY);
    Text(theirs_.dc, kInk, kRect);
    ExpectTheSame();
}

TEST_F(ShadowTextSteps, TheBlackShadowIsWhatIsNotWhiteAndMovesInsideItsMargin) {
    DrawShadowTextBlur(ours_.dc, rect_, Arguments(kShadow));
    std::memset(surface_->DIBSectionBitsPtr(), 255, size_t{kWidth} * kHeight * 4);
    const int32_t left = kReachX + kOffsetX, top = kReachY + kOffsetY;
    Text(surface_->hDC(), 0x3151F1, {left, top, left + 160, top + 60});
    surface_->MaskFromColor(0xFFFFFF);
    surface_->GaussianBlur(kReachX, 4);
    Blend(20 - kReachX, 22 - kReachY);
    Text(theirs_.dc, kInk, kRect);
    ExpectTheSame();
}

TEST_F(ShadowTextSteps, TheGlowIsTheTextInWhiteTakenAsAMask) {
    DrawShadowTextGlow(ours_.dc, rect_, Arguments(kShadow));
    gdi::SetTextCharacterExtra(surface_->hDC(), 2);
    Line(surface_->hDC(), 0xFFFFFF, {kReachX, kReachY, kReachX + 160, kReachY + 60}, 0);
    Coverage mask;
    MaskFromBits(mask, surface_->DIBSectionBitsPtr(), kWidth, kHeight);
    PaintFromMask(mask, surface_->DIBSectionBitsPtr(), kWidth, kHeight,
                  MakeARGBFromOleColor(kShadow, 255));
    surface_->GaussianBlur(kReachX, kReachY);
    Blend(20 - kReachX, 22 - kReachY);
    Line(theirs_.dc, kInk, kRect, gdi::ETO_CLIPPED);
    ExpectTheSame();
}

}  // namespace
}  // namespace vxgui
