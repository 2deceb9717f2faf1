#include "vxgui/platform/gdiplus/strokes/Ruler.h"

#include <algorithm>

namespace vxgui::gdiplus {

Ruler::Ruler(const Line& line) : corners_(line.corners) {
    if (line.closed) corners_.push_back(corners_.front());
    distances_.push_back(0);
    for (size_t i = 1; i < corners_.size(); ++i) {
        distances_.push_back(distances_.back() + (corners_[i].at - corners_[i - 1].at).Length());
    }
}

size_t Ruler::SegmentAt(double distance) const {
    const auto end = std::upper_bound(distances_.begin() + 1, distances_.end() - 1, distance);
    return static_cast<size_t>(end - distances_.begin()) - 1;
}

Vec Ruler::At(double distance) const {
    const size_t i = SegmentAt(distance);
    const double share = (distance - distances_[i]) / (distances_[i + 1] - distances_[i]);
    return Between(corners_[i].at, corners_[i + 1].at, std::clamp(share, 0.0, 1.0));
}

Line Ruler::Cut(const Stretch& stretch) const {
    Line line;
    line.corners.push_back({At(stretch.from), false});
    for (size_t i = SegmentAt(stretch.from) + 1; distances_[i] < stretch.to; ++i) {
        if (corners_[i].at != line.corners.back().at) line.corners.push_back(corners_[i]);
    }
    const Vec end = At(stretch.to);
    if (end != line.corners.back().at) line.corners.push_back({end, false});
    return line;
}

}  // namespace vxgui::gdiplus
