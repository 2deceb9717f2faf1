#include "vxgui/pixels/ShadeMesh.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vxgui {
namespace {

constexpr float kNothing = std::numeric_limits<float>::max();
constexpr double kRim = 1.5, kBesideRim = 0.5;  // pixels
constexpr double kLeastArea = 1e-6;
constexpr double kSlack = 1e-5;  // so that no pixel is lost between two triangles

// A value that changes evenly over the plane.
struct Plane {
    double atOrigin, alongX, alongY;

    double At(double x, double y) const { return atOrigin + alongX * x + alongY * y; }
    double Slope() const { return std::hypot(alongX, alongY); }
};

// A run of pixels in a row, the end not included.
struct Run {
    double from, to;

    // Leaves the middles where a plane is at least `low`.
    void Keep(const Plane& plane, double y, double low) {
        const double missing = low - plane.At(0.5, y);
        if (plane.alongX > 0) {
            from = std::max(from, std::ceil(missing / plane.alongX));
        } else if (plane.alongX < 0) {
            to = std::min(to, std::floor(missing / plane.alongX) + 1);
        } else if (missing > 0) {
            to = from;
        }
    }
};

// A triangle as three weights, each 1 at its corner and 0 along the opposite side.
struct Weights {
    Plane of[3];

    Plane Mean(const MeshTriangle& triangle, float MeshCorner::*value) const {
        Plane sum{0, 0, 0};
        for (int i = 0; i < 3; ++i) {
            const double factor = triangle.corners[i].*value;
            sum.atOrigin += of[i].atOrigin * factor;
            sum.alongX += of[i].alongX * factor;
            sum.alongY += of[i].alongY * factor;
        }
        return sum;
    }
};

double Area(const MeshCorner (&c)[3]) {
    return (static_cast<double>(c[1].x) - c[0].x) * (static_cast<double>(c[2].y) - c[0].y) -
           (static_cast<double>(c[2].x) - c[0].x) * (static_cast<double>(c[1].y) - c[0].y);
}

Weights WeightsOf(const MeshCorner (&c)[3], double area) {
    Weights weights;
    for (int i = 0; i < 3; ++i) {
        const MeshCorner& a = c[(i + 1) % 3];
        const MeshCorner& b = c[(i + 2) % 3];
        const double alongX = (static_cast<double>(a.y) - b.y) / area;
        const double alongY = (static_cast<double>(b.x) - a.x) / area;
        weights.of[i] = {-(alongX * a.x + alongY * a.y), alongX, alongY};
    }
    return weights;
}

}  // namespace

ShadeMesh::ShadeMesh(int32_t width, int32_t height)
    : width_(width),
      height_(height),
      order_(static_cast<size_t>(width) * static_cast<size_t>(height), kNothing),
      pixels_(order_.size()) {}

void ShadeMesh::Set(size_t at, float depth, const Shade& edge, const DepthShading& shading) {
    const float order = depth >= 0 ? depth : 2 - depth;
    if (!(order < order_[at])) return;  // nor for what is no number
    order_[at] = order;
    pixels_[at] = shading.At(std::clamp(depth, 0.0f, 1.0f), edge);
}

// A triangle with all that its rows need.
struct ShadeMesh::Painter {
    const MeshTriangle& triangle;
    const DepthShading& shading;
    const Weights weights;
    const Plane depth, weight, share;
    double lows[3];  ///< how far below 0 each weight may be

    Painter(const MeshTriangle& triangle, double area, const DepthShading& shading)
        : triangle(triangle),
          shading(shading),
          weights(WeightsOf(triangle.corners, area)),
          depth(weights.Mean(triangle, &MeshCorner::depth)),
          weight(weights.Mean(triangle, &MeshCorner::weight)),
          share(weights.Mean(triangle, &MeshCorner::share)) {
        for (int i = 0; i < 3; ++i) {
            const double pixels = !triangle.hasRim ? 0 : i == 2 ? kRim : kBesideRim;
            lows[i] = -std::max(kSlack, pixels * weights.of[i].Slope());
        }
    }

    Run RunOf(double y, int32_t width) const {
        Run run{0, static_cast<double>(width)};
        for (int i = 0; i < 3; ++i) run.Keep(weights.of[i], y, lows[i]);
        return run;
    }
    // Beside the triangle, but not beyond its rim, is another triangle's.
    bool Owns(double x, double y) const {
        return weights.of[2].At(x, y) < -kSlack ||
               (weights.of[0].At(x, y) >= -kSlack && weights.of[1].At(x, y) >= -kSlack);
    }
    Shade EdgeAt(double x, double y) const {
        const double whole = weight.At(x, y);
        const double part = whole > 0 ? std::clamp(share.At(x, y) / whole, 0.0, 1.0) : 0;
        return Mix(triangle.first, triangle.second, static_cast<float>(part));
    }
};

void ShadeMesh::PaintRow(int32_t row, const Painter& painter) {
    const double y = row + 0.5;
    const Run run = painter.RunOf(y, width_);
    for (auto column = static_cast<int32_t>(run.from); column < run.to; ++column) {
        const double x = column + 0.5;
        if (!painter.Owns(x, y)) continue;
        Set(Index(column, row), static_cast<float>(painter.depth.At(x, y)), painter.EdgeAt(x, y),
            painter.shading);
    }
}

void ShadeMesh::Paint(const MeshTriangle& triangle, const DepthShading& shading) {
    const double area = Area(triangle.corners);
    if (!(std::abs(area) > kLeastArea)) return;
    const Painter painter(triangle, area, shading);
    const auto [top, bottom] =
        std::minmax({triangle.corners[0].y, triangle.corners[1].y, triangle.corners[2].y});
    const auto rowAt = [&](double y) {
        return static_cast<int32_t>(std::clamp<double>(y, 0, height_));
    };
    const int32_t last = rowAt(bottom + kRim + 1);
    for (int32_t row = rowAt(top - kRim - 1); row < last; ++row) PaintRow(row, painter);
}

}  // namespace vxgui
