#include "vxgui/platform/gdiplus/paths/Curves.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "vxgui/platform/gdiplus/Vec.h"

namespace vxgui::gdiplus {
namespace {

constexpr double kTurn = 2 * std::numbers::pi;

struct Ellipse {
    explicit Ellipse(const GpRectF& box)
        : radii(box.Width / 2.0, box.Height / 2.0), middle(box.X + radii.x, box.Y + radii.y) {}

    /// Where the ray of an angle meets the ellipse, as the angle on the circle that the ellipse is
    /// stretched from.
    double OnCircle(double ray) const {
        if (radii.x == 0 || radii.y == 0) return ray;
        const double angle =
            std::atan2(std::sin(ray) * std::abs(radii.x), std::cos(ray) * std::abs(radii.y));
        return angle + kTurn * std::round((ray - angle) / kTurn);
    }
    Vec At(double angle) const {
        return middle + Vec{radii.x * std::cos(angle), radii.y * std::sin(angle)};
    }
    Vec Along(double angle) const {
        return {-radii.x * std::sin(angle), radii.y * std::cos(angle)};
    }

    Vec radii, middle;
};

void AddPiece(CurvePoints& curve, Vec start, Vec startHandle, Vec endHandle, Vec end) {
    if (curve.empty()) curve.push_back(ToPointF(start));
    for (const Vec point : {startHandle, endHandle, end}) curve.push_back(ToPointF(point));
}

/// The handle at point `i` for neighbours `before` and `after`.
Vec Handle(const std::vector<GpPointF>& points, size_t before, size_t after, REAL tension) {
    return (Vec(points[after]) - Vec(points[before])) * (tension / 3.0);
}

}  // namespace

CurvePoints ArcCurve(const GpRectF& box, REAL startAngle, REAL sweepAngle) {
    const Ellipse ellipse(box);
    const double sweep = std::clamp<double>(sweepAngle, -360, 360) / 360 * kTurn;
    const double ray = std::remainder(startAngle, 360.0) / 360 * kTurn;
    const double start = ellipse.OnCircle(ray);
    const bool whole = std::abs(sweep) >= kTurn;
    const double angle = whole ? sweep : ellipse.OnCircle(ray + sweep) - start;
    CurvePoints curve{ToPointF(ellipse.At(start))};
    if (!std::isfinite(angle)) return curve;
    const int pieces = static_cast<int>(std::ceil(std::abs(angle) / (kTurn / 4) - 1e-6));
    if (pieces < 1) return curve;
    const double step = angle / pieces;
    const double handle = 4.0 / 3 * std::tan(step / 4);  // the middle of the piece is on the circle
    for (int i = 0; i < pieces; ++i) {
        const double from = start + i * step, to = from + step;
        AddPiece(curve, ellipse.At(from), ellipse.At(from) + ellipse.Along(from) * handle,
                 ellipse.At(to) - ellipse.Along(to) * handle, ellipse.At(to));
    }
    if (whole) curve.back() = curve.front();
    return curve;
}

CurvePoints SplineCurve(const std::vector<GpPointF>& points, size_t first, size_t segments,
                        REAL tension) {
    const auto handle = [&](size_t i) {
        return Handle(points, i == 0 ? 0 : i - 1, std::min(i + 1, points.size() - 1), tension);
    };
    CurvePoints curve;
    for (size_t i = first; i < first + segments; ++i) {
        const Vec start(points[i]), end(points[i + 1]);
        AddPiece(curve, start, start + handle(i), end - handle(i + 1), end);
    }
    return curve;
}

CurvePoints ClosedSplineCurve(const std::vector<GpPointF>& points, REAL tension) {
    const size_t count = points.size();
    const auto handle = [&](size_t i) {
        return Handle(points, (i + count - 1) % count, (i + 1) % count, tension);
    };
    CurvePoints curve;
    for (size_t i = 0; i < count; ++i) {
        const size_t next = (i + 1) % count;
        const Vec start(points[i]), end(points[next]);
        AddPiece(curve, start, start + handle(i), end - handle(next), end);
    }
    return curve;
}

}  // namespace vxgui::gdiplus
