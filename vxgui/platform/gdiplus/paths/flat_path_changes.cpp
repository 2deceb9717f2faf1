#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/Matrix.h"
#include "vxgui/platform/gdiplus/Stroke.h"
#include "vxgui/platform/gdiplus/paths/Flatten.h"
#include "vxgui/platform/gdiplus/paths/PolygonSets.h"
#include "vxgui/platform/gdiplus/paths/Warp.h"
#include "vxgui/platform/gdiplus_path.h"

namespace vxgui::gdiplus {
namespace {

/// Runs `body(path, matrix)` for an optional matrix.
template <class Body>
GpStatus ChangePath(GpPath* path, const GpMatrix* matrix, Body body) {
    return FlatOn<Path>(path, [&](Path& found) {
        const auto map = MatrixOrIdentity(matrix);
        return map ? body(found, *map) : InvalidParameter;
    });
}

/// Makes closed figures of polygons.
PathPoints PathOf(const Polygons& polygons) {
    PathPoints result;
    for (const Polygon& polygon : polygons) {
        for (const Vec corner : polygon) result.Add(ToPointF(corner), PathPointTypeLine);
        result.types[result.Count() - polygon.size()] = PathPointTypeStart;
        result.types.back() |= PathPointTypeCloseSubpath;
    }
    return result;
}

std::optional<Warp> WarpOf(const GpPointF* points, INT count, const GpRectF& source,
                           WarpMode mode) {
    if (!points || (count != 3 && count != 4)) return {};
    if (mode != WarpModePerspective && mode != WarpModeBilinear) return {};
    if (source.Width == 0 || source.Height == 0) return {};
    Warp::Corners corners{Vec(points[0]), Vec(points[1]), Vec(points[2]), {}};
    corners[3] = count == 4 ? Vec(points[3]) : corners[1] + corners[2] - corners[0];
    return Warp(source, corners, mode);
}

}  // namespace

extern "C" {

GpStatus GdipFlattenPath(GpPath* path, GpMatrix* matrix, REAL flatness) {
    return ChangePath(path, matrix, [&](Path& found, const Affine& map) {
        found.data = Flattened(found.data, map, flatness);
        return Ok;
    });
}

GpStatus GdipWindingModeOutline(GpPath* path, GpMatrix* matrix, REAL flatness) {
    return ChangePath(path, matrix, [&](Path& found, const Affine& map) {
        found.data = PathOf(United(FilledPolygons(found.data, map, flatness), found.fillMode));
        found.fillMode = FillModeWinding;
        return Ok;
    });
}

GpStatus GdipWidenPath(GpPath* path, GpPen* pen, GpMatrix* matrix, REAL flatness) {
    return ChangePath(path, matrix, [&](Path& found, const Affine& map) {
        const Ref<Pen> with = Find<Pen>(pen);
        if (!with) return InvalidParameter;
        if (found.data.Count() < 2) return OutOfMemory;
        PathPoints mapped = found.data;
        mapped.Transform(map);
        const Polygons stroke = StrokePolygons(*with, mapped, {}, flatness, 0);
        found.data = PathOf(United(stroke, FillModeWinding));
        found.newFigure = true;
        return Ok;
    });
}

GpStatus GdipWarpPath(GpPath* path, GpMatrix* matrix, const GpPointF* points, INT count, REAL srcx,
                      REAL srcy, REAL srcwidth, REAL srcheight, WarpMode warpMode, REAL flatness) {
    return ChangePath(path, matrix, [&](Path& found, const Affine& map) {
        const auto warp = WarpOf(points, count, {srcx, srcy, srcwidth, srcheight}, warpMode);
        if (!warp) return InvalidParameter;
        found.data = Warped(found.data, *warp, map, flatness);
        return Ok;
    });
}

GpStatus GdipTransformPath(GpPath* path, GpMatrix* matrix) {
    return ChangePath(path, matrix, [&](Path& found, const Affine& map) {
        found.data.Transform(map);
        return Ok;
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
