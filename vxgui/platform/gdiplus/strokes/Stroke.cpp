#include "vxgui/platform/gdiplus/Stroke.h"

#include <cmath>

#include "vxgui/platform/gdiplus/strokes/Nib.h"
#include "vxgui/platform/gdiplus/strokes/PlainStroke.h"

namespace vxgui::gdiplus {

void StrokePath(cairo_t* cairo, const PenSettings& pen, const PathPoints& path,
                const StrokePlace& place) {
    const auto nib = NibOf(pen, place);
    if (nib && !path.IsEmpty()) StrokePlainly(cairo, pen, path, *nib);
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
