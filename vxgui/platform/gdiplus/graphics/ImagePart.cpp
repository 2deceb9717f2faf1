#include "vxgui/platform/gdiplus/graphics/ImagePart.h"

#include <algorithm>

#include "vxgui/platform/gdiplus/DeviceBox.h"
#include "vxgui/platform/gdiplus/graphics/Blit.h"
#include "vxgui/platform/gdiplus/graphics/Clips.h"
#include "vxgui/platform/gdiplus/graphics/ImageLayout.h"
#include "vxgui/platform/gdiplus/graphics/SlantedImage.h"

namespace vxgui::gdiplus {
namespace {

GpRectF Around(const Axes& axes) {
    const auto low = [](const ImageAxis& a) { return std::min(a.target0, a.target1); };
    const auto high = [](const ImageAxis& a) { return std::max(a.target0, a.target1); };
    return {static_cast<REAL>(low(axes.x)), static_cast<REAL>(low(axes.y)),
            static_cast<REAL>(high(axes.x) - low(axes.x)),
            static_cast<REAL>(high(axes.y) - low(axes.y))};
}

GpStatus DrawUpright(Graphics& graphics, const ImagePart& part, const GpPointF device[3]) {
    const ImageSource source(part.bitmap, part.attributes);
    const Axes axes = AxesOf(part.source, source, device);
    if (axes.IsEmpty()) return Ok;
    const double offset = graphics.ShapeOffset();
    const GpRect area = graphics.Drawable(SampledBy(Around(axes), offset));
    if (IsEmpty(area)) return Ok;
    Canvas canvas = Resampled(source, axes, graphics.state.interpolationMode, offset == 0, area);
    if (part.abort.Aborts()) return Aborted;
    const Surface surface = canvas.Cover();
    if (!surface) return OutOfMemory;
    return Blit(graphics, surface.get(), area, {area.X, area.Y});
}

}  // namespace

GpStatus DrawPart(Graphics& graphics, const ImagePart& part, const GpPointF corners[3]) {
    if (part.bitmap.IsLocked()) return ObjectBusy;
    if (part.abort.Aborts()) return Aborted;
    if (part.source.Width == 0 || part.source.Height == 0) return Ok;
    const Affine world = graphics.WorldToDevice();
    const GpPointF device[3] = {world.Apply(corners[0]), world.Apply(corners[1]),
                                world.Apply(corners[2])};
    const bool upright = device[0].Y == device[1].Y && device[0].X == device[2].X;
    return upright ? DrawUpright(graphics, part, device) : DrawSlanted(graphics, part, device);
}

}  // namespace vxgui::gdiplus
