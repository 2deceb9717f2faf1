#include "vxgui/platform/gdiplus/Brush.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus_brush.h"

namespace vxgui::gdiplus {

extern "C" {

GpStatus GdipCloneBrush(GpBrush* brush, GpBrush** cloneBrush) {
    return FlatCreate(cloneBrush, [&] {
        return FlatOn<Brush>(brush,
                             [&](Brush& found) { return HandOut(cloneBrush, found.Clone()); });
    });
}

GpStatus GdipDeleteBrush(GpBrush* brush) { return FlatDelete<Brush>(brush); }

GpStatus GdipGetBrushType(GpBrush* brush, BrushType* type) {
    return FlatGet<Brush>(brush, type, [](Brush& found) { return found.Type(); });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
