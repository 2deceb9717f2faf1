#include "vxgui/platform/gdi/GradientTriangle.h"

#include <algorithm>

namespace vxgui::gdi {
namespace {

int64_t Cross(int64_t ax, int64_t ay, int64_t bx, int64_t by) { return ax * by - ay * bx; }

// Twice the signed area of the triangle between an edge and a point.
int64_t Area(const TRIVERTEX& a, const TRIVERTEX& b, int64_t x, int64_t y) {
    return Cross(int64_t{b.x} - a.x, int64_t{b.y} - a.y, x - a.x, y - a.y);
}

int64_t CeilingOfQuotient(int64_t value, int64_t positive) {
    return value / positive + (value % positive > 0 ? 1 : 0);
}

// The first column at or right of where the edge, which crosses row y, stands there.
int32_t Crossing(const TRIVERTEX& upper, const TRIVERTEX& lower, int32_t y) {
    const int64_t run = int64_t{lower.x} - upper.x;
    const int64_t rise = int64_t{lower.y} - upper.y;
    return static_cast<int32_t>(upper.x + CeilingOfQuotient(run * (int64_t{y} - upper.y), rise));
}

}  // namespace

GradientTriangle::GradientTriangle(const TRIVERTEX& a, const TRIVERTEX& b, const TRIVERTEX& c)
    : corners_{&a, &b, &c}, determinant_(Area(a, b, c.x, c.y)) {}

RECT GradientTriangle::Bounds() const {
    if (determinant_ == 0) return {0, 0, 0, 0};
    const auto [a, b, c] = corners_;
    return {std::min({a->x, b->x, c->x}), std::min({a->y, b->y, c->y}),
            std::max({a->x, b->x, c->x}), std::max({a->y, b->y, c->y})};
}

GradientTriangle::Run GradientTriangle::Row(int32_t y) const {
    Run run{INT32_MAX, INT32_MIN};
    for (size_t i = 0; i < 3; ++i) {
        const TRIVERTEX* upper = corners_[i];
        const TRIVERTEX* lower = corners_[(i + 1) % 3];
        if (upper->y > lower->y) std::swap(upper, lower);
        if (y < upper->y || y >= lower->y) continue;
        const int32_t x = Crossing(*upper, *lower, y);
        run.left = std::min(run.left, x);
        run.right = std::max(run.right, x);
    }
    return run;
}

uint32_t GradientTriangle::Color(int32_t x, int32_t y) const {
    const auto [a, b, c] = corners_;
    const int64_t ofA = Area(*b, *c, x, y);
    const int64_t ofB = Area(*c, *a, x, y);
    const int64_t ofC = determinant_ - ofA - ofB;
    const auto channel = [&](WORD fromA, WORD fromB, WORD fromC) {
        return static_cast<uint32_t>((fromA * ofA + fromB * ofB + fromC * ofC) / determinant_ >> 8);
    };
    return channel(a->Red, b->Red, c->Red) << 16 | channel(a->Green, b->Green, c->Green) << 8 |
           channel(a->Blue, b->Blue, c->Blue);
}

}  // namespace vxgui::gdi
