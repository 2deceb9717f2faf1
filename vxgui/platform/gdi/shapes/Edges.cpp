#include "vxgui/base/Rounding.h"
#include "vxgui/platform/gdi/shapes/EdgeDiagonal.h"
#include "vxgui/platform/gdi/shapes/FillArea.h"
#include "vxgui/platform/gdi_shapes.h"

namespace vxgui::gdi {
namespace {

// The rectangle less one pixel at each side that is drawn.
RECT LessSides(const RECT& r, UINT flags) {
    const auto taken = [flags](UINT side) { return (flags & side) ? 1 : 0; };
    return {WrapAdd<LONG>(r.left, taken(BF_LEFT)), WrapAdd<LONG>(r.top, taken(BF_TOP)),
            WrapSub<LONG>(r.right, taken(BF_RIGHT)), WrapSub<LONG>(r.bottom, taken(BF_BOTTOM))};
}

void FillWithSystemColor(const DeviceContext& dc, const RECT& area, int color) {
    FillArea(dc, area, PlainBrush(GetSysColor(color)));
}

// The bottom and right lines come last: the two corners that they share with others are theirs.
void DrawRing(const DeviceContext& dc, const RECT& r, UINT flags, const EdgeColors& colors) {
    if (IsEmpty(r)) return;
    const auto line = [&](UINT side, const RECT& area, int color) {
        if (flags & side) FillWithSystemColor(dc, area, color);
    };
    line(BF_LEFT, {r.left, r.top, r.left + 1, r.bottom}, colors.topLeft);
    line(BF_TOP, {r.left, r.top, r.right, r.top + 1}, colors.topLeft);
    line(BF_RIGHT, {r.right - 1, r.top, r.right, r.bottom}, colors.bottomRight);
    line(BF_BOTTOM, {r.left, r.bottom - 1, r.right, r.bottom}, colors.bottomRight);
}

// Draws both rings and the middle; the result is what they leave of the rectangle.
RECT DrawStraightEdge(const DeviceContext& dc, RECT r, const EdgeLook& look, UINT flags) {
    for (const auto& ring : {look.outer, look.inner}) {
        if (!ring) continue;
        DrawRing(dc, r, flags, *ring);
        r = LessSides(r, flags);
    }
    if (look.middle) FillWithSystemColor(dc, r, *look.middle);
    return r;
}

RECT DrawDiagonalEdge(const DeviceContext& dc, RECT r, const EdgeLook& look, UINT flags) {
    DrawDiagonal(dc, r, look, flags);
    if (look.outer) r = LessSides(r, flags);
    if (look.inner) r = LessSides(r, flags);
    return r;
}

EdgeLook LookOf(UINT edge, UINT flags) {
    EdgeLook look{OuterColors(edge, flags), InnerColors(edge, flags), std::nullopt};
    if (flags & BF_MIDDLE) look.middle = MiddleColor(flags);
    return look;
}

}  // namespace

BOOL DrawEdge(HDC dc, RECT* rect, UINT edge, UINT flags) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    if (!context || !rect || IsContradictory(edge, flags)) return 0;
    const auto draw = flags & BF_DIAGONAL ? DrawDiagonalEdge : DrawStraightEdge;
    const RECT left = draw(*context, *rect, LookOf(edge, flags), flags);
    if (flags & BF_ADJUST) *rect = left;
    return 1;
}

}  // namespace vxgui::gdi
