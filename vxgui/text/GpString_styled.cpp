#include <span>

#include "vxgui/base/OutOfMemory.h"
#include "vxgui/base/Rounding.h"
#include "vxgui/frame/modVxCoreHlp.h"
#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/text/GpString.h"
#include "vxgui/text/ScratchText.h"
#include "vxgui/text/ShadowPlaces.h"
#include "vxgui/text/ShadowText.h"

namespace vxgui {
namespace {

void PaintAt(gdi::HDC dc, const String& text, const gdi::RECT& rect, uint32_t format,
             gdi::POINT place) {
    gdi::RECT moved = Offset(rect, place.x, place.y);
    DrawTextAnsi(dc, text, -1, moved, format);
}

void PaintCopies(gdi::HDC dc, const String& text, const gdi::RECT& rect, uint32_t format,
                 int32_t color, std::span<const gdi::POINT> places) {
    const ScopedTextColor shadow(dc, color);
    for (const gdi::POINT& place : places) PaintAt(dc, text, rect, format, place);
}

Ref<GpBrush> OpaqueBrush(int32_t rgb) {
    Ref<GpBrush> brush = New<GpBrush>();
    brush->CreateSolidBrush(static_cast<gdiplus::ARGB>(rgb) | 0xFF000000);
    return brush;
}

// Across only.
void BlurBitmap(class GpBitmap& bitmap, int32_t width, int32_t height, int32_t radius) {
    gdiplus::BitmapData data = bitmap.LockBits(0, 0, width, height);
    if (data.Scan0) HlpGaussianBlur(data.Scan0, 0, width, height, radius, 0);
    bitmap.UnlockBits(data);
}

}  // namespace

void GpString::DrawStyled(gdi::HDC hDC, const String& Text, uint32_t Format) try {
    const KeepAlive keep(this);
    const ScopedBkMode transparent(hDC, gdi::TRANSPARENT);
    const COLORREF oldColor = gdi::SetTextColor(hDC, static_cast<COLORREF>(mTextRGB));
    PaintByStyle(hDC, Text, Format);
    // The shadow painters leave the text's colour in the context, which is meant.
    const bool painter = mStyle >= 4 && mStyle <= 6;
    if (!painter) gdi::SetTextColor(hDC, oldColor);
    if (mFont) gdi::SelectObject(hDC, nullptr);
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("GpString.DrawStyled");
}

void GpString::PaintByStyle(gdi::HDC hDC, const String& text, uint32_t format) {
    gdi::RECT rect = mDrawRect;
    const gdi::POINT once[] = {{ShadowX, ShadowY}};
    const auto asFormat = static_cast<int32_t>(format);
    switch (mStyle) {
        case 1:
            PaintCopies(hDC, text, rect, format, mShadowRGB, once);
            break;
        case 2:
            PaintCopies(hDC, text, rect, format, mShadowRGB, RingPlaces(ShadowX, ShadowY));
            break;
        case 3:
            PaintCopies(hDC, text, rect, format, mShadowRGB, DiagonalPlaces(ShadowX, ShadowY));
            break;
        case 4:
            // Text colour as format, shadow colour as text colour, format as shadow colour: meant.
            DrawShadowTextA(hDC, rect,
                            {text, -1, static_cast<uint32_t>(mTextRGB), mShadowRGB, asFormat,
                             ShadowX, ShadowY, ShadowOffsetX, ShadowOffsetY});
            return;
        case 5:
            DrawShadowTextBlur(hDC, rect,
                               {text, -1, format, mTextRGB, mShadowRGB, ShadowX, ShadowY,
                                ShadowOffsetX, ShadowOffsetY});
            return;
        case 6:
            DrawBlurShadowGdip(hDC, text, rect);
            return;
        default:
            break;
    }
    PaintAt(hDC, text, rect, format, {0, 0});
}

void GpString::DrawBlurShadowGdip(gdi::HDC hDC, const String& text, const gdi::RECT& rect) const {
    const Ref<GpGraphics> graphics = New<GpGraphics>();
    graphics->FromHDC(hDC);
    const Ref<GpFont> font = New<GpFont>();
    font->FromHDC(hDC);
    const Ref<GpStringFormat> format = New<GpStringFormat>();
    format->GetGenericDefault();
    const Ref<GpBrush> textBrush = OpaqueBrush(mTextRGB);
    const auto draw = [&](GpGraphics& target, int32_t x, int32_t y, const Ref<GpBrush>& brush) {
        target.DrawString(text, x, y, WidthOf(rect), HeightOf(rect), -1, format->Handle(),
                          brush->Handle(), font->Handle());
    };
    const int32_t w = WrapAdd(WrapMul(2, ShadowX), WidthOf(rect)),
                  h = WrapAdd(WrapMul(2, ShadowY), HeightOf(rect));
    const Ref<class GpBitmap> bitmap = New<class GpBitmap>();
    const Ref<GpGraphics> scratch = New<GpGraphics>();
    if (w > 0 && h > 0 && bitmap->FromGraphics(w, h, graphics->Handle()) &&
        scratch->FromImage(reinterpret_cast<gdiplus::GpImage*>(bitmap->Handle()))) {
        scratch->TextRenderingHint(graphics->TextRenderingHint());
        draw(*scratch, ShadowX, ShadowY, OpaqueBrush(mShadowRGB));
        BlurBitmap(*bitmap, w, h, ShadowX);
        // By its handle: to read its `Image` would copy it, and leave the handle behind for good.
        graphics->DrawBitmap(bitmap->Handle(), WrapAdd(WrapSub(rect.left, ShadowX), ShadowOffsetX),
                             WrapAdd(WrapSub(rect.top, ShadowY), ShadowOffsetY), w, h);
    }
    draw(*graphics, rect.left, rect.top, textBrush);
}

}  // namespace vxgui
