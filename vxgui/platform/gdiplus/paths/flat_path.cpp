#include <functional>

#include "vxgui/platform/gdiplus/Coordinates.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/Path.h"
#include "vxgui/platform/gdiplus_path.h"

namespace vxgui::gdiplus {
namespace {

bool IsFillMode(FillMode mode) { return mode == FillModeAlternate || mode == FillModeWinding; }

GpStatus CreateFrom(std::vector<GpPointF> points, const BYTE* types, INT count, FillMode mode,
                    GpPath** path) {
    return FlatCreate(path, [&] {
        if (count < 1 || points.empty() || !types || !IsFillMode(mode)) return InvalidParameter;
        Ref<Path> made = New<Path>(mode);
        made->data = {std::move(points), std::vector<BYTE>(types, types + count)};
        made->data.types[0] &= ~PathPointTypePathTypeMask;
        if (!IsWellFormed(made->data)) return InvalidParameter;
        made->newFigure = made->data.EndsClosed();
        return HandOut(path, std::move(made));
    });
}

/// Stores what `get` makes of each item of a list with one item a path point.
template <class Out, class List, class Get>
GpStatus CopyList(GpPath* path, Out* out, INT count, List list, Get get) {
    if (!out || count < 1) return InvalidParameter;
    return FlatOn<Path>(path, [&](Path& found) {
        const auto& items = found.data.*list;
        if (items.size() > static_cast<size_t>(count)) return InsufficientBuffer;
        std::transform(items.begin(), items.end(), out, get);
        return Ok;
    });
}

}  // namespace

extern "C" {

GpStatus GdipCreatePath(FillMode brushMode, GpPath** path) {
    return FlatCreate(path, [&] {
        return IsFillMode(brushMode) ? HandOut(path, New<Path>(brushMode)) : InvalidParameter;
    });
}

GpStatus GdipCreatePath2(const GpPointF* points, const BYTE* types, INT count, FillMode fillMode,
                         GpPath** path) {
    return CreateFrom(ToFloats(points, count), types, count, fillMode, path);
}

GpStatus GdipCreatePath2I(const GpPoint* points, const BYTE* types, INT count, FillMode fillMode,
                          GpPath** path) {
    return CreateFrom(ToFloats(points, count), types, count, fillMode, path);
}

GpStatus GdipClonePath(GpPath* path, GpPath** clonePath) {
    return FlatCreate(clonePath, [&] {
        return FlatOn<Path>(path, [&](Path& found) { return HandOut(clonePath, found.Clone()); });
    });
}

GpStatus GdipDeletePath(GpPath* path) { return FlatDelete<Path>(path); }

GpStatus GdipResetPath(GpPath* path) {
    return FlatSet<Path>(path, [](Path& found) {
        found.fillMode = FillModeAlternate;
        found.data = {};
        found.newFigure = true;
    });
}

GpStatus GdipGetPathFillMode(GpPath* path, FillMode* fillmode) {
    return FlatGet<Path>(path, fillmode, [](Path& found) { return found.fillMode; });
}

GpStatus GdipSetPathFillMode(GpPath* path, FillMode fillmode) {
    if (!IsFillMode(fillmode)) return InvalidParameter;
    return FlatSet<Path>(path, [&](Path& found) { found.fillMode = fillmode; });
}

GpStatus GdipGetPointCount(GpPath* path, INT* count) {
    return FlatGet<Path>(path, count,
                         [](Path& found) { return static_cast<INT>(found.data.points.size()); });
}

GpStatus GdipGetPathTypes(GpPath* path, BYTE* types, INT count) {
    return CopyList(path, types, count, &PathPoints::types, std::identity{});
}

GpStatus GdipGetPathPoints(GpPath* path, GpPointF* points, INT count) {
    return CopyList(path, points, count, &PathPoints::points, std::identity{});
}

GpStatus GdipGetPathPointsI(GpPath* path, GpPoint* points, INT count) {
    return CopyList(path, points, count, &PathPoints::points, RoundPoint);
}

GpStatus GdipGetPathData(GpPath* path, GpPathData* pathData) {
    if (!pathData || !pathData->Points || !pathData->Types || pathData->Count < 0) {
        return InvalidParameter;
    }
    return FlatOn<Path>(path, [&](Path& found) {
        const auto& [points, types] = found.data;
        if (points.size() > static_cast<size_t>(pathData->Count)) return InsufficientBuffer;
        std::copy(points.begin(), points.end(), pathData->Points);
        std::copy(types.begin(), types.end(), pathData->Types);
        pathData->Count = static_cast<INT>(points.size());
        return Ok;
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
