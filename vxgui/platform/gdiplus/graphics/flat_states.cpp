#include "vxgui/platform/gdiplus/Coordinates.h"
#include "vxgui/platform/gdiplus/Units.h"
#include "vxgui/platform/gdiplus/graphics/GraphicsCall.h"
#include "vxgui/platform/gdiplus_graphics.h"

namespace vxgui::gdiplus {
namespace {

GpStatus Restore(GpGraphics* graphics, UINT state) {
    return OnGraphics(
        graphics, [&](Graphics& found) { return found.Restore(state) ? Ok : InvalidParameter; });
}

// Begins a container whose page is laid out by `inner` on the world that it stands in.
UINT BeginContainer(Graphics& graphics, const Affine& inner) {
    const UINT id = graphics.Save();
    GraphicsState& state = graphics.state;
    state.container = inner * graphics.WorldToDevice();
    state.world = {};
    state.pageUnit = UnitDisplay;
    state.pageScale = 1;
    state.outerClip.Combine(state.clip, CombineModeIntersect);
    state.clip = {};
    return id;
}

Affine RectToRect(const GpRectF& from, const GpRectF& to) {
    const REAL x = to.Width / from.Width, y = to.Height / from.Height;
    return {x, 0, 0, y, to.X - from.X * x, to.Y - from.Y * y};
}

GpRectF InPixels(const GpRectF& rect, Unit unit, const DrawingTarget& target) {
    const REAL x = PixelsPer(unit, target.DpiX()), y = PixelsPer(unit, target.DpiY());
    return {rect.X * x, rect.Y * y, rect.Width * x, rect.Height * y};
}

}  // namespace

extern "C" {

GpStatus GdipSaveGraphics(GpGraphics* graphics, UINT* state) {
    return GetOfGraphics(graphics, state, [](Graphics& found) { return found.Save(); });
}

GpStatus GdipRestoreGraphics(GpGraphics* graphics, UINT state) { return Restore(graphics, state); }

GpStatus GdipBeginContainer2(GpGraphics* graphics, UINT* state) {
    return GetOfGraphics(graphics, state,
                         [](Graphics& found) { return BeginContainer(found, {}); });
}

GpStatus GdipBeginContainer(GpGraphics* graphics, const GpRectF* dstrect, const GpRectF* srcrect,
                            Unit unit, UINT* state) {
    if (!dstrect || !srcrect || !state) return InvalidParameter;
    if (unit < UnitPixel || unit > UnitMillimeter) return InvalidParameter;
    if (!(srcrect->Width > 0 && srcrect->Height > 0)) return InvalidParameter;
    return OnGraphics(graphics, [&](Graphics& found) {
        *state =
            BeginContainer(found, RectToRect(InPixels(*srcrect, unit, found.Target()), *dstrect));
        return Ok;
    });
}

GpStatus GdipBeginContainerI(GpGraphics* graphics, const GpRect* dstrect, const GpRect* srcrect,
                             Unit unit, UINT* state) {
    if (!dstrect || !srcrect) return InvalidParameter;
    const GpRectF dst = ToFloat(*dstrect), src = ToFloat(*srcrect);
    return GdipBeginContainer(graphics, &dst, &src, unit, state);
}

GpStatus GdipEndContainer(GpGraphics* graphics, UINT state) { return Restore(graphics, state); }

}  // extern "C"

}  // namespace vxgui::gdiplus
