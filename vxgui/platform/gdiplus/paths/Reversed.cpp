#include "vxgui/platform/gdiplus/paths/Figures.h"

namespace vxgui::gdiplus {
namespace {

/// Adds the points from `first` up to `end` backwards; each line keeps its kind.
void AddBackwards(PathPoints& to, const PathPoints& from, size_t first, size_t end) {
    int kind = PathPointTypeStart;
    for (size_t i = end; i-- > first;) {
        to.Add(from.points[i], kind);
        kind = from.types[i] & (PathPointTypePathTypeMask | PathPointTypeDashMode);
    }
    if (from.Closes(end - 1)) to.types.back() |= PathPointTypeCloseSubpath;
}

void CopyMarkers(PathPoints& to, const PathPoints& from) {
    const size_t count = from.Count();
    for (size_t i = 0; i < count; ++i) {
        if (!(from.types[i] & PathPointTypePathMarker)) continue;
        to.types[i + 1 < count ? count - 2 - i : i] |= PathPointTypePathMarker;
    }
}

}  // namespace

PathPoints Reversed(const PathPoints& path) {
    std::vector<size_t> starts;
    for (size_t i = 0; i < path.Count(); i = EndOfFigure(path, i)) starts.push_back(i);
    PathPoints result;
    size_t end = path.Count();
    for (size_t i = starts.size(); i-- > 0;) {
        AddBackwards(result, path, starts[i], end);
        end = starts[i];
    }
    CopyMarkers(result, path);
    return result;
}

}  // namespace vxgui::gdiplus
