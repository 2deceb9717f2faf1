#include <functional>

#include "vxgui/platform/gdiplus/Coordinates.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/Matrix.h"
#include "vxgui/platform/gdiplus_matrix.h"

namespace vxgui::gdiplus {
namespace {

template <class Point, class Map>
GpStatus MapPoints(GpMatrix* matrix, Point* points, INT count, Map map) {
    if (!points || count <= 0) return InvalidParameter;
    return FlatSet<Matrix>(matrix, [&](Matrix& found) {
        std::transform(points, points + count, points,
                       [&](const Point& p) { return map(found.value, p); });
    });
}

GpPoint ApplyRounded(const Affine& a, GpPoint p) { return RoundPoint(a.Apply(ToFloat(p))); }
GpPoint ApplyToVectorRounded(const Affine& a, GpPoint v) {
    return RoundPoint(a.ApplyToVector(ToFloat(v)));
}

}  // namespace

extern "C" {

GpStatus GdipTransformMatrixPoints(GpMatrix* matrix, GpPointF* pts, INT count) {
    return MapPoints(matrix, pts, count, std::mem_fn(&Affine::Apply));
}

GpStatus GdipTransformMatrixPointsI(GpMatrix* matrix, GpPoint* pts, INT count) {
    return MapPoints(matrix, pts, count, ApplyRounded);
}

GpStatus GdipVectorTransformMatrixPoints(GpMatrix* matrix, GpPointF* pts, INT count) {
    return MapPoints(matrix, pts, count, std::mem_fn(&Affine::ApplyToVector));
}

GpStatus GdipVectorTransformMatrixPointsI(GpMatrix* matrix, GpPoint* pts, INT count) {
    return MapPoints(matrix, pts, count, ApplyToVectorRounded);
}

}  // extern "C"

}  // namespace vxgui::gdiplus
