#pragma once

#include "vxgui/platform/gdiplus/strokes/Lines.h"

namespace vxgui::gdiplus {

/// A stretch of a line, by distances from its start.
struct Stretch {
    double from, to;
};

/// Measures along a line of two corners or more.
class Ruler {
public:
    explicit Ruler(const Line& line);

    double Length() const { return distances_.back(); }
    Vec At(double distance) const;
    /// The open line between two distances, the second the larger.
    Line Cut(const Stretch& stretch) const;

private:
    size_t SegmentAt(double distance) const;

    std::vector<Corner> corners_;  // of a closed line, the first stands at the end again
    std::vector<double> distances_;
};

}  // namespace vxgui::gdiplus
