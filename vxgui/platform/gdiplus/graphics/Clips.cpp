#include "vxgui/platform/gdiplus/graphics/Clips.h"

#include "vxgui/platform/gdiplus/Coordinates.h"
#include "vxgui/platform/gdiplus/DeviceBox.h"
#include "vxgui/platform/gdiplus/graphics/PixelsOfPath.h"
#include "vxgui/platform/gdiplus/graphics/Shapes.h"

namespace vxgui::gdiplus {
namespace {

GpRectF ToWorld(const Graphics& graphics, const GpRectF& device) {
    const std::optional<Affine> inverse = Inverse(graphics.WorldToDevice());
    return inverse ? BoxOf(device, *inverse) : device;
}

// What lies further out doesn't come into view, unless a clip is moved far.
GpRect Surroundings(const DrawingTarget& target) {
    constexpr INT kMargin = 256;
    return {-kMargin, -kMargin, target.Width() + 2 * kMargin, target.Height() + 2 * kMargin};
}

GpRectF InOrder(GpRectF r) {
    if (r.Width < 0) r = {r.X + r.Width, r.Y, -r.Width, r.Height};
    if (r.Height < 0) r = {r.X, r.Y + r.Height, r.Width, -r.Height};
    return r;
}

}  // namespace

GpRect SampledBy(const GpRectF& box, double offset) {
    // Edges come out of single precision: this little beyond a sample they mean to be on it.
    constexpr double kNear = 1.0 / 256;
    const auto first = [offset](double edge) {
        return DeviceInt(std::ceil(edge - 0.5 + offset - kNear));
    };
    const INT left = first(box.X), top = first(box.Y);
    return {left, top, first(static_cast<double>(box.X) + box.Width) - left,
            first(static_cast<double>(box.Y) + box.Height) - top};
}

std::optional<GpRectF> LevelBox(const Graphics& graphics, const GpRectF& rect) {
    const Affine world = graphics.WorldToDevice();
    const bool upright = world.m12 == 0 && world.m21 == 0;
    const bool turned = world.m11 == 0 && world.m22 == 0;
    if (!upright && !turned) return std::nullopt;
    return BoxOf(rect, world);
}

Clip ClipOfRect(const Graphics& graphics, const GpRectF& rect) {
    const GpRectF ordered = InOrder(rect);
    const std::optional<GpRectF> level = LevelBox(graphics, ordered);
    if (!level) return ClipOfPath(graphics, Outlines({ordered}), FillModeAlternate);
    return Clip(gdi::PixelRegion(ToRECT(SampledBy(*level, graphics.ShapeOffset()))), *level);
}

Clip ClipOfPath(const Graphics& graphics, PathPoints path, FillMode mode) {
    path.Transform(graphics.WorldToDevice());
    const GpRectF box = BoundsOfPoints(path.points);
    const auto offset = static_cast<REAL>(graphics.ShapeOffset());
    path.Transform(Affine::Translation(offset, offset));
    const GpRect pixels =
        Common(PixelsAround(BoundsOfPoints(path.points)), Surroundings(graphics.Target()));
    return Clip(PixelsOfPath(path, mode, pixels), box);
}

GpRectF ClipBounds(const Graphics& graphics) {
    const Clip& clip = graphics.state.clip;
    return clip.IsInfinite() ? clip.Box() : ToWorld(graphics, clip.Box());
}

GpRectF VisibleBounds(const Graphics& graphics) {
    const DrawingTarget& target = graphics.Target();
    const GpRect visible = graphics.Drawable({0, 0, target.Width(), target.Height()});
    if (IsEmpty(visible)) return {};
    GpRectF box = ToFloat(visible);
    for (const Clip* clip : {&graphics.state.clip, &graphics.state.outerClip}) {
        box = CommonBox(box, clip->Box());
    }
    return ToWorld(graphics, box);
}

}  // namespace vxgui::gdiplus
