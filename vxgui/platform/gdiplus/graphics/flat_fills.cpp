#include "vxgui/platform/gdiplus/graphics/Fills.h"
#include "vxgui/platform/gdiplus/graphics/GraphicsCall.h"
#include "vxgui/platform/gdiplus_graphics.h"

namespace vxgui::gdiplus {

extern "C" {

GpStatus GdipGraphicsClear(GpGraphics* graphics, ARGB color) {
    return SetOfGraphics(graphics, [&](Graphics& found) { ClearTo(found, color); });
}

GpStatus GdipFillRectangle(GpGraphics* graphics, GpBrush* brush, REAL x, REAL y, REAL width,
                           REAL height) {
    return DrawWith<Brush>(graphics, brush, [&](Graphics& found, Brush& paint) {
        return FillRectangle(found, paint, {x, y, width, height});
    });
}

GpStatus GdipFillRectangleI(GpGraphics* graphics, GpBrush* brush, INT x, INT y, INT width,
                            INT height) {
    return GdipFillRectangle(graphics, brush, static_cast<REAL>(x), static_cast<REAL>(y),
                             static_cast<REAL>(width), static_cast<REAL>(height));
}

}  // extern "C"

}  // namespace vxgui::gdiplus
