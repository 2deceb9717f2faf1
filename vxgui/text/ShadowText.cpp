#include "vxgui/text/ShadowText.h"

#include <algorithm>
#include <cstring>

#include "vxgui/base/Rounding.h"
#include "vxgui/colour/modColours.h"
#include "vxgui/frame/Report.h"
#include "vxgui/text/AlphaShadow.h"
#include "vxgui/text/ScratchText.h"
#include "vxgui/text/WideText.h"

namespace vxgui {
namespace {

using Arguments = ShadowTextArguments;

constexpr ErrorReporter ReportError{"modDraw"};
constexpr int32_t kWhite = 0xFFFFFF;
constexpr int32_t kBlurHeight = 4;

bool OnlyMeasures(const Arguments& a) { return a.dwFormat & gdi::DT_CALCRECT; }

int32_t DrawAnsi(gdi::HDC dc, gdi::RECT& rect, const Arguments& a) {
    return DrawTextAnsi(dc, a.Text, a.cch, rect, a.dwFormat);
}

int32_t DrawInColor(gdi::HDC dc, gdi::RECT& rect, const Arguments& a, int32_t color) {
    const ScopedTextColor colored(dc, color);
    const ScopedBkMode transparent(dc, gdi::TRANSPARENT);
    return DrawAnsi(dc, rect, a);
}

// Alpha is in the top byte; none given is opaque.
void ShadowBytes(int32_t color, uint8_t (&bytes)[4]) {
    std::memcpy(bytes, &color, sizeof bytes);
    if (bytes[3] == 0) bytes[3] = 255;
}

void BlendWhole(cAlphaDIBSection& surface, gdi::HDC dc, int32_t x, int32_t y) {
    const int32_t w = surface.Width(), h = surface.Height();
    surface.AlphaPaintPicture(dc, x, y, w, h, 0, 0, w, h, 255, true);
}

void PaintBoxShadow(gdi::HDC hDC, const gdi::RECT& rect, const Arguments& a) {
    const int32_t x = a.ShadowX, y = a.ShadowY;
    const int32_t w = WrapAdd(WrapMul(2, x), WidthOf(rect)),
                  h = WrapAdd(WrapMul(2, y), HeightOf(rect));
    const Ref<cAlphaDIBSection> surface = ScratchSurface(w, h, hDC);
    if (!surface) return;
    {
        // The font is moved, as a context may not share it while it is selected in another.
        const BorrowedFont font(hDC, surface->hDC());
        gdi::SetTextColor(surface->hDC(), static_cast<COLORREF>(a.crText));
        gdi::SetBkColor(surface->hDC(), static_cast<COLORREF>(a.crShadow));
        gdi::SetBkMode(surface->hDC(), gdi::TRANSPARENT);
        gdi::RECT inner{x, y, WrapSub(w, x), WrapSub(h, y)};
        DrawAnsi(surface->hDC(), inner, a);
        uint8_t color[4];
        ShadowBytes(a.crShadow, color);
        MakeAlphaShadowXP(surface->DIBSectionBitsPtr(), w, h, x, y, color);
        BlendWhole(*surface, hDC, WrapAdd(WrapSub(a.ShadowOffsetX, x), rect.left),
                   WrapAdd(WrapSub(rect.top, y), a.ShadowOffsetY));
    }
}

// Where a surface for the rectangle and its margin goes, and the rectangle inside it.
struct Margined {
    gdi::RECT target;
    Ref<cAlphaDIBSection> surface;
    gdi::RECT inner;
};

Margined MarginedSurface(gdi::HDC hDC, const gdi::RECT& rect, const Arguments& a) {
    Margined m;
    m.target = Inflated(rect, a.ShadowX, a.ShadowY);
    const int32_t w = WidthOf(m.target), h = HeightOf(m.target);
    m.surface = ScratchSurface(w, h, hDC);
    m.inner = Inflated({0, 0, w, h}, WrapSub(0, a.ShadowX), WrapSub(0, a.ShadowY));
    return m;
}

void PaintBlackShadow(gdi::HDC hDC, const gdi::RECT& rect, const Arguments& a) {
    const Margined m = MarginedSurface(hDC, rect, a);
    if (!m.surface) return;
    const gdi::HDC dc = m.surface->hDC();
    std::memset(m.surface->DIBSectionBitsPtr(), 255,
                size_t(m.surface->Width()) * m.surface->Height() * 4);
    {
        const BorrowedFont font(hDC, dc);
        gdi::RECT inner = Offset(m.inner, a.ShadowOffsetX, a.ShadowOffsetY);
        // Never pure black, which is meant; white alone stays white and so leaves no shadow.
        gdi::SetTextColor(dc, static_cast<COLORREF>((a.crShadow & 0xFEFEFE) | 0x10101));
        gdi::SetBkColor(dc, gdi::GetBkColor(hDC));
        gdi::SetBkMode(dc, gdi::GetBkMode(hDC));
        DrawAnsi(dc, inner, a);
        m.surface->MaskFromColor(kWhite);
        m.surface->GaussianBlur(a.ShadowX, kBlurHeight);  // the height is a constant, on purpose
    }
    BlendWhole(*m.surface, hDC, m.target.left, m.target.top);
}

void PaintGlow(gdi::HDC hDC, const gdi::RECT& rect, const String& text, const Arguments& a) {
    const Margined m = MarginedSurface(hDC, rect, a);
    if (!m.surface) return;
    const gdi::HDC dc = m.surface->hDC();
    const int32_t w = m.surface->Width(), h = m.surface->Height();
    const gdi::HGDIOBJ old = gdi::SelectObject(dc, gdi::GetCurrentObject(hDC, gdi::OBJ_FONT));
    gdi::SetTextCharacterExtra(dc, gdi::GetTextCharacterExtra(hDC));
    gdi::SetTextColor(dc, kWhite);
    gdi::SetBkColor(dc, 0);
    gdi::SetBkMode(dc, gdi::TRANSPARENT);
    const auto length = static_cast<int32_t>(text.size());
    ExtTextOutWide(dc, m.inner.left, m.inner.top, 0, m.inner, text, length);
    Coverage mask;
    MaskFromBits(mask, m.surface->DIBSectionBitsPtr(), w, h);
    PaintFromMask(mask, m.surface->DIBSectionBitsPtr(), w, h,
                  MakeARGBFromOleColor(a.crShadow, 255));
    m.surface->GaussianBlur(a.ShadowX, a.ShadowY);
    gdi::SelectObject(dc, old);
    BlendWhole(*m.surface, hDC, m.target.left, m.target.top);
}

}  // namespace

int32_t DrawShadowTextA(gdi::HDC hDC, gdi::RECT& Rect, const ShadowTextArguments& a) {
    int32_t height = 0;
    ReportError.Guard("Public Function DrawShadowTextA", [&] {
        if (OnlyMeasures(a)) {
            height = DrawAnsi(hDC, Rect, a);
            return;
        }
        if (gdi::GetLayout(hDC) == gdi::LAYOUT_RTL) {
            // From right to left the shadow lies exactly under the text, whatever the offsets say.
            height = DrawInColor(hDC, Rect, a, a.crShadow);
        } else {
            PaintBoxShadow(hDC, Rect, a);
        }
        height = DrawInColor(hDC, Rect, a, a.crText);
    });
    return height;
}

int32_t DrawShadowTextBlur(gdi::HDC hDC, gdi::RECT& Rect, const ShadowTextArguments& a) {
    if (OnlyMeasures(a)) return DrawAnsi(hDC, Rect, a);
    PaintBlackShadow(hDC, Rect, a);
    const ScopedTextColor colored(hDC, a.crText);
    return DrawAnsi(hDC, Rect, a);
}

int32_t DrawShadowTextGlow(gdi::HDC hDC, gdi::RECT& Rect, const ShadowTextArguments& a) {
    if (OnlyMeasures(a)) return DrawAnsi(hDC, Rect, a);
    // The text is doubled on purpose; clipping decides what shows.
    const String doubled = a.Text + "\t" + a.Text;
    PaintGlow(hDC, Rect, doubled, a);
    const ScopedTextColor colored(hDC, a.crText);
    ExtTextOutWide(hDC, Rect.left, Rect.top, gdi::ETO_CLIPPED, Rect, doubled,
                   static_cast<int32_t>(doubled.size()));
    return 0;
}

void DrawShadowTextByStyle(gdi::HDC hDC, gdi::RECT& Rect, int32_t Style,
                           const ShadowTextArguments& a) {
    if (Style == 1) DrawShadowTextA(hDC, Rect, a);
    if (Style == 2) DrawShadowTextBlur(hDC, Rect, a);
    if (Style == 3) DrawShadowTextGlow(hDC, Rect, a);
}

}  // namespace vxgui
