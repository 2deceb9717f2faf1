#include "vxgui/platform/gdiplus/Path.h"

#include <algorithm>

namespace vxgui::gdiplus {
namespace {

bool IsBezierTriple(const PathPoints& path, size_t first) {
    if (first + 2 >= path.Count()) return false;
    return path.Kind(first + 1) == PathPointTypeBezier &&
           path.Kind(first + 2) == PathPointTypeBezier && !path.Closes(first) &&
           !path.Closes(first + 1);
}

}  // namespace

bool IsWellFormed(const PathPoints& path) {
    bool open = false;  // a point that isn't a start needs a figure that goes on
    for (size_t i = 0; i < path.Count(); ++i) {
        const BYTE kind = path.Kind(i);
        if (kind == PathPointTypeBezier) {
            if (!open || !IsBezierTriple(path, i)) return false;
            i += 2;
        } else if (kind != PathPointTypeStart && (kind != PathPointTypeLine || !open)) {
            return false;
        }
        open = !path.Closes(i);
    }
    return true;
}

GpRectF BoundsOfPoints(const std::vector<GpPointF>& points) {
    if (points.empty()) return {0, 0, 0, 0};
    const auto [left, right] = std::minmax_element(
        points.begin(), points.end(), [](GpPointF a, GpPointF b) { return a.X < b.X; });
    const auto [top, bottom] = std::minmax_element(
        points.begin(), points.end(), [](GpPointF a, GpPointF b) { return a.Y < b.Y; });
    return {left->X, top->Y, right->X - left->X, bottom->Y - top->Y};
}

Ref<Path> Path::Clone() const {
    Ref<Path> copy = New<Path>(fillMode);
    copy->data = data;
    copy->newFigure = newFigure;
    return copy;
}

}  // namespace vxgui::gdiplus
