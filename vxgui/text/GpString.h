#pragma once

#include "vxgui/gdip/GpBitmap.h"
#include "vxgui/gdip/GpBrush.h"
#include "vxgui/gdip/GpFont.h"
#include "vxgui/gdip/GpStringFormat.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {

/// A string with its shadow, rendered once into an image that can be painted as often as wanted.
/// Set the font, the format and both colours before the text; without one of them `SetText`
/// raises.
class VXGUI_API GpString : public Object {
public:
    int32_t ShadowX = 0;  ///< the shadow's reach, which is also the margin around the text
    int32_t ShadowY = 0;
    int32_t ShadowOffsetX = 0;
    int32_t ShadowOffsetY = 0;

    GpString();

    Ref<GpFont> Font() const { return mFont; }
    void Font(const Ref<GpFont>& value) { mFont = value; }
    Ref<GpStringFormat> Format() const { return mFormat; }
    void Format(const Ref<GpStringFormat>& value) { mFormat = value; }
    gdiplus::TextRenderingHint TextRenderingHint() const { return mTextRenderingHint; }
    void TextRenderingHint(gdiplus::TextRenderingHint value) { mTextRenderingHint = value; }
    uint32_t TextContrast() const { return mTextContrast; }
    void TextContrast(uint32_t value) { mTextContrast = value; }
    /// Of `DrawStyled`.
    gdi::RECT DrawRect() const { return mDrawRect; }
    void DrawRect(const gdi::RECT& value) { mDrawRect = value; }
    int32_t Style() const { return mStyle; }
    void Style(int32_t value) { mStyle = value; }

    void SetShadow(int32_t shadowX, const int32_t& shadowY, int32_t shadowOffsetX,
                   int32_t shadowOffsetY);
    /// Measures and renders. A step that fails ends it, and leaves the images as they are then.
    void SetText(const String& Text);
    /// Until the next text.
    void SetBound(int32_t w, int32_t h);
    /// An ARGB value. With a top byte of 0 it is opaque; 0x80 and two bytes of 0 name a colour of
    /// the system.
    void TextColor(int32_t value);
    void ShadowColor(int32_t value);

    // What was rendered. The surface's shadow is soft; the bitmap's is the edges of one, which is what
    // `GpBitmap::GaussianBlur` leaves.
    Ref<class GpBitmap> GpBitmap() const { return mBitmap; }
    Ref<cAlphaDIBSection> AlphaDIBSection() const { return mSurface; }
    Ref<ole::Picture> Picture();

    /// Paints on a context without the images: `Style` 1 one copy, 2 a ring, 3 two copies, 4 a soft
    /// shadow, 5 a blurred black one, 6 a blurred one of the flat layer, any other none. `Format`
    /// is of `DrawTextFlags`.
    void DrawStyled(gdi::HDC hDC, const String& Text, uint32_t Format);

protected:
    ~GpString() override;

private:
    bool MeasureText(GpGraphics& graphics, const String& text);
    void Render(GpGraphics& graphics, const String& text, const Ref<GpBrush>& brush, int32_t x,
                int32_t y);
    bool RenderSurface(GpGraphics& graphics, const String& text);
    void RenderBitmap(GpGraphics& graphics, const String& text);
    void PaintByStyle(gdi::HDC hDC, const String& text, uint32_t format);
    void DrawBlurShadowGdip(gdi::HDC hDC, const String& text, const gdi::RECT& rect) const;

    Ref<GpFont> mFont;
    Ref<GpStringFormat> mFormat;
    Ref<GpBrush> mTextBrush;
    Ref<GpBrush> mShadowBrush;
    gdiplus::TextRenderingHint mTextRenderingHint = gdiplus::TextRenderingHintSystemDefault;
    uint32_t mTextContrast = 0;
    Ref<cAlphaDIBSection> mSurface;
    gdi::HDC mMemDC;
    gdi::RECT mDrawRect{};
    gdiplus::GpRectF mBound{};
    Ref<class GpBitmap> mBitmap;
    int32_t mStyle = 0;
    int32_t mTextRGB = 0;  ///< COLORREFs: the low 24 bits of the colours, as they are
    int32_t mShadowRGB = 0;
};

}  // namespace vxgui
