#include "vxgui/base/Rounding.h"
#include "vxgui/colour/modColours.h"
#include "vxgui/gdip/GpFont.h"
#include "vxgui/surface/modBlur.h"
#include "vxgui/text/ScratchText.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {
namespace {

constexpr int32_t kNeutralThickness = 4;

Ref<GpBrush> BrushOf(int32_t oleColor) {
    Ref<GpBrush> brush = New<GpBrush>();
    brush->CreateSolidBrush(static_cast<gdiplus::ARGB>(MakeARGBFromOleColor(oleColor, 255)));
    return brush;
}

}  // namespace

Ref<GpBrush> TextStyle::TextBrush() {
    if (!mTextBrush) mTextBrush = BrushOf(TextColor);
    return mTextBrush;
}

Ref<GpBrush> TextStyle::ShadowBrush() {
    if (!mShadowBrush) mShadowBrush = BrushOf(ShadowColor);
    return mShadowBrush;
}

Ref<GpPen> TextStyle::ShadowPen() {
    if (!mShadowPen) {
        mShadowPen = New<GpPen>();
        mShadowPen->Create(static_cast<gdiplus::ARGB>(MakeARGBFromOleColor(ShadowColor, 255)),
                           static_cast<float>(ShadowX) * 2, gdiplus::UnitPixel);
    }
    return mShadowPen;
}

// The font's quality is taken as the hint: its values are of that order.
void TextStyle::DrawOn(gdi::HDC hDC, const String& text, const gdi::RECT& rect,
                       const Ref<GpBrush>& brush) {
    mGraphics->FromHDC(hDC);
    mGraphics->TextRenderingHint(static_cast<gdiplus::TextRenderingHint>(mFont->Quality));
    mGraphics->TextContrast(static_cast<uint32_t>(TextContrast));
    mGraphics->DrawString(text, rect.left, rect.top, WidthOf(rect), HeightOf(rect), -1,
                          mStringFormat->Handle(), brush->Handle(), mFont->GpFont()->Handle());
}

void TextStyle::PaintBlurred(const String& text, int32_t width, int32_t height) {
    const int32_t left = WrapAdd(ShadowOffsetX, ShadowX), top = WrapAdd(ShadowOffsetY, ShadowY);
    DrawOn(mSurface->hDC(), text, {left, top, WrapAdd(left, width), WrapAdd(top, height)},
           ShadowBrush());
    mSurface->GaussianBlur(ShadowX, ShadowY);
    if (ShadowThickness == kNeutralThickness) return;
    const int32_t w = mSurface->Width(), h = mSurface->Height();
    ScaleBitsLevel(mSurface->DIBSectionBitsPtr(), static_cast<float>(ShadowThickness / 4.0), w, h,
                   0, 0, w - 1, h - 1);
}

void TextStyle::PaintBlurredShadow(gdi::HDC hDC, const String& text, const gdi::RECT& rect) {
    const int32_t w = WidthOf(rect), h = HeightOf(rect);
    mStringFormat->FromDTFlags(DTFlags, true, FormatFlags);
    const bool hasShadow = ShadowX != 0 || ShadowY != 0;
    if (hasShadow &&
        mSurface->Create(WrapAdd(w, WrapMul(2, ShadowX)), WrapAdd(h, WrapMul(2, ShadowY)))) {
        PaintBlurred(text, w, h);
        mSurface->AlphaPaintPicture(hDC, WrapSub(rect.left, ShadowX), WrapSub(rect.top, ShadowY),
                                    -1, -1, 0, 0, -1, -1, 255, true);
        mSurface->ClearUp();
    }
    DrawOn(hDC, text, rect, TextBrush());
    mGraphics->Dispose();
    mStringFormat->Dispose();
}

}  // namespace vxgui
