#include <new>

#include "vxgui/platform/gdi/shapes/DcPath.h"
#include "vxgui/platform/gdi/shapes/LatticeFill.h"
#include "vxgui/platform/gdi/shapes/RegionHandles.h"
#include "vxgui/platform/gdi_shapes.h"

namespace vxgui::gdi {

BOOL BeginPath(HDC dc) try {
    const GdiRef<DeviceContext> context = FindContext(dc);
    if (!context) return 0;
    context->state.path = std::make_shared<DcPath>();
    return 1;
} catch (const std::bad_alloc&) {
    return 0;
}

BOOL EndPath(HDC dc) try {
    const GdiRef<DeviceContext> context = FindContext(dc);
    DcPath* const path = context ? OpenPath(*context) : nullptr;
    if (!path) return 0;
    path->End();
    return 1;
} catch (const std::bad_alloc&) {
    return 0;
}

BOOL CloseFigure(HDC dc) try {
    const GdiRef<DeviceContext> context = FindContext(dc);
    DcPath* const path = context ? OpenPath(*context) : nullptr;
    if (!path) return 0;
    // Whoever fills a path closes its figures anyway.
    path->StartFigure();
    return 1;
} catch (const std::bad_alloc&) {
    return 0;
}

HRGN PathToRegion(HDC dc) try {
    const GdiRef<DeviceContext> context = FindContext(dc);
    if (!context || !context->state.path || context->state.path->IsOpen()) return nullptr;
    const std::shared_ptr<DcPath> path = std::move(context->state.path);
    auto region = LatticePoints(path->Shape(), context->state.polyFillMode, kEverywhere);
    return region ? EnterRegion(std::move(*region)) : nullptr;
} catch (const std::bad_alloc&) {
    return nullptr;
}

int SetPolyFillMode(HDC dc, int mode) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    if (!context || (mode != ALTERNATE && mode != WINDING)) return 0;
    return std::exchange(context->state.polyFillMode, mode);
}

}  // namespace vxgui::gdi
