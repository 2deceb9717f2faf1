#include "vxgui/platform/gdi/shapes/EllipseArc.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vxgui::gdi {
namespace {

constexpr double kTurn = 2 * std::numbers::pi;
constexpr double kQuarter = std::numbers::pi / 2;
// Rays nearer than this are one. Far below what lattice points of a bitmap can differ by, far
// above the error of the arc tangent.
constexpr double kSameRay = 1e-11;
constexpr double kFlatness = 1.0 / 32;
// Bounds the corners of a quarter turn; enough for a radius of 26,000 pixels.
constexpr double kMostSteps = 512;

// The parameter at which the ray from the centre through `point` meets the ellipse.
double ParameterOf(const EllipseArc& arc, POINT point) {
    return std::atan2((point.y - arc.centre.y) * arc.radiusX,
                      (point.x - arc.centre.x) * arc.radiusY);
}

// The way from `start` to `end` clockwise, above 0 and up to a full turn.
double ClockwiseSweep(double start, double end) {
    double sweep = std::fmod(end - start, kTurn);
    if (sweep < 0) sweep += kTurn;
    return sweep < kSameRay || sweep > kTurn - kSameRay ? kTurn : sweep;
}

PathPoint PointAt(const EllipseArc& arc, double parameter) {
    return {arc.centre.x + arc.radiusX * std::cos(parameter),
            arc.centre.y + arc.radiusY * std::sin(parameter)};
}

// The largest step whose chord stays within the flatness of a circle of the larger radius.
double StepOf(const EllipseArc& arc) {
    const double radius = std::max({arc.radiusX, arc.radiusY, kFlatness});
    return std::max(2 * std::acos(1 - kFlatness / radius), kQuarter / kMostSteps);
}

// The next multiple of a quarter turn after `from` on the way to `end`, or `end`.
double NextStop(double from, double end) {
    if (end > from) return std::min(end, (std::floor(from / kQuarter + 1e-9) + 1) * kQuarter);
    return std::max(end, (std::ceil(from / kQuarter - 1e-9) - 1) * kQuarter);
}

}  // namespace

EllipseArc ArcInBox(const RECT& box, POINT from, POINT to, bool clockwise) {
    const double right = box.right - 1.0;
    const double bottom = box.bottom - 1.0;
    EllipseArc arc;
    arc.centre = {(box.left + right) / 2, (box.top + bottom) / 2};
    arc.radiusX = (right - box.left) / 2;
    arc.radiusY = (bottom - box.top) / 2;
    arc.start = ParameterOf(arc, from);
    const double end = ParameterOf(arc, to);
    arc.sweep = clockwise ? ClockwiseSweep(arc.start, end) : -ClockwiseSweep(end, arc.start);
    return arc;
}

std::vector<PathPoint> Flatten(const EllipseArc& arc) {
    std::vector<PathPoint> points{PointAt(arc, arc.start)};
    const double step = StepOf(arc);
    const double end = arc.start + arc.sweep;
    for (double from = arc.start; from != end;) {
        const double to = NextStop(from, end);
        const int count = static_cast<int>(std::ceil(std::abs(to - from) / step));
        for (int i = 1; i <= count; ++i) {
            points.push_back(PointAt(arc, from + (to - from) * i / count));
        }
        from = to;
    }
    return points;
}

}  // namespace vxgui::gdi
