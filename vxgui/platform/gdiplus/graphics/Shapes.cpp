#include "vxgui/platform/gdiplus/graphics/Shapes.h"

#include "vxgui/platform/gdiplus/Stroke.h"

namespace vxgui::gdiplus {

GpStatus FillShape(Graphics& graphics, const Brush& brush, const PathPoints& path, FillMode mode) {
    if (path.Count() < 2) return Ok;
    const GpRectF bounds = BoundsOfPoints(path.points);
    return graphics.Paint(bounds, [&](cairo_t* cairo) {
        graphics.SetSource(cairo, brush, graphics.DeviceBox(bounds));
        graphics.MoveToSamples(cairo);
        cairo_set_fill_rule(
            cairo, mode == FillModeWinding ? CAIRO_FILL_RULE_WINDING : CAIRO_FILL_RULE_EVEN_ODD);
        AppendPath(cairo, path);
        cairo_fill(cairo);
    });
}

GpStatus StrokeShape(Graphics& graphics, const Pen& pen, const PathPoints& path) {
    if (path.IsEmpty()) return Ok;
    const StrokePlace place{graphics.WorldToDevice(), graphics.Target().DpiX()};
    const GpRectF bounds = StrokeBounds(pen, path, place);
    return graphics.Paint(bounds, [&](cairo_t* cairo) {
        graphics.SetSource(cairo, *pen.brush, graphics.DeviceBox(bounds));
        graphics.MoveToSamples(cairo);
        StrokePath(cairo, pen, path, place);
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
