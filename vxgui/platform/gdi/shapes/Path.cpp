#include "vxgui/platform/gdi/shapes/Path.h"

#include <cmath>

namespace vxgui::gdi {
namespace {

PathPoint OnGrid(PathPoint point) {
    return {std::nearbyint(point.x * 16) / 16, std::nearbyint(point.y * 16) / 16};
}

}  // namespace

void Path::MoveTo(PathPoint point) {
    starts_.push_back(points_.size());
    points_.push_back(OnGrid(point));
}

void Path::LineTo(PathPoint point) {
    if (Empty()) return MoveTo(point);
    points_.push_back(OnGrid(point));
}

void Path::Append(std::span<const PathPoint> points) {
    for (const PathPoint& point : points) LineTo(point);
}

std::span<const PathPoint> Path::Figure(size_t index) const {
    const size_t start = starts_[index];
    const size_t end = index + 1 < starts_.size() ? starts_[index + 1] : points_.size();
    return std::span(points_).subspan(start, end - start);
}

}  // namespace vxgui::gdi
