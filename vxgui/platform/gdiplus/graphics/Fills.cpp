#include "vxgui/platform/gdiplus/graphics/Fills.h"

#include <optional>

#include "vxgui/platform/gdiplus/DeviceBox.h"

namespace vxgui::gdiplus {
namespace {

gdi::PixelRegion ClipWithin(const Graphics& graphics, const GpRect& area) {
    gdi::PixelRegion region(ToRECT(area));
    for (const gdi::PixelRegion* clip : {graphics.Target().Clip(), graphics.state.clip.Pixels(),
                                         graphics.state.outerClip.Pixels()}) {
        if (clip) region.Combine(region, *clip, gdi::RGN_AND);
    }
    return region;
}

bool IsWhole(REAL value) { return value == std::nearbyint(value); }

// The pixels whose samples lie between two edges, the lower one included.
GpRect SampledBy(const GpRectF& box, double offset) {
    const auto first = [offset](double edge) { return DeviceInt(std::ceil(edge - 0.5 + offset)); };
    const INT left = first(box.X), top = first(box.Y);
    return {left, top, first(static_cast<double>(box.X) + box.Width) - left,
            first(static_cast<double>(box.Y) + box.Height) - top};
}

// The pixels that make up a rectangle exactly, if whole pixels do.
std::optional<GpRect> WholePixels(const Graphics& graphics, const GpRectF& rect) {
    const Affine world = graphics.WorldToDevice();
    const bool upright = world.m12 == 0 && world.m21 == 0;
    const bool turned = world.m11 == 0 && world.m22 == 0;
    if (!upright && !turned) return std::nullopt;
    const GpRectF box = BoxOf(rect, world);
    if (!graphics.Antialiases()) return SampledBy(box, graphics.ShapeOffset());
    if (!IsWhole(box.X) || !IsWhole(box.Y) || !IsWhole(box.Width) || !IsWhole(box.Height)) {
        return std::nullopt;
    }
    return SampledBy(box, 0);
}

}  // namespace

void ClearTo(Graphics& graphics, ARGB color) {
    DrawingTarget& target = graphics.Target();
    const GpRect area = graphics.Drawable({0, 0, target.Width(), target.Height()});
    if (IsEmpty(area)) return;
    for (const pixman_box32_t& box : ClipWithin(graphics, area).Boxes()) {
        target.Store(FromRECT(gdi::RectOf(box)), color);
    }
}

GpStatus FillRectangle(Graphics& graphics, const Brush& brush, const GpRectF& rect) {
    if (!(rect.Width > 0 && rect.Height > 0)) return Ok;
    const std::optional<GpRect> pixels = WholePixels(graphics, rect);
    const GpRect device = graphics.Drawable(pixels ? *pixels : graphics.DeviceBox(rect));
    return graphics.Paint(rect, [&](cairo_t* cairo) {
        graphics.SetSource(cairo, brush, device);
        cairo_identity_matrix(cairo);
        if (pixels) {
            cairo_rectangle(cairo, device.X, device.Y, device.Width, device.Height);
        } else {
            cairo_translate(cairo, graphics.ShapeOffset(), graphics.ShapeOffset());
            const cairo_matrix_t world = ToCairo(graphics.WorldToDevice());
            cairo_transform(cairo, &world);
            cairo_rectangle(cairo, rect.X, rect.Y, rect.Width, rect.Height);
        }
        cairo_fill(cairo);
    });
}

}  // namespace vxgui::gdiplus
