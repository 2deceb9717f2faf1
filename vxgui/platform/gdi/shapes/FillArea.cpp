#include "vxgui/platform/gdi/shapes/FillArea.h"

#include "vxgui/platform/gdi/RopBlit.h"

namespace vxgui::gdi {
namespace {

void Apply(const DeviceContext& dc, const PixelRegion& region, DWORD rop, const Brush& brush) {
    const Rop3 operation(rop);
    for (const pixman_box32_t& box : region.BoxesInRows(0, dc.Target().height)) {
        RopFill(dc, RectOf(box), operation, brush);
    }
}

}  // namespace

void FillArea(const DeviceContext& dc, const RECT& area, const Brush& brush) {
    RopFill(dc, area, Rop3(PATCOPY), brush);
}

void FillArea(const DeviceContext& dc, const PixelRegion& region, const Brush& brush) {
    Apply(dc, region, PATCOPY, brush);
}

void InvertArea(const DeviceContext& dc, const RECT& area) {
    RopFill(dc, area, Rop3(DSTINVERT), *dc.state.brush);
}

void InvertArea(const DeviceContext& dc, const PixelRegion& region) {
    Apply(dc, region, DSTINVERT, *dc.state.brush);
}

}  // namespace vxgui::gdi
