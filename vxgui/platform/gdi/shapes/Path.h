#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "vxgui/platform/gdi_types.h"

namespace vxgui::gdi {

/// A point of a path, in pixels.
struct PathPoint {
    double x = 0;
    double y = 0;
    friend bool operator==(const PathPoint&, const PathPoint&) = default;
};

/// Figures of straight edges. Points are kept on a grid of 1/16 pixel, as in the platform's own
/// paths: what the sine of an arc adds by rounding can't push a corner past a lattice point.
class Path {
public:
    /// Starts a figure.
    void MoveTo(PathPoint point);
    /// Goes on with the last figure; on an empty path it starts one.
    void LineTo(PathPoint point);
    void Append(std::span<const PathPoint> points);

    bool Empty() const { return points_.empty(); }
    size_t FigureCount() const { return starts_.size(); }
    /// The points of a figure, which is closed or not as its reader likes.
    std::span<const PathPoint> Figure(size_t index) const;
    PathPoint Last() const { return points_.back(); }

private:
    std::vector<PathPoint> points_;
    std::vector<size_t> starts_;
};

}  // namespace vxgui::gdi
