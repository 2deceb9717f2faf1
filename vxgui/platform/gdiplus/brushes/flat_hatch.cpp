#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/brushes/HatchBrush.h"
#include "vxgui/platform/gdiplus_brush.h"

namespace vxgui::gdiplus {

extern "C" {

GpStatus GdipCreateHatchBrush(HatchStyle hatchstyle, ARGB forecol, ARGB backcol, GpBrush** brush) {
    return FlatCreate(brush, [&] {
        if (hatchstyle < 0 || hatchstyle >= HatchStyleTotal) return InvalidParameter;
        return HandOut(brush, New<HatchBrush>(hatchstyle, forecol, backcol));
    });
}

GpStatus GdipGetHatchStyle(GpBrush* brush, HatchStyle* hatchstyle) {
    return FlatGet<HatchBrush>(brush, hatchstyle, [](HatchBrush& found) { return found.style; });
}

GpStatus GdipGetHatchForegroundColor(GpBrush* brush, ARGB* forecol) {
    return FlatGet<HatchBrush>(brush, forecol, [](HatchBrush& found) { return found.foreground; });
}

GpStatus GdipGetHatchBackgroundColor(GpBrush* brush, ARGB* backcol) {
    return FlatGet<HatchBrush>(brush, backcol, [](HatchBrush& found) { return found.background; });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
