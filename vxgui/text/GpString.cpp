#include "vxgui/text/GpString.h"

#include "vxgui/base/OutOfMemory.h"
#include "vxgui/base/Require.h"
#include "vxgui/base/Rounding.h"
#include "vxgui/colour/modColours.h"
#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui {
namespace {

constexpr const char* kSource = "GpString";

uint32_t WithAlpha(int32_t color) {
    const auto value = static_cast<uint32_t>(color);
    if ((value & 0xFFFFFF00) == 0x80000000)
        return static_cast<uint32_t>(TranslateOleColor(color)) | 0xFF000000;
    return value >> 24 == 0 ? value | 0xFF000000 : value;
}

// Makes the brush of a colour, and answers the colour's low 24 bits.
int32_t SetColor(Ref<GpBrush>& brush, int32_t value) {
    const uint32_t color = WithAlpha(value);
    if (!brush) brush = New<GpBrush>();
    brush->CreateSolidBrush(color);
    return static_cast<int32_t>(color & 0xFFFFFF);
}

}  // namespace

GpString::GpString()
    : mSurface(New<cAlphaDIBSection>()), mMemDC(gdi::CreateCompatibleDC(nullptr)) {}

GpString::~GpString() { gdi::DeleteDC(mMemDC); }

void GpString::SetShadow(int32_t shadowX, const int32_t& shadowY, int32_t shadowOffsetX,
                         int32_t shadowOffsetY) {
    ShadowX = shadowX;
    ShadowY = shadowY;
    ShadowOffsetX = shadowOffsetX;
    ShadowOffsetY = shadowOffsetY;
}

void GpString::SetBound(int32_t w, int32_t h) {
    mBound = {0, 0, static_cast<float>(w), static_cast<float>(h)};
}

void GpString::TextColor(int32_t value) { mTextRGB = SetColor(mTextBrush, value); }

void GpString::ShadowColor(int32_t value) { mShadowRGB = SetColor(mShadowBrush, value); }

Ref<ole::Picture> GpString::Picture() { return mSurface->Picture(); }

bool GpString::MeasureText(GpGraphics& graphics, const String& text) {
    constexpr gdiplus::GpRectF kNoBounds{};
    return flat::GdipMeasureString(
               graphics.Handle(), text.data(), -1, Require(mFont, kSource).Handle(), &kNoBounds,
               Require(mFormat, kSource).Handle(), &mBound, nullptr, nullptr) == gdiplus::Ok;
}

// The measured box has a pixel to spare.
void GpString::Render(GpGraphics& graphics, const String& text, const Ref<GpBrush>& brush,
                      int32_t x, int32_t y) {
    graphics.DrawString(text, x, y, RoundHalfEven(mBound.Width + 1.0),
                        RoundHalfEven(mBound.Height + 1.0), -1, mFormat->Handle(),
                        Require(brush, kSource).Handle(), mFont->Handle());
}

void GpString::SetText(const String& Text) try {
    const KeepAlive keep(this);
    const Ref<GpGraphics> graphics = New<GpGraphics>();
    graphics->FromHDC(mMemDC);
    if (MeasureText(*graphics, Text) && RenderSurface(*graphics, Text))
        RenderBitmap(*graphics, Text);
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("GpString.SetText");
}

bool GpString::RenderSurface(GpGraphics& graphics, const String& text) {
    const int32_t w = WrapAdd(RoundHalfEven(mBound.Width + 1.0), WrapMul(2, ShadowX)),
                  h = WrapAdd(RoundHalfEven(mBound.Height + 1.0), WrapMul(2, ShadowY));
    if (!mSurface->Create(w, h)) return false;
    graphics.FromHDC(mSurface->hDC());
    graphics.TextRenderingHint(mTextRenderingHint);
    graphics.TextContrast(mTextContrast);
    Render(graphics, text, mShadowBrush, WrapAdd(ShadowOffsetX, ShadowX),
           WrapAdd(ShadowOffsetY, ShadowY));
    mSurface->GaussianBlur(ShadowX, ShadowY);
    Render(graphics, text, mTextBrush, ShadowX, ShadowY);
    return true;
}

// Drawn on the bitmap itself: its `Image` is a copy. The contrast stays the graphics' own.
void GpString::RenderBitmap(GpGraphics& graphics, const String& text) {
    mBitmap = New<class GpBitmap>();
    if (!mBitmap->FromGraphics(mSurface->Width(), mSurface->Height(), graphics.Handle())) return;
    const Ref<GpGraphics> onBitmap = New<GpGraphics>();
    onBitmap->FromImage(reinterpret_cast<gdiplus::GpImage*>(mBitmap->Handle()));
    onBitmap->TextRenderingHint(mTextRenderingHint);
    Render(*onBitmap, text, mShadowBrush, WrapAdd(ShadowOffsetX, ShadowX),
           WrapAdd(ShadowOffsetY, ShadowY));
    mBitmap->GaussianBlur(ShadowX, ShadowY, 0, 0, 0, 0);
    Render(*onBitmap, text, mTextBrush, ShadowX, ShadowY);
}

}  // namespace vxgui
