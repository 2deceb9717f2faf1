#include "vxgui/base/OutOfMemory.h"
#include "vxgui/base/Rounding.h"
#include "vxgui/colour/modColours.h"
#include "vxgui/platform/gdi.h"
#include "vxgui/text/JustifiedText.h"
#include "vxgui/text/ScratchText.h"
#include "vxgui/text/ShadowPlaces.h"
#include "vxgui/text/ShadowText.h"
#include "vxgui/text/TextStyle.h"
#include "vxgui/text/WideText.h"

namespace vxgui {
namespace {

constexpr int32_t kSpread = -1;
constexpr uint32_t kEllipses = DT_PATH_ELLIPSIS | DT_END_ELLIPSIS | DT_WORD_ELLIPSIS;

// The colour goes to the platform as a COLORREF.
COLORREF ColorRefOf(int32_t oleColor) { return static_cast<COLORREF>(TranslateOleColor(oleColor)); }

gdi::SIZE ExtentOf(gdi::HDC dc, const String& text) {
    gdi::SIZE size{};
    gdi::GetTextExtentPoint32W(dc, text.data(), static_cast<int>(text.size()), &size);
    return size;
}

// Justified text is painted from the top of its rectangle, so the rectangle is moved to the text.
void AlignTop(gdi::RECT& rect, int32_t align, int32_t height) {
    if (align == TextAlignVertCenter)
        rect.top = WrapAdd(rect.top, WrapSub(WrapSub(rect.bottom, height), rect.top) / 2);
    if (align == TextAlignVertBottom) rect.top = WrapSub(rect.bottom, height);
}

void SpreadCharacters(gdi::HDC dc, const String& text, gdi::RECT& rect, int32_t alignVert) {
    gdi::SetTextCharacterExtra(dc, 0);
    const gdi::SIZE size = ExtentOf(dc, text);
    const auto gaps = static_cast<int32_t>(text.size()) - 1;
    gdi::SetTextCharacterExtra(dc, WrapSub(WrapSub(rect.right, size.cx), rect.left) / gaps);
    AlignTop(rect, alignVert, size.cy);
}

}  // namespace

// The platform centres single lines alone; other text is measured and its rectangle moved.
gdi::RECT TextStyle::AlignRectangle(gdi::HDC hDC, const String& text, gdi::RECT rect,
                                    uint32_t& flags) const {
    if (!(flags & DT_VCENTER) || (flags & DT_SINGLELINE)) return rect;
    flags = (flags & ~uint32_t{DT_VCENTER}) | DT_WORDBREAK;
    gdi::RECT measured = rect;
    DrawTextWide(hDC, text, -1, measured, flags | DT_CALCRECT);
    const int32_t spare =
        WrapAdd(WrapSub(WrapSub(measured.top, measured.bottom), rect.top), rect.bottom);
    return Offset(rect, 0, RoundHalfEven(spare / 2.0));
}

void TextStyle::DrawText(gdi::HDC hDC, const String& Text, uint32_t Flags, Ref<class LFont>& LFont,
                         int32_t x1, int32_t y1, int32_t x2, int32_t y2) try {
    const KeepAlive keep(this);
    if (!LFont) LFont = New<class LFont>();
    mFont = LFont;
    // Each for itself: memory may have run out between them the last time.
    if (!mGraphics) mGraphics = New<GpGraphics>();
    if (!mSurface) mSurface = New<cAlphaDIBSection>();
    if (!mStringFormat) mStringFormat = New<GpStringFormat>();
    gdi::RECT rect{x1, y1, x2, y2};
    const ScopedBkMode transparent(hDC, gdi::TRANSPARENT);
    const ScopedFont font(hDC, mFont->hFont());
    ScopedTextColor colored(hDC, static_cast<int32_t>(ColorRefOf(TextColor)));
    const ScopedCharacterExtra asBefore(hDC);
    uint32_t flags = AlignedFlags(Flags & kEllipses ? Flags : Flags | DT_END_ELLIPSIS);
    if (TextAlignHorz == TextAlignHorzJustifyChar) {
        if (Text.size() < 2) {
            flags |= DT_CENTER;
        } else {
            SpreadCharacters(hDC, Text, rect, TextAlignVert);
        }
    }
    const bool moves = TextAlignVert == TextAlignVertCenter || TextAlignVert == TextAlignVertBottom;
    if (TextAlignHorz == TextAlignHorzJustify && moves)
        AlignTop(rect, TextAlignVert, ExtentOf(hDC, Text).cy);
    rect = AlignRectangle(hDC, Text, rect, flags);
    DTFlags = flags;
    PaintByStyle(hDC, Text, rect, flags, colored.Before());
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("TextStyle.DrawText");
}

void TextStyle::PaintByStyle(gdi::HDC hDC, const String& text, gdi::RECT rect, uint32_t flags,
                             COLORREF& oldColor) {
    const int32_t x = ShadowX, y = ShadowY;
    const COLORREF textRgb = ColorRefOf(TextColor), shadowRgb = ColorRefOf(ShadowColor);
    switch (TextStyle) {
        case TextStyleShadowRight:
        case TextStyleOutLine:
            PaintCopies(hDC, text, rect, flags, RingPlaces(x, y));
            break;
        case 3:
            PaintCopies(hDC, text, rect, flags, DiagonalPlaces(x, y));
            break;
        case 4:
            DrawShadowTextA(hDC, rect,
                            {text, -1, flags, static_cast<int32_t>(textRgb),
                             static_cast<int32_t>(shadowRgb), x, y, ShadowOffsetX, ShadowOffsetY});
            break;
        case 5:
            PaintBlurredShadow(hDC, text, rect);
            break;
        default:
            // The style's colour is what is put back after a plain paint, on purpose: the context
            // keeps it.
            oldColor = gdi::SetTextColor(hDC, textRgb);
            PaintTextOnce(hDC, text, rect, flags);
    }
}

void TextStyle::PaintCopies(gdi::HDC hDC, const String& text, gdi::RECT rect, uint32_t flags,
                            std::span<const gdi::POINT> places) const {
    gdi::SetTextColor(hDC, ColorRefOf(ShadowColor));
    for (const gdi::POINT& place : places)
        PaintTextOnce(hDC, text, Offset(rect, place.x, place.y), flags);
    gdi::SetTextColor(hDC, ColorRefOf(TextColor));
    PaintTextOnce(hDC, text, rect, flags);
}

void TextStyle::PaintTextOnce(gdi::HDC hDC, const String& text, const gdi::RECT& rect,
                              uint32_t flags) const {
    if (TextAlignHorz == TextAlignHorzJustify) {
        DrawJustifiedText(hDC, text, -1, rect, kSpread);
    } else if (TextAlignHorz == TextAlignHorzJustifyChar) {
        ExtTextOutWide(hDC, rect.left, rect.top, gdi::ETO_CLIPPED, rect, text,
                       static_cast<int32_t>(text.size()));
    } else {
        gdi::RECT target = rect;
        DrawTextWide(hDC, text, -1, target, flags);
    }
}

}  // namespace vxgui
