#include "vxgui/platform/gdiplus/Coordinates.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/paths/Curves.h"
#include "vxgui/platform/gdiplus/paths/Figures.h"
#include "vxgui/platform/gdiplus_path.h"

namespace vxgui::gdiplus {
namespace {

template <class Rect>
GpStatus AddRectangles(GpPath* path, const Rect* rects, INT count) {
    return FlatOn<Path>(path, [&](Path& found) {
        const std::vector<GpRectF> list = ToFloats(rects, count);
        for (const GpRectF& rect : list) AddRectangleFigure(found, rect);
        return list.empty() ? InvalidParameter : Ok;
    });
}

template <class Point>
GpStatus AddPolygon(GpPath* path, const Point* points, INT count) {
    return FlatOn<Path>(path, [&](Path& found) {
        const std::vector<GpPointF> list = ToFloats(points, count);
        if (list.size() < 3) return InvalidParameter;
        AddClosedFigure(found, list, PathPointTypeLine);
        return Ok;
    });
}

}  // namespace

extern "C" {

GpStatus GdipAddPathRectangle(GpPath* path, REAL x, REAL y, REAL width, REAL height) {
    const GpRectF rect{x, y, width, height};
    return AddRectangles(path, &rect, 1);
}

GpStatus GdipAddPathRectangleI(GpPath* path, INT x, INT y, INT width, INT height) {
    return GdipAddPathRectangle(path, x, y, width, height);
}

GpStatus GdipAddPathRectangles(GpPath* path, const GpRectF* rects, INT count) {
    return AddRectangles(path, rects, count);
}

GpStatus GdipAddPathRectanglesI(GpPath* path, const GpRect* rects, INT count) {
    return AddRectangles(path, rects, count);
}

GpStatus GdipAddPathEllipse(GpPath* path, REAL x, REAL y, REAL width, REAL height) {
    return FlatSet<Path>(path, [&](Path& found) {
        AddClosedFigure(found, ArcCurve({x, y, width, height}, 0, 360), PathPointTypeBezier);
    });
}

GpStatus GdipAddPathEllipseI(GpPath* path, INT x, INT y, INT width, INT height) {
    return GdipAddPathEllipse(path, x, y, width, height);
}

GpStatus GdipAddPathPie(GpPath* path, REAL x, REAL y, REAL width, REAL height, REAL startAngle,
                        REAL sweepAngle) {
    return FlatSet<Path>(path, [&](Path& found) {
        AddPieFigure(found, {x, y, width, height}, startAngle, sweepAngle);
    });
}

GpStatus GdipAddPathPieI(GpPath* path, INT x, INT y, INT width, INT height, REAL startAngle,
                         REAL sweepAngle) {
    return GdipAddPathPie(path, x, y, width, height, startAngle, sweepAngle);
}

GpStatus GdipAddPathPolygon(GpPath* path, const GpPointF* points, INT count) {
    return AddPolygon(path, points, count);
}

GpStatus GdipAddPathPolygonI(GpPath* path, const GpPoint* points, INT count) {
    return AddPolygon(path, points, count);
}

}  // extern "C"

}  // namespace vxgui::gdiplus
