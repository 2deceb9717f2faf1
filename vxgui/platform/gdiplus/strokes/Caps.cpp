#include "vxgui/platform/gdiplus/strokes/Caps.h"

#include <algorithm>
#include <numbers>

namespace vxgui::gdiplus {
namespace {

constexpr double kPi = std::numbers::pi;

Vec Turned(Vec v, double angle) {
    const double sine = std::sin(angle), cosine = std::cos(angle);
    return {v.x * cosine - v.y * sine, v.x * sine + v.y * cosine};
}

}  // namespace

bool IsAnchor(LineCap cap) { return cap >= LineCapSquareAnchor && cap <= LineCapArrowAnchor; }

double LengthOfArrow(double width) { return width * std::numbers::sqrt3; }

void AddArc(Polygon& polygon, Vec middle, Vec start, double angle, double tolerance) {
    const double radius = start.Length();
    if (radius == 0) return;
    const double step = 2 * std::acos(std::clamp(1 - tolerance / radius, 0.0, 1 - 1e-6));
    const int chords = std::max(1, static_cast<int>(std::ceil(std::abs(angle) / step)));
    for (int i = 0; i <= chords; ++i) {
        polygon.push_back(middle + Turned(start, angle * i / chords));
    }
}

Polygon ShapeOf(const PlacedCap& cap, double width, double tolerance) {
    const Vec at = cap.at, out = cap.outward * (width / 2), side = out.Right();
    const Vec across = (out + side) * std::numbers::sqrt2;  // to a corner of the anchor's square
    const Vec back = cap.outward * -LengthOfArrow(width);
    Polygon shape;
    switch (cap.cap) {
        case LineCapSquare:
            return {at + side, at + side + out, at - side + out, at - side};
        case LineCapRound:
            AddArc(shape, at, side, -kPi, tolerance);
            return shape;
        case LineCapTriangle:
            return {at + side, at + out, at - side};
        case LineCapSquareAnchor:
            return {at + across, at + across.Right(), at - across, at - across.Right()};
        case LineCapRoundAnchor:
            AddArc(shape, at, side * 2, 2 * kPi, tolerance);
            return shape;
        case LineCapDiamondAnchor:
            return {at + out * 2, at + side * 2, at - out * 2, at - side * 2};
        case LineCapArrowAnchor:
            return {at, at + back + side * 2, at + back - side * 2};
        default:
            return {};
    }
}

}  // namespace vxgui::gdiplus
