#pragma once

#include <cmath>
#include <vector>

#include "vxgui/platform/gdiplus/Affine.h"

namespace vxgui::gdiplus {

/// A point or a direction, for geometry that adds up many steps.
struct Vec {
    double x = 0, y = 0;

    Vec() = default;
    constexpr Vec(double x, double y) : x(x), y(y) {}
    explicit constexpr Vec(GpPointF p) : x(p.X), y(p.Y) {}

    constexpr Vec operator+(Vec b) const { return {x + b.x, y + b.y}; }
    constexpr Vec operator-(Vec b) const { return {x - b.x, y - b.y}; }
    constexpr Vec operator-() const { return {-x, -y}; }
    constexpr Vec operator*(double f) const { return {x * f, y * f}; }
    constexpr bool operator==(const Vec&) const = default;

    double Length() const { return std::hypot(x, y); }
    /// Of length 1; a vector without length stays as it is.
    Vec Unit() const {
        const double length = Length();
        return length > 0 ? Vec{x / length, y / length} : *this;
    }
    /// Turned by a quarter, clockwise on a screen: what lies to the right of this direction.
    constexpr Vec Right() const { return {-y, x}; }
    bool IsFinite() const { return std::isfinite(x) && std::isfinite(y); }
};

constexpr double Dot(Vec a, Vec b) { return a.x * b.x + a.y * b.y; }
constexpr double Cross(Vec a, Vec b) { return a.x * b.y - a.y * b.x; }
constexpr Vec Between(Vec a, Vec b, double share) { return a + (b - a) * share; }

inline GpPointF ToPointF(Vec v) { return {static_cast<REAL>(v.x), static_cast<REAL>(v.y)}; }
inline Vec Mapped(const Affine& a, Vec v) {
    return {v.x * a.m11 + v.y * a.m21 + a.dx, v.x * a.m12 + v.y * a.m22 + a.dy};
}

/// A closed line of corners.
using Polygon = std::vector<Vec>;
using Polygons = std::vector<Polygon>;

}  // namespace vxgui::gdiplus
