#include "vxgui/platform/gdiplus/Stroke.h"

#include <cmath>

#include "vxgui/platform/gdiplus/strokes/Nib.h"
#include "vxgui/platform/gdiplus/strokes/PlainStroke.h"

namespace vxgui::gdiplus {

namespace {

void AppendPolygon(cairo_t* cairo, const Polygon& polygon) {
    for (const Vec corner : polygon) cairo_line_to(cairo, corner.x, corner.y);
    cairo_close_path(cairo);
    cairo_new_sub_path(cairo);
}

}  // namespace

void StrokePath(cairo_t* cairo, const PenSettings& pen, const PathPoints& path,
                const StrokePlace& place) {
    constexpr REAL kFlatness = 0.1f;  // cairo's own
    const auto nib = NibOf(pen, place);
    if (!nib || path.IsEmpty() || StrokePlainly(cairo, pen, path, *nib)) return;
    for (const Polygon& polygon : StrokePolygons(pen, path, place, kFlatness)) {
        AppendPolygon(cairo, polygon);
    }
    const cairo_fill_rule_t rule = cairo_get_fill_rule(cairo);
    cairo_set_fill_rule(cairo, CAIRO_FILL_RULE_WINDING);
    cairo_fill(cairo);
    cairo_set_fill_rule(cairo, rule);
}

GpRectF StrokeBounds(const PenSettings& pen, const PathPoints& path, const StrokePlace& place) {
    const GpRectF inner = BoundsOfPoints(path.points);
    const auto nib = NibOf(pen, place);
    if (!nib) return inner;
    const REAL reach = ReachOf(pen, path.Count() > 2) * nib->width / 2;
    const Affine& a = nib->space;
    const REAL dx = reach * std::hypot(a.m11, a.m21), dy = reach * std::hypot(a.m12, a.m22);
    return {inner.X - dx, inner.Y - dy, inner.Width + 2 * dx, inner.Height + 2 * dy};
}

}  // namespace vxgui::gdiplus
