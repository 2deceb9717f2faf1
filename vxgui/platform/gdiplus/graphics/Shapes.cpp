#include "vxgui/platform/gdiplus/graphics/Shapes.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "vxgui/platform/gdiplus/Stroke.h"

namespace vxgui::gdiplus {

namespace {

// Coordinates of the drawing library end at 2^23 pixels, and would turn round beyond. What lies
// further out comes nearer, which level lines don't show.
constexpr REAL kReach = 1 << 22;

bool IsInReach(GpPointF device) {
    return std::abs(device.X) <= kReach && std::abs(device.Y) <= kReach;
}

PathPoints InReach(PathPoints path, const Affine& world) {
    const std::optional<Affine> inverse = Inverse(world);
    for (GpPointF& point : path.points) {
        const GpPointF device = world.Apply(point);
        if (!inverse || IsInReach(device)) continue;
        point = inverse->Apply(
            {std::clamp(device.X, -kReach, kReach), std::clamp(device.Y, -kReach, kReach)});
    }
    return path;
}

/// A path as it can be drawn: itself, as a rule.
class Drawable {
public:
    Drawable(const PathPoints& path, const Affine& world) : path_(path) {
        const auto isInReach = [&](GpPointF point) { return IsInReach(world.Apply(point)); };
        if (!std::ranges::all_of(path.points, isInReach)) nearer_ = InReach(path, world);
    }
    const PathPoints& operator*() const { return nearer_ ? *nearer_ : path_; }

private:
    const PathPoints& path_;
    std::optional<PathPoints> nearer_;
};

}  // namespace

GpStatus FillShape(Graphics& graphics, const Brush& brush, const PathPoints& path, FillMode mode) {
    if (path.Count() < 2) return Ok;
    const Drawable shape(path, graphics.WorldToDevice());
    const GpRectF bounds = BoundsOfPoints((*shape).points);
    return graphics.Paint(bounds, [&](cairo_t* cairo) {
        graphics.SetSource(cairo, brush, graphics.DeviceBox(bounds));
        graphics.MoveToSamples(cairo);
        cairo_set_fill_rule(
            cairo, mode == FillModeWinding ? CAIRO_FILL_RULE_WINDING : CAIRO_FILL_RULE_EVEN_ODD);
        AppendPath(cairo, *shape);
        cairo_fill(cairo);
    });
}

GpStatus StrokeShape(Graphics& graphics, const Pen& pen, const PathPoints& path) {
    if (path.IsEmpty()) return Ok;
    const StrokePlace place{graphics.WorldToDevice(), graphics.Target().DpiX()};
    const Drawable shape(path, place.worldToDevice);
    const GpRectF bounds = StrokeBounds(pen, *shape, place);
    return graphics.Paint(bounds, [&](cairo_t* cairo) {
        graphics.SetSource(cairo, *pen.brush, graphics.DeviceBox(bounds));
        graphics.MoveToSamples(cairo);
        StrokePath(cairo, pen, *shape, place);
    });
}

PathPoints LinesThrough(const std::vector<GpPointF>& points) {
    PathPoints path;
    for (const GpPointF& point : points) {
        path.Add(point, path.IsEmpty() ? PathPointTypeStart : PathPointTypeLine);
    }
    return path;
}

PathPoints Outlines(const std::vector<GpRectF>& rects) {
    PathPoints path;
    for (const GpRectF& r : rects) {
        path.Add({r.X, r.Y}, PathPointTypeStart);
        path.Add({r.X + r.Width, r.Y}, PathPointTypeLine);
        path.Add({r.X + r.Width, r.Y + r.Height}, PathPointTypeLine);
        path.Add({r.X, r.Y + r.Height}, PathPointTypeLine | PathPointTypeCloseSubpath);
    }
    return path;
}

}  // namespace vxgui::gdiplus
