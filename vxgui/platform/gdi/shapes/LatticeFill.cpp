#include "vxgui/platform/gdi/shapes/LatticeFill.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "vxgui/platform/limits.h"

namespace vxgui::gdi {
namespace {

// An edge from its upper to its lower point, with the rows [first, end) that it crosses.
struct Edge {
    PathPoint upper;
    PathPoint lower;
    int winding;  // 1 when the path runs down along it, -1 when it runs up
    int32_t first;
    int32_t end;
};

struct Crossing {
    int32_t x;  // the first lattice point on or right of the edge
    int winding;
};

int32_t FirstAtOrAbove(double value, int32_t low, int32_t high) {
    return static_cast<int32_t>(std::clamp<double>(std::ceil(value), low, high));
}

class Filler {
public:
    Filler(int fillMode, const RECT& bounds)
        : mask_(fillMode == WINDING ? ~0 : 1), bounds_(bounds) {}

    void AddFigure(std::span<const PathPoint> points) {
        for (size_t i = 0; i < points.size(); ++i) {
            AddEdge(points[i], points[(i + 1) % points.size()]);
        }
    }

    std::optional<PixelRegion> Run() {
        if (crossingCount_ > static_cast<double>(ApartmentLimits().regionSteps))
            return std::nullopt;
        std::ranges::sort(edges_, {}, &Edge::first);
        int32_t row = bounds_.top;
        for (size_t next = 0; next < edges_.size() || !active_.empty(); ++row) {
            if (active_.empty()) row = edges_[next].first;
            for (; next < edges_.size() && edges_[next].first == row; ++next) {
                active_.push_back(&edges_[next]);
            }
            FillRow(row);
            std::erase_if(active_, [row](const Edge* edge) { return edge->end == row + 1; });
        }
        return PixelRegion::FromBoxes(boxes_);
    }

private:
    void AddEdge(PathPoint from, PathPoint to) {
        const bool down = from.y < to.y;
        if (!down) std::swap(from, to);
        const int32_t first = FirstAtOrAbove(from.y, bounds_.top, bounds_.bottom);
        const int32_t end = FirstAtOrAbove(to.y, bounds_.top, bounds_.bottom);
        if (first >= end) return;
        crossingCount_ += static_cast<double>(end) - first;
        edges_.push_back({from, to, down ? 1 : -1, first, end});
    }

    int32_t CrossingOf(const Edge& edge, int32_t row) const {
        const double x = edge.upper.x + (row - edge.upper.y) * (edge.lower.x - edge.upper.x) /
                                            (edge.lower.y - edge.upper.y);
        return FirstAtOrAbove(x, bounds_.left, bounds_.right);
    }

    void FillRow(int32_t row) {
        crossings_.clear();
        for (const Edge* edge : active_) {
            crossings_.push_back({CrossingOf(*edge, row), edge->winding});
        }
        std::ranges::sort(crossings_, {}, &Crossing::x);
        int winding = 0;
        for (size_t i = 0; i + 1 < crossings_.size(); ++i) {
            winding += crossings_[i].winding;
            if ((winding & mask_) != 0) AddSpan(row, crossings_[i].x, crossings_[i + 1].x);
        }
    }

    void AddSpan(int32_t row, int32_t left, int32_t right) {
        if (left >= right) return;
        const bool joins = !boxes_.empty() && boxes_.back().y1 == row && boxes_.back().x2 == left;
        if (joins) {
            boxes_.back().x2 = right;
        } else {
            boxes_.push_back({left, row, right, row + 1});
        }
    }

    const int mask_;
    const RECT bounds_;
    double crossingCount_ = 0;
    std::vector<Edge> edges_;
    std::vector<const Edge*> active_;
    std::vector<Crossing> crossings_;
    std::vector<pixman_box32_t> boxes_;
};

}  // namespace

std::optional<PixelRegion> LatticePoints(const Path& path, int fillMode, const RECT& bounds) {
    Filler filler(fillMode, bounds);
    for (size_t i = 0; i < path.FigureCount(); ++i) filler.AddFigure(path.Figure(i));
    return filler.Run();
}

}  // namespace vxgui::gdi
