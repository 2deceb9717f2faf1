#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/brushes/SolidBrush.h"
#include "vxgui/platform/gdiplus_brush.h"

namespace vxgui::gdiplus {

extern "C" {

GpStatus GdipCreateSolidFill(ARGB color, GpBrush** brush) {
    return FlatCreate(brush, [&] { return HandOut(brush, New<SolidBrush>(color)); });
}

GpStatus GdipSetSolidFillColor(GpBrush* brush, ARGB color) {
    return FlatSet<SolidBrush>(brush, [&](SolidBrush& found) { found.color = color; });
}

GpStatus GdipGetSolidFillColor(GpBrush* brush, ARGB* color) {
    return FlatGet<SolidBrush>(brush, color, [](SolidBrush& found) { return found.color; });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
