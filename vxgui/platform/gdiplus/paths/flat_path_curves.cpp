#include "vxgui/platform/gdiplus/Coordinates.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/paths/Curves.h"
#include "vxgui/platform/gdiplus/paths/Figures.h"
#include "vxgui/platform/gdiplus_path.h"

namespace vxgui::gdiplus {
namespace {

constexpr REAL kUsualTension = 0.5f;

/// The spline through some of the points; `segments` -1 means all from `offset` on.
template <class Point>
GpStatus AddSpline(GpPath* path, const Point* points, INT count, INT offset, INT segments,
                   REAL tension) {
    return FlatOn<Path>(path, [&](Path& found) {
        const std::vector<GpPointF> list = ToFloats(points, count);
        if (list.size() < 2 || offset < 0 || offset >= count) return InvalidParameter;
        if (segments == -1) segments = count - 1 - offset;
        if (segments < 1 || segments > count - 1 - offset) return InvalidParameter;
        AddToFigure(
            found,
            SplineCurve(list, static_cast<size_t>(offset), static_cast<size_t>(segments), tension),
            PathPointTypeBezier);
        return Ok;
    });
}

template <class Point>
GpStatus AddClosedSpline(GpPath* path, const Point* points, INT count, REAL tension) {
    return FlatOn<Path>(path, [&](Path& found) {
        const std::vector<GpPointF> list = ToFloats(points, count);
        if (list.size() < 3) return InvalidParameter;
        AddClosedFigure(found, ClosedSplineCurve(list, tension), PathPointTypeBezier);
        return Ok;
    });
}

}  // namespace

extern "C" {

GpStatus GdipAddPathArc(GpPath* path, REAL x, REAL y, REAL width, REAL height, REAL startAngle,
                        REAL sweepAngle) {
    return FlatSet<Path>(path, [&](Path& found) {
        AddToFigure(found, ArcCurve({x, y, width, height}, startAngle, sweepAngle),
                    PathPointTypeBezier);
    });
}

GpStatus GdipAddPathArcI(GpPath* path, INT x, INT y, INT width, INT height, REAL startAngle,
                         REAL sweepAngle) {
    return GdipAddPathArc(path, x, y, width, height, startAngle, sweepAngle);
}

GpStatus GdipAddPathCurve(GpPath* path, const GpPointF* points, INT count) {
    return AddSpline(path, points, count, 0, -1, kUsualTension);
}

GpStatus GdipAddPathCurveI(GpPath* path, const GpPoint* points, INT count) {
    return AddSpline(path, points, count, 0, -1, kUsualTension);
}

GpStatus GdipAddPathCurve2(GpPath* path, const GpPointF* points, INT count, REAL tension) {
    return AddSpline(path, points, count, 0, -1, tension);
}

GpStatus GdipAddPathCurve2I(GpPath* path, const GpPoint* points, INT count, REAL tension) {
    return AddSpline(path, points, count, 0, -1, tension);
}

GpStatus GdipAddPathCurve3(GpPath* path, const GpPointF* points, INT count, INT offset,
                           INT numberOfSegments, REAL tension) {
    if (numberOfSegments < 1) return InvalidParameter;
    return AddSpline(path, points, count, offset, numberOfSegments, tension);
}

GpStatus GdipAddPathCurve3I(GpPath* path, const GpPoint* points, INT count, INT offset,
                            INT numberOfSegments, REAL tension) {
    if (numberOfSegments < 1) return InvalidParameter;
    return AddSpline(path, points, count, offset, numberOfSegments, tension);
}

GpStatus GdipAddPathClosedCurve(GpPath* path, const GpPointF* points, INT count) {
    return AddClosedSpline(path, points, count, kUsualTension);
}

GpStatus GdipAddPathClosedCurveI(GpPath* path, const GpPoint* points, INT count) {
    return AddClosedSpline(path, points, count, kUsualTension);
}

GpStatus GdipAddPathClosedCurve2(GpPath* path, const GpPointF* points, INT count, REAL tension) {
    return AddClosedSpline(path, points, count, tension);
}

GpStatus GdipAddPathClosedCurve2I(GpPath* path, const GpPoint* points, INT count, REAL tension) {
    return AddClosedSpline(path, points, count, tension);
}

}  // extern "C"

}  // namespace vxgui::gdiplus
