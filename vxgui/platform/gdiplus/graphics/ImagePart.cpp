#include "vxgui/platform/gdiplus/graphics/ImagePart.h"

#include <algorithm>
#include <cmath>

#include "vxgui/platform/gdiplus/DeviceBox.h"
#include "vxgui/platform/gdiplus/graphics/Blit.h"
#include "vxgui/platform/gdiplus/graphics/Clips.h"
#include "vxgui/platform/gdiplus/graphics/CopiedImage.h"
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

GpPoint OriginOf(const Axes& axes) {
    return {DeviceInt(axes.x.target0 - axes.x.source0), DeviceInt(axes.y.target0 - axes.y.source0)};
}

GpStatus DrawUpright(Graphics& graphics, const ImagePart& part, const GpPointF device[3]) {
    const ImageSource source(part.bitmap, part.attributes);
    const Axes axes = AxesOf(part.source, source, device);
    if (axes.IsEmpty()) return Ok;
    const double offset = graphics.ShapeOffset();
    const GpRect area = graphics.Drawable(SampledBy(Around(axes), offset));
    if (IsEmpty(area)) return Ok;
    // An image that is drawn on itself is read whole before it changes.
    const bool isTarget = part.bitmap.Row(0) == graphics.Target().Memory();
    if (!isTarget && axes.x.Copies() && axes.y.Copies() && !source.Wrap()) {
        if (const auto status = DrawCopy(graphics, part, source, area, OriginOf(axes)))
            return *status;
    }
    const INT rows = isTarget ? area.Height : RowsOfBand(area.Width);
    return InBands(source, axes, {graphics.state.interpolationMode, offset == 0}, area, rows,
                   [&](const GpRect& place, Canvas& pixels) -> GpStatus {
                       if (part.abort.Aborts()) return Aborted;
                       return Blit(graphics, pixels.Words(), place, {place.X, place.Y});
                   });
}

// Sides that lean by less don't show it.
bool IsNear(REAL a, REAL b) { return std::abs(a - b) < 1.0f / 256; }

}  // namespace

GpStatus DrawPart(Graphics& graphics, const ImagePart& part, const GpPointF corners[3]) {
    if (part.bitmap.IsLocked()) return ObjectBusy;
    if (part.abort.Aborts()) return Aborted;
    if (part.source.Width == 0 || part.source.Height == 0) return Ok;
    const Affine world = graphics.WorldToDevice();
    const GpPointF device[3] = {world.Apply(corners[0]), world.Apply(corners[1]),
                                world.Apply(corners[2])};
    const bool upright = IsNear(device[0].Y, device[1].Y) && IsNear(device[0].X, device[2].X);
    return upright ? DrawUpright(graphics, part, device) : DrawSlanted(graphics, part, device);
}

}  // namespace vxgui::gdiplus
