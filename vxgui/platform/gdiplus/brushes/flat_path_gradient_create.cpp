#include "vxgui/platform/gdiplus/Coordinates.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/brushes/PathBrush.h"
#include "vxgui/platform/gdiplus_gradient.h"

namespace vxgui::gdiplus {
namespace {

PathPoints PolygonOf(std::vector<GpPointF> points) {
    std::vector<BYTE> types(points.size(), PathPointTypeLine);
    types.front() = PathPointTypeStart;
    types.back() |= PathPointTypeCloseSubpath;
    return {std::move(points), std::move(types)};
}

// Two points at least make an edge.
GpStatus Create(PathPoints path, FillMode fillMode, WrapMode wrap, GpBrush** result) {
    if (!IsWrap(wrap)) return InvalidParameter;
    if (path.Count() < 2) return OutOfMemory;
    return HandOut(result, New<PathBrush>(std::move(path), fillMode, wrap));
}

template <class Point>
GpStatus CreateOfPoints(const Point* points, INT count, WrapMode wrap, GpBrush** result) {
    return FlatCreate(result, [&]() -> GpStatus {
        if (!points || count < 0) return InvalidParameter;
        if (count < 2) return OutOfMemory;
        return Create(PolygonOf(ToFloats(points, count)), FillModeAlternate, wrap, result);
    });
}

}  // namespace

extern "C" {

GpStatus GdipCreatePathGradient(const GpPointF* points, INT count, WrapMode wrapMode,
                                GpBrush** polyGradient) {
    return CreateOfPoints(points, count, wrapMode, polyGradient);
}

GpStatus GdipCreatePathGradientI(const GpPoint* points, INT count, WrapMode wrapMode,
                                 GpBrush** polyGradient) {
    return CreateOfPoints(points, count, wrapMode, polyGradient);
}

GpStatus GdipCreatePathGradientFromPath(const GpPath* path, GpBrush** polyGradient) {
    return FlatCreate(polyGradient, [&] {
        return FlatOn<Path>(path, [&](Path& found) {
            return Create(found.data, found.fillMode, WrapModeClamp, polyGradient);
        });
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
