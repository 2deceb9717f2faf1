#include "vxgui/platform/gdiplus/Stroke.h"

namespace vxgui::gdiplus {
namespace {

void AppendBezier(cairo_t* cairo, const GpPointF* p) {
    cairo_curve_to(cairo, p[0].X, p[0].Y, p[1].X, p[1].Y, p[2].X, p[2].Y);
}

}  // namespace

void AppendPath(cairo_t* cairo, const PathPoints& path) {
    for (size_t i = 0; i < path.Count(); ++i) {
        const GpPointF& point = path.points[i];
        switch (path.Kind(i)) {
            case PathPointTypeStart:
                cairo_move_to(cairo, point.X, point.Y);
                break;
            case PathPointTypeLine:
                cairo_line_to(cairo, point.X, point.Y);
                break;
            default:
                AppendBezier(cairo, &point);
                i += 2;
        }
        if (path.Closes(i)) cairo_close_path(cairo);
    }
}

}  // namespace vxgui::gdiplus
