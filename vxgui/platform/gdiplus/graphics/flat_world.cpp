#include "vxgui/platform/gdiplus/Matrix.h"
#include "vxgui/platform/gdiplus/graphics/GraphicsCall.h"
#include "vxgui/platform/gdiplus_graphics.h"

namespace vxgui::gdiplus {
namespace {

// A world without an inverse couldn't say where anything lies.
GpStatus SetWorld(Graphics& graphics, const Affine& world) {
    if (!Inverse(world)) return InvalidParameter;
    graphics.state.world = world;
    return Ok;
}

GpStatus CombineWorld(GpGraphics* graphics, const Affine& change, MatrixOrder order) {
    if (!IsOrder(order)) return InvalidParameter;
    return OnGraphics(graphics, [&](Graphics& found) {
        return SetWorld(found, Combined(found.state.world, change, order));
    });
}

}  // namespace

extern "C" {

GpStatus GdipSetWorldTransform(GpGraphics* graphics, GpMatrix* matrix) {
    return OnGraphics(graphics, [&](Graphics& found) {
        return FlatOn<Matrix>(matrix, [&](Matrix& world) { return SetWorld(found, world.value); });
    });
}

GpStatus GdipGetWorldTransform(GpGraphics* graphics, GpMatrix* matrix) {
    return OnGraphics(graphics, [&](Graphics& found) {
        return FlatSet<Matrix>(matrix, [&](Matrix& result) { result.value = found.state.world; });
    });
}

GpStatus GdipResetWorldTransform(GpGraphics* graphics) {
    return SetOfGraphics(graphics, [](Graphics& found) { found.state.world = {}; });
}

GpStatus GdipMultiplyWorldTransform(GpGraphics* graphics, const GpMatrix* matrix,
                                    MatrixOrder order) {
    return FlatOn<Matrix>(
        matrix, [&](Matrix& change) { return CombineWorld(graphics, change.value, order); });
}

GpStatus GdipTranslateWorldTransform(GpGraphics* graphics, REAL dx, REAL dy, MatrixOrder order) {
    return CombineWorld(graphics, Affine::Translation(dx, dy), order);
}

GpStatus GdipScaleWorldTransform(GpGraphics* graphics, REAL sx, REAL sy, MatrixOrder order) {
    return CombineWorld(graphics, Affine::Scaling(sx, sy), order);
}

GpStatus GdipRotateWorldTransform(GpGraphics* graphics, REAL angle, MatrixOrder order) {
    return CombineWorld(graphics, Affine::Rotation(angle), order);
}

GpStatus GdipSetPageUnit(GpGraphics* graphics, Unit unit) {
    if (unit < UnitDisplay || unit > UnitMillimeter) return InvalidParameter;
    return SetOfGraphics(graphics, [&](Graphics& found) { found.state.pageUnit = unit; });
}

GpStatus GdipGetPageUnit(GpGraphics* graphics, Unit* unit) {
    return GetOfGraphics(graphics, unit, [](Graphics& found) { return found.state.pageUnit; });
}

GpStatus GdipSetPageScale(GpGraphics* graphics, REAL scale) {
    constexpr REAL kLargest = 1e9f;
    if (!(scale > 0 && scale <= kLargest)) return InvalidParameter;
    return SetOfGraphics(graphics, [&](Graphics& found) { found.state.pageScale = scale; });
}

GpStatus GdipGetPageScale(GpGraphics* graphics, REAL* scale) {
    return GetOfGraphics(graphics, scale, [](Graphics& found) { return found.state.pageScale; });
}

GpStatus GdipResetPageTransform(GpGraphics* graphics) {
    return SetOfGraphics(graphics, [](Graphics& found) {
        found.state.pageUnit = UnitDisplay;
        found.state.pageScale = 1;
    });
}

GpStatus GdipGetDpiX(GpGraphics* graphics, REAL* dpi) {
    return GetOfGraphics(graphics, dpi, [](Graphics& found) { return found.Target().DpiX(); });
}

GpStatus GdipGetDpiY(GpGraphics* graphics, REAL* dpi) {
    return GetOfGraphics(graphics, dpi, [](Graphics& found) { return found.Target().DpiY(); });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
