#include "vxgui/text/OutlineText.h"

#include "vxgui/base/Require.h"
#include "vxgui/colour/GpColor.h"
#include "vxgui/gdip/GpBrush.h"
#include "vxgui/gdip/GpFont.h"
#include "vxgui/gdip/GpPath.h"
#include "vxgui/gdip/GpPen.h"
#include "vxgui/gdip/GpStringFormat.h"
#include "vxgui/gdip/LentContext.h"
#include "vxgui/platform/gdi_text.h"

namespace vxgui {
namespace {

constexpr float kSmallestSize = 20;
constexpr float kPenShare = 8;  // a pen is this part of the font's size wide

Ref<GpColor> TextColorOf(gdi::HDC dc) {
    Ref<GpColor> color = New<GpColor>();
    color->FromColorRef(static_cast<int32_t>(gdi::GetTextColor(dc)), 255);
    return color;
}

Ref<GpFont> FontOf(gdi::HDC dc) {
    Ref<GpFont> font = New<GpFont>();
    font->FromHDC(dc);
    if (font->SIZE() < kSmallestSize) font->SIZE(kSmallestSize);
    return font;
}

Ref<GpPen> PenOf(GpColor& color, const GpFont& font) {
    Ref<GpPen> pen = New<GpPen>();
    pen->Create(static_cast<gdiplus::ARGB>(color.ComplementaryColor()), font.SIZE() / kPenShare,
                gdiplus::UnitPixel);
    pen->LineJoin(gdiplus::LineJoinRound);
    return pen;
}

}  // namespace

void DrawOutLineText(const Ref<GpGraphics>& graphics, const String& Text, int32_t X, int32_t Y,
                     Ref<GpFont> Font, Ref<GpBrush> TextBrush, Ref<GpPen> OutLinePen,
                     Ref<GpStringFormat> StringFormat) {
    GpGraphics& target = Require(graphics, "DrawOutLineText");
    target.SmoothingMode(gdiplus::SmoothingModeAntiAlias);
    flat::GdipSetInterpolationMode(target.Handle(), gdiplus::InterpolationModeHighQualityBicubic);
    LentContext context(target);
    Ref<GpColor> color;
    if (!Font) Font = FontOf(context.Get());
    if (!StringFormat) StringFormat = New<GpStringFormat>();
    if (!TextBrush) {
        color = TextColorOf(context.Get());
        TextBrush = New<GpBrush>();
        TextBrush->CreateSolidBrush(static_cast<gdiplus::ARGB>(color->Value()));
    }
    if (!OutLinePen) {
        // No context is fetched for this alone; that of none answers a colour too.
        if (!color) color = TextColorOf(context.Held());
        OutLinePen = PenOf(*color, *Font);
    }
    const Ref<GpPath> path = New<GpPath>();
    path->Create(gdiplus::FillModeAlternate);
    context.Release();
    path->AddString(Text, static_cast<int32_t>(Text.size()), Font->FontFamily()->Handle(),
                    Font->Style(), Font->SIZE(),
                    gdiplus::GpRectF{static_cast<float>(X), static_cast<float>(Y), 0, 0},
                    StringFormat->Handle());
    target.DrawPath(OutLinePen->Handle(), path->Handle());
    target.FillPath(TextBrush->Handle(), path->Handle());
}

}  // namespace vxgui
