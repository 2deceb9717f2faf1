#include "vxgui/text/GpShadowText.h"

#include <new>

#include "vxgui/base/Require.h"
#include "vxgui/base/Rounding.h"
#include "vxgui/colour/GpColor.h"
#include "vxgui/frame/ErrorBox.h"
#include "vxgui/gdip/GpBrush.h"
#include "vxgui/gdip/GpFont.h"
#include "vxgui/gdip/GpStringFormat.h"
#include "vxgui/gdip/LentContext.h"
#include "vxgui/platform/gdi_text.h"
#include "vxgui/text/AlphaShadow.h"

namespace vxgui {
namespace {

using Arguments = GpShadowTextArguments;

constexpr int16_t kMiddleLuminance = 120, kWhite = 240, kBlack = 0;

// The colour of the text, moved away from the shadow's when it is the same.
gdiplus::ARGB ContrastingColor(gdi::HDC dc, const GpColor& shadow) {
    const Ref<GpColor> color = New<GpColor>();
    color->FromColorRef(static_cast<int32_t>(gdi::GetTextColor(dc)), 255);
    if (color->Value() == shadow.Value()) {
        if (color->Saturation() == 0) {
            color->Luminance(color->Luminance() < kMiddleLuminance ? kWhite : kBlack);
        } else {
            color->Value(color->ComplementaryColor());
        }
    }
    return static_cast<gdiplus::ARGB>(color->Value());
}

void Complete(GpGraphics& graphics, Arguments& a) {
    LentContext context(graphics);
    if (!a.ShadowColor) {
        a.ShadowColor = New<GpColor>();
        a.ShadowColor->Alpha(255);
    }
    if (!a.Font) {
        a.Font = New<GpFont>();
        a.Font->FromHDC(context.Get());
    }
    if (!a.StringFormat) {
        a.StringFormat = New<GpStringFormat>();
        a.StringFormat->GetGenericDefault();
    }
    if (!a.TextBrush) {
        a.TextBrush = New<GpBrush>();
        a.TextBrush->CreateSolidBrush(ContrastingColor(context.Get(), *a.ShadowColor));
    }
}

// Draws the text with its box's corner at a place.
void DrawAt(GpGraphics& graphics, const Arguments& a, int32_t x, int32_t y, const GpBrush& brush) {
    graphics.DrawString(a.Text, x, y, RoundHalfEven(a.pRect.Width), RoundHalfEven(a.pRect.Height),
                        -1, a.StringFormat->Handle(), brush.Handle(), a.Font->Handle());
}

// A clear bitmap like the graphics' pixels, for the length of a scope.
class ScratchBitmap {
public:
    ScratchBitmap(const GpGraphics& graphics, int32_t width, int32_t height) {
        flat::GdipCreateBitmapFromGraphics(width, height, graphics.Handle(), &bitmap_);
    }
    ~ScratchBitmap() {
        if (bitmap_) flat::GdipDisposeImage(Image());
    }
    ScratchBitmap(const ScratchBitmap&) = delete;
    ScratchBitmap& operator=(const ScratchBitmap&) = delete;

    gdiplus::GpBitmap* Handle() const { return bitmap_; }
    gdiplus::GpImage* Image() const { return reinterpret_cast<gdiplus::GpImage*>(bitmap_); }

private:
    gdiplus::GpBitmap* bitmap_ = nullptr;
};

void MakeShadow(const ScratchBitmap& bitmap, const Arguments& a, int32_t width, int32_t height) {
    const gdiplus::GpRect whole{0, 0, width, height};
    gdiplus::BitmapData data{};
    flat::GdipBitmapLockBits(bitmap.Handle(), &whole,
                             gdiplus::ImageLockModeRead | gdiplus::ImageLockModeWrite,
                             gdiplus::PixelFormat32bppARGB, &data);
    if (data.Scan0)
        MakeAlphaShadow2(data.Scan0, width, height, a.ShadowX, a.ShadowY, a.ShadowColor->Value());
    flat::GdipBitmapUnlockBits(bitmap.Handle(), &data);
}

void DrawShadow(GpGraphics& graphics, const Arguments& a, int32_t width, int32_t height) {
    const ScratchBitmap bitmap(graphics, width, height);
    const Ref<GpGraphics> scratch = New<GpGraphics>();
    if (!bitmap.Handle() || !scratch->FromImage(bitmap.Image())) return;
    scratch->TextRenderingHint(graphics.TextRenderingHint());
    const Ref<GpBrush> brush = New<GpBrush>();
    brush->CreateSolidBrush(static_cast<gdiplus::ARGB>(a.ShadowColor->Value()));
    DrawAt(*scratch, a, a.ShadowX, a.ShadowY, *brush);
    MakeShadow(bitmap, a, width, height);
    graphics.DrawBitmap(bitmap.Handle(), RoundHalfEven(double{a.pRect.X} - a.ShadowX + a.ixOffset),
                        RoundHalfEven(double{a.pRect.Y} - a.ShadowY + a.iyOffset), width, height, 0,
                        0, width, height, gdiplus::UnitPixel);
}

void Draw(GpGraphics& graphics, Arguments a) {
    const int32_t width = RoundHalfEven(a.pRect.Width + 2.0 * a.ShadowX),
                  height = RoundHalfEven(a.pRect.Height + 2.0 * a.ShadowY);
    Complete(graphics, a);
    if (width <= 0 || height <= 0) return;
    DrawShadow(graphics, a, width, height);
    DrawAt(graphics, a, RoundHalfEven(a.pRect.X), RoundHalfEven(a.pRect.Y), *a.TextBrush);
}

void Report(int32_t number, const String& description) {
    // Without a break between the two, which is meant.
    ShowErrorBox(String("Unexpected error in procedure: GpDrawShadowTextError #") +
                 String::FromInt(number) + ": " + description);
}

}  // namespace

void GpDrawShadowText(const Ref<GpGraphics>& graphics, const GpShadowTextArguments& a) {
    try {
        Draw(Require(graphics, "GpDrawShadowText"), a);
    } catch (const Error& error) {
        Report(error.Number(), error.Description());
    } catch (const std::bad_alloc&) {
        Report(static_cast<int32_t>(ErrorNumber::OutOfMemory), "Out of memory");
    }
}

}  // namespace vxgui
