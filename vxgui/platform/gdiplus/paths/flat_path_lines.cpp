#include "vxgui/platform/gdiplus/Coordinates.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/paths/Figures.h"
#include "vxgui/platform/gdiplus_path.h"

namespace vxgui::gdiplus {
namespace {

GpStatus Add(GpPath* path, const std::vector<GpPointF>& points, PathPointType kind) {
    return FlatSet<Path>(path, [&](Path& found) { AddToFigure(found, points, kind); });
}

GpStatus AddLines(GpPath* path, const std::vector<GpPointF>& points) {
    return points.empty() ? InvalidParameter : Add(path, points, PathPointTypeLine);
}

GpStatus AddBeziers(GpPath* path, const std::vector<GpPointF>& points) {
    if (points.size() < 4 || points.size() % 3 != 1) return InvalidParameter;
    return Add(path, points, PathPointTypeBezier);
}

}  // namespace

extern "C" {

GpStatus GdipAddPathLine(GpPath* path, REAL x1, REAL y1, REAL x2, REAL y2) {
    return Flat([&] { return AddLines(path, {{x1, y1}, {x2, y2}}); });
}

GpStatus GdipAddPathLineI(GpPath* path, INT x1, INT y1, INT x2, INT y2) {
    return GdipAddPathLine(path, x1, y1, x2, y2);
}

GpStatus GdipAddPathLine2(GpPath* path, const GpPointF* points, INT count) {
    return Flat([&] { return AddLines(path, ToFloats(points, count)); });
}

GpStatus GdipAddPathLine2I(GpPath* path, const GpPoint* points, INT count) {
    return Flat([&] { return AddLines(path, ToFloats(points, count)); });
}

GpStatus GdipAddPathBezier(GpPath* path, REAL x1, REAL y1, REAL x2, REAL y2, REAL x3, REAL y3,
                           REAL x4, REAL y4) {
    return Flat([&] { return AddBeziers(path, {{x1, y1}, {x2, y2}, {x3, y3}, {x4, y4}}); });
}

GpStatus GdipAddPathBezierI(GpPath* path, INT x1, INT y1, INT x2, INT y2, INT x3, INT y3, INT x4,
                            INT y4) {
    return GdipAddPathBezier(path, x1, y1, x2, y2, x3, y3, x4, y4);
}

GpStatus GdipAddPathBeziers(GpPath* path, const GpPointF* points, INT count) {
    return Flat([&] { return AddBeziers(path, ToFloats(points, count)); });
}

GpStatus GdipAddPathBeziersI(GpPath* path, const GpPoint* points, INT count) {
    return Flat([&] { return AddBeziers(path, ToFloats(points, count)); });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
