#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/paths/Figures.h"
#include "vxgui/platform/gdiplus_path.h"

namespace vxgui::gdiplus {

extern "C" {

GpStatus GdipStartPathFigure(GpPath* path) {
    return FlatSet<Path>(path, [](Path& found) { found.newFigure = true; });
}

GpStatus GdipClosePathFigure(GpPath* path) { return FlatSet<Path>(path, CloseFigure); }

GpStatus GdipClosePathFigures(GpPath* path) { return FlatSet<Path>(path, CloseAllFigures); }

GpStatus GdipSetPathMarker(GpPath* path) {
    return FlatSet<Path>(path, [](Path& found) {
        if (!found.data.IsEmpty()) found.data.types.back() |= PathPointTypePathMarker;
    });
}

GpStatus GdipClearPathMarkers(GpPath* path) {
    return FlatSet<Path>(path, [](Path& found) {
        for (BYTE& type : found.data.types) type &= static_cast<BYTE>(~PathPointTypePathMarker);
    });
}

GpStatus GdipReversePath(GpPath* path) {
    return FlatSet<Path>(path, [](Path& found) { found.data = Reversed(found.data); });
}

GpStatus GdipGetPathLastPoint(GpPath* path, GpPointF* lastPoint) {
    if (!lastPoint) return InvalidParameter;
    return FlatOn<Path>(path, [&](Path& found) {
        if (found.data.IsEmpty()) return InvalidParameter;
        *lastPoint = found.data.points.back();
        return Ok;
    });
}

GpStatus GdipAddPathPath(GpPath* path, const GpPath* addingPath, BOOL connect) {
    return FlatOn<Path>(addingPath, [&](Path& added) {
        return FlatSet<Path>(path, [&](Path& found) { AddFigures(found, added, connect != 0); });
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
