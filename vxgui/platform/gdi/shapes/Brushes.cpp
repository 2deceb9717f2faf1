#include <new>

#include "vxgui/platform/gdi/DeviceContext.h"
#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/gdi/shapes/PatternBrush.h"
#include "vxgui/platform/gdi_shapes.h"

namespace vxgui::gdi {
namespace {

HBRUSH EnterBrush(std::unique_ptr<Brush> brush) {
    const GdiRef<Brush> entered = Enter(std::move(brush));
    return entered ? static_cast<HBRUSH>(entered->Handle()) : nullptr;
}

}  // namespace

HBRUSH CreateSolidBrush(COLORREF color) try {
    return EnterBrush(std::make_unique<Brush>(LOGBRUSH{BS_SOLID, color, 0}));
} catch (const std::bad_alloc&) {
    return nullptr;
}

HBRUSH CreatePatternBrush(HBITMAP bitmap) try {
    const GdiRef<Bitmap> found = Find<Bitmap>(bitmap);
    return found ? EnterBrush(std::make_unique<PatternBrush>(*found)) : nullptr;
} catch (const std::bad_alloc&) {
    return nullptr;
}

BOOL SetBrushOrgEx(HDC dc, int x, int y, POINT* old) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    if (!context) return 0;
    if (old) *old = context->state.brushOrigin;
    context->state.brushOrigin = {x, y};
    return 1;
}

}  // namespace vxgui::gdi
