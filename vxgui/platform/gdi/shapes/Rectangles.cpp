#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/gdi/shapes/FillArea.h"
#include "vxgui/platform/gdi_shapes.h"

namespace vxgui::gdi {
namespace {

// A system colour may stand for a brush, as its index plus one; no handle is that small.
GdiRef<Brush> BrushOrSystemColor(HBRUSH brush) {
    const auto value = reinterpret_cast<uintptr_t>(brush);
    constexpr uintptr_t kMostColors = 64;
    if (value == 0 || value > kMostColors) return Find<Brush>(brush);
    return Find<Brush>(GetSysColorBrush(static_cast<int>(value) - 1));
}

}  // namespace

int FillRect(HDC dc, const RECT* rect, HBRUSH brush) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    const GdiRef<Brush> found = BrushOrSystemColor(brush);
    if (!context || !found || !rect) return 0;
    FillArea(*context, InOrder(*rect), *found);
    return 1;
}

int FrameRect(HDC dc, const RECT* rect, HBRUSH brush) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    const GdiRef<Brush> found = Find<Brush>(brush);
    if (!context || !found || !rect || IsEmpty(*rect)) return 0;
    const auto [left, top, right, bottom] = *rect;
    FillArea(*context, RECT{left, top, right, top + 1}, *found);
    FillArea(*context, RECT{left, bottom - 1, right, bottom}, *found);
    FillArea(*context, RECT{left, top, left + 1, bottom}, *found);
    FillArea(*context, RECT{right - 1, top, right, bottom}, *found);
    return 1;
}

BOOL InvertRect(HDC dc, const RECT* rect) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    if (!context || !rect) return 0;
    InvertArea(*context, InOrder(*rect));
    return 1;
}

}  // namespace vxgui::gdi
