#include "vxgui/platform/gdiplus/brushes/Outline.h"

#include <algorithm>
#include <cmath>

namespace vxgui::gdiplus {
namespace {

// Lines to a curve: close enough for a shade, whose colours are mixed along them.
constexpr int kCurveLines = 24;

GpPointF OnCurve(const GpPointF (&p)[4], REAL t) {
    const REAL s = 1 - t;
    const REAL weights[] = {s * s * s, 3 * s * s * t, 3 * s * t * t, t * t * t};
    GpPointF sum{0, 0};
    for (int i = 0; i < 4; ++i) {
        sum.X += weights[i] * p[i].X;
        sum.Y += weights[i] * p[i].Y;
    }
    return sum;
}

class OutlineBuilder {
public:
    OutlineBuilder(const PathPoints& path, std::span<const ARGB> colors, ShadeScale scale)
        : path_(path), colors_(colors), scale_(scale) {}

    std::vector<OutlineFigure> Build() {
        for (size_t i = 0; i < path_.Count(); ++i) {
            if (path_.Kind(i) == PathPointTypeStart) figures_.emplace_back();
            if (path_.Kind(i) == PathPointTypeBezier && i > 0 && i + 2 < path_.Count()) {
                AddCurve(i - 1);
                i += 2;
            } else if (!figures_.empty()) {
                figures_.back().push_back({path_.points[i], ShadeAt(i)});
            }
        }
        return std::move(figures_);
    }

private:
    Shade ShadeAt(size_t index) const {
        return ShadeOf(colors_[std::min(index, colors_.size() - 1)], scale_);
    }

    void AddCurve(size_t from) {
        const GpPointF* p = &path_.points[from];
        const Shade first = ShadeAt(from), last = ShadeAt(from + 3);
        for (int i = 1; i <= kCurveLines; ++i) {
            const REAL t = static_cast<REAL>(i) / kCurveLines;
            figures_.back().push_back({OnCurve({p[0], p[1], p[2], p[3]}, t), Mix(first, last, t)});
        }
    }

    const PathPoints& path_;
    std::span<const ARGB> colors_;
    ShadeScale scale_;
    std::vector<OutlineFigure> figures_;
};

GpPointF MeanOf(const std::vector<GpPointF>& points) {
    double x = 0, y = 0;
    for (const GpPointF& p : points) {
        x += p.X;
        y += p.Y;
    }
    const auto count = static_cast<double>(points.size());
    return {static_cast<REAL>(x / count), static_cast<REAL>(y / count)};
}

}  // namespace

std::vector<OutlineFigure> OutlineOf(const PathPoints& path, std::span<const ARGB> colors,
                                     ShadeScale scale) {
    return OutlineBuilder(path, colors, scale).Build();
}

// Sums triangles over a point nearby, where the products keep their precision.
GpPointF CentroidOf(const PathPoints& path) {
    constexpr ARGB kNoColor = 0;
    const GpPointF mean = MeanOf(path.points);
    double area = 0, x = 0, y = 0;
    for (const OutlineFigure& figure : OutlineOf(path, {&kNoColor, 1}, ShadeScale::Stored)) {
        for (size_t i = 0; i < figure.size(); ++i) {
            const GpPointF& a = figure[i].point;
            const GpPointF& b = figure[(i + 1) % figure.size()].point;
            const double ax = a.X - mean.X, ay = a.Y - mean.Y, bx = b.X - mean.X, by = b.Y - mean.Y;
            const double twice = ax * by - bx * ay;
            area += twice;
            x += twice * (ax + bx) / 3;
            y += twice * (ay + by) / 3;
        }
    }
    if (!(std::abs(area) > 1e-9)) return mean;
    return {mean.X + static_cast<REAL>(x / area), mean.Y + static_cast<REAL>(y / area)};
}

}  // namespace vxgui::gdiplus
