#pragma once

#include <optional>

#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// A matrix of 3 by 2 for row vectors: x' = x m11 + y m21 + dx, y' = x m12 + y m22 + dy.
struct Affine {
    REAL m11 = 1, m12 = 0, m21 = 0, m22 = 1, dx = 0, dy = 0;

    GpPointF Apply(GpPointF p) const {
        return {p.X * m11 + p.Y * m21 + dx, p.X * m12 + p.Y * m22 + dy};
    }
    /// A direction, which a shift leaves alone.
    GpPointF ApplyToVector(GpPointF v) const {
        return {v.X * m11 + v.Y * m21, v.X * m12 + v.Y * m22};
    }
    REAL Determinant() const { return m11 * m22 - m12 * m21; }
    bool operator==(const Affine&) const = default;

    static constexpr Affine Translation(REAL dx, REAL dy) { return {1, 0, 0, 1, dx, dy}; }
    static constexpr Affine Scaling(REAL x, REAL y) { return {x, 0, 0, y, 0, 0}; }
    static constexpr Affine Shearing(REAL x, REAL y) { return {1, y, x, 1, 0, 0}; }
    /// Clockwise on a screen, whose y grows downwards.
    static Affine Rotation(REAL degrees);
};

/// None when the matrix flattens the plane or isn't finite.
std::optional<Affine> Inverse(const Affine& matrix);
/// Takes the rectangle to the parallelogram of three corners: upper left, upper right, lower left.
/// None for a rectangle without area.
std::optional<Affine> RectToParallelogram(const GpRectF& rect, const GpPointF corners[3]);
/// The factor by which lengths grow, over all directions.
REAL MeanScale(const Affine& matrix);

/// First `a`, then `b`.
constexpr Affine operator*(const Affine& a, const Affine& b) {
    return {a.m11 * b.m11 + a.m12 * b.m21,      a.m11 * b.m12 + a.m12 * b.m22,
            a.m21 * b.m11 + a.m22 * b.m21,      a.m21 * b.m12 + a.m22 * b.m22,
            a.dx * b.m11 + a.dy * b.m21 + b.dx, a.dx * b.m12 + a.dy * b.m22 + b.dy};
}

constexpr bool IsOrder(MatrixOrder order) {
    return order == MatrixOrderPrepend || order == MatrixOrderAppend;
}
/// `change` before `base` or after it.
constexpr Affine Combined(const Affine& base, const Affine& change, MatrixOrder order) {
    return order == MatrixOrderAppend ? base * change : change * base;
}

}  // namespace vxgui::gdiplus
