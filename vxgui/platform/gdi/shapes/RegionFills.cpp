#include <algorithm>

#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/gdi/OutOfMemory.h"
#include "vxgui/platform/gdi/shapes/FillArea.h"
#include "vxgui/platform/gdi/shapes/RegionHandles.h"
#include "vxgui/platform/gdi_shapes.h"

namespace vxgui::gdi {
namespace {

// The part of `region` that stays inside when it is shifted both ways along one axis.
PixelRegion Inside(const PixelRegion& region, int dx, int dy) {
    PixelRegion inside;
    inside.Combine(region.Shifted(dx, dy), region.Shifted(-dx, -dy), RGN_AND);
    return inside;
}

}  // namespace

PixelRegion FrameOf(const PixelRegion& region, int width, int height) {
    // The frame is the same for a width and its negative; the lowest number has none.
    width = std::max(width, -INT32_MAX);
    height = std::max(height, -INT32_MAX);
    PixelRegion frame;
    frame.Combine(Inside(region, width, 0), Inside(region, 0, height), RGN_AND);
    frame.Combine(region, frame, RGN_DIFF);
    return frame;
}

BOOL FillRgn(HDC dc, HRGN region, HBRUSH brush) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    const GdiRef<Region> shape = FindRegion(region);
    const GdiRef<Brush> found = Find<Brush>(brush);
    if (!context || !shape || !found) return 0;
    FillArea(*context, shape->shape, *found);
    return 1;
}

BOOL FrameRgn(HDC dc, HRGN region, HBRUSH brush, int width, int height) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    const GdiRef<Region> shape = FindRegion(region);
    const GdiRef<Brush> found = Find<Brush>(brush);
    if (!context || !shape || !found) return 0;
    return OrOutOfMemory(BOOL{0}, [&] {
        FillArea(*context, FrameOf(shape->shape, width, height), *found);
        return BOOL{1};
    });
}

BOOL PaintRgn(HDC dc, HRGN region) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    const GdiRef<Region> shape = FindRegion(region);
    if (!context || !shape) return 0;
    FillArea(*context, shape->shape, *context->state.brush);
    return 1;
}

BOOL InvertRgn(HDC dc, HRGN region) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    const GdiRef<Region> shape = FindRegion(region);
    if (!context || !shape) return 0;
    InvertArea(*context, shape->shape);
    return 1;
}

}  // namespace vxgui::gdi
