#include "vxgui/platform/gdiplus/Affine.h"

#include <cmath>
#include <numbers>
#include <tuple>

namespace vxgui::gdiplus {
namespace {

REAL Single(double value) { return static_cast<REAL>(value); }

double ExactDeterminant(const Affine& a) { return double{a.m11} * a.m22 - double{a.m12} * a.m21; }

}  // namespace

Affine Affine::Rotation(REAL degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    const REAL sine = Single(std::sin(angle)), cosine = Single(std::cos(angle));
    return {cosine, sine, -sine, cosine, 0, 0};
}

std::optional<Affine> Inverse(const Affine& a) {
    const double d = ExactDeterminant(a);
    if (d == 0 || !std::isfinite(1 / d) || !std::isfinite(a.dx) || !std::isfinite(a.dy)) return {};
    return Affine{Single(a.m22 / d),
                  Single(-a.m12 / d),
                  Single(-a.m21 / d),
                  Single(a.m11 / d),
                  Single((double{a.m21} * a.dy - double{a.m22} * a.dx) / d),
                  Single((double{a.m12} * a.dx - double{a.m11} * a.dy) / d)};
}

std::optional<Affine> RectToParallelogram(const GpRectF& rect, const GpPointF corners[3]) {
    if (rect.Width == 0 || rect.Height == 0) return {};
    const auto [origin, right, below] = std::tie(corners[0], corners[1], corners[2]);
    Affine result{(right.X - origin.X) / rect.Width,
                  (right.Y - origin.Y) / rect.Width,
                  (below.X - origin.X) / rect.Height,
                  (below.Y - origin.Y) / rect.Height,
                  0,
                  0};
    const GpPointF corner = result.Apply({rect.X, rect.Y});
    result.dx = origin.X - corner.X;
    result.dy = origin.Y - corner.Y;
    return result;
}

REAL MeanScale(const Affine& matrix) {
    return Single(std::sqrt(std::abs(ExactDeterminant(matrix))));
}

}  // namespace vxgui::gdiplus
