#include "vxgui/platform/gdiplus/paths/Figures.h"

#include "vxgui/platform/gdiplus/paths/Curves.h"

namespace vxgui::gdiplus {
namespace {

bool SamePlace(GpPointF a, GpPointF b) { return a.X == b.X && a.Y == b.Y; }

/// How the first of some points joins the path; -1 when it is there already.
int TypeOfFirst(const Path& path, GpPointF point) {
    if (path.newFigure || path.data.IsEmpty() || path.data.EndsClosed()) return PathPointTypeStart;
    return SamePlace(path.data.points.back(), point) ? -1 : PathPointTypeLine;
}

void AddFirst(Path& path, GpPointF point, int flags = 0) {
    const int type = TypeOfFirst(path, point);
    if (type >= 0) path.data.Add(point, type | flags);
    path.newFigure = false;
}

}  // namespace

void AddToFigure(Path& path, const std::vector<GpPointF>& points, PathPointType kind) {
    AddFirst(path, points.front());
    for (size_t i = 1; i < points.size(); ++i) path.data.Add(points[i], kind);
}

void AddClosedFigure(Path& path, const std::vector<GpPointF>& points, PathPointType kind) {
    path.newFigure = true;
    AddToFigure(path, points, kind);
    CloseFigure(path);
}

void AddRectangleFigure(Path& path, const GpRectF& rect) {
    if (!(rect.Width > 0 && rect.Height > 0)) return;
    const REAL right = rect.X + rect.Width, bottom = rect.Y + rect.Height;
    AddClosedFigure(path, {{rect.X, rect.Y}, {right, rect.Y}, {right, bottom}, {rect.X, bottom}},
                    PathPointTypeLine);
}

void AddPieFigure(Path& path, const GpRectF& box, REAL startAngle, REAL sweepAngle) {
    path.newFigure = true;
    AddFirst(path, {box.X + box.Width / 2, box.Y + box.Height / 2});
    AddToFigure(path, ArcCurve(box, startAngle, sweepAngle), PathPointTypeBezier);
    CloseFigure(path);
}

void AddFigures(Path& path, const Path& added, bool connect) {
    const PathPoints other = added.data;  // a copy: the path may be added to itself
    const bool startsNext = added.newFigure;
    if (other.IsEmpty()) return;
    if (!connect || other.Closes(EndOfFigure(other, 0) - 1)) path.newFigure = true;
    AddFirst(path, other.points[0], other.types[0] & ~PathPointTypePathTypeMask);
    for (size_t i = 1; i < other.Count(); ++i) path.data.Add(other.points[i], other.types[i]);
    path.newFigure = startsNext;
}

void CloseFigure(Path& path) {
    if (path.newFigure || path.data.IsEmpty()) return;
    path.data.types.back() |= PathPointTypeCloseSubpath;
    path.newFigure = true;
}

void CloseAllFigures(Path& path) {
    for (size_t end = 0; end < path.data.Count();) {
        end = EndOfFigure(path.data, end);
        path.data.types[end - 1] |= PathPointTypeCloseSubpath;
    }
    path.newFigure = true;
}

size_t EndOfFigure(const PathPoints& path, size_t first) {
    size_t end = first + 1;
    while (end < path.Count() && path.Kind(end) != PathPointTypeStart) ++end;
    return end;
}

}  // namespace vxgui::gdiplus
