#include "vxgui/platform/gdiplus/strokes/Lines.h"

#include "vxgui/platform/gdiplus/paths/Flatten.h"

namespace vxgui::gdiplus {
namespace {

void CloseUp(Line& line) {
    auto& corners = line.corners;
    while (corners.size() > 1 && corners.back().at == corners.front().at) corners.pop_back();
    line.closed = corners.size() > 1;
}

}  // namespace

std::vector<Line> LinesOf(const PathPoints& path, const Affine& map, double flatness) {
    std::vector<Line> lines;
    VisitFlattened(path, map, flatness, [&](Vec point, int type, bool smooth) {
        const int kind = type & PathPointTypePathTypeMask;
        if (kind == PathPointTypeStart || lines.empty()) lines.emplace_back();
        Line& line = lines.back();
        if (!point.IsFinite()) return;
        if (line.corners.empty() || line.corners.back().at != point) {
            line.corners.push_back({point, smooth});
        }
        if ((type & PathPointTypeCloseSubpath) && !line.corners.empty()) CloseUp(line);
    });
    std::erase_if(lines, [](const Line& line) { return line.corners.empty(); });
    return lines;
}

}  // namespace vxgui::gdiplus
