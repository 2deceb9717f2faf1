#include <cmath>
#include <numbers>

#include "vxgui/platform/gdiplus/brushes/LineBrush.h"

namespace vxgui::gdiplus {
namespace {

// The box of two points; a line along an axis gets a square around it.
GpRectF BoxOfLine(GpPointF a, GpPointF b) {
    GpRectF box{std::min(a.X, b.X), std::min(a.Y, b.Y), std::abs(a.X - b.X), std::abs(a.Y - b.Y)};
    if (box.Width == 0) {
        box.X -= box.Height / 2;
        box.Width = box.Height;
    } else if (box.Height == 0) {
        box.Y -= box.Width / 2;
        box.Height = box.Width;
    }
    return box;
}

// A turned and scaled plane, whose (1, 0) is `along`.
Affine Along(GpPointF start, GpPointF along) {
    return {along.X, along.Y, -along.Y, along.X, start.X, start.Y};
}

// A line through the middle of a box from edge to edge in the direction (cosine, sine).
Affine Across(REAL width, REAL height, double cosine, double sine) {
    const double length = width * std::abs(cosine) + height * std::abs(sine);
    const GpPointF along{static_cast<REAL>(cosine * length), static_cast<REAL>(sine * length)};
    return Along({(width - along.X) / 2, (height - along.Y) / 2}, along);
}

}  // namespace

std::optional<GradientLine> LineBetween(GpPointF from, GpPointF to) {
    const GpPointF along{to.X - from.X, to.Y - from.Y};
    if (!(std::hypot(along.X, along.Y) > 0) || !std::isfinite(along.X + along.Y)) {
        return std::nullopt;
    }
    return GradientLine{BoxOfLine(from, to), Along(from, along)};
}

std::optional<GradientLine> LineInRect(const GpRectF& rect, REAL degrees, bool scalable) {
    if (!(rect.Width > 0 && rect.Height > 0) || !std::isfinite(degrees)) return std::nullopt;
    const double angle = static_cast<double>(degrees) * std::numbers::pi / 180;
    // A right angle is one, so that gradients along an axis are the same on every row or column.
    const bool onAxis = std::fmod(degrees, 90) == 0;
    const double cosine = onAxis ? std::round(std::cos(angle)) : std::cos(angle);
    const double sine = onAxis ? std::round(std::sin(angle)) : std::sin(angle);
    const Affine shift = Affine::Translation(rect.X, rect.Y);
    const Affine across =
        scalable ? Across(1, 1, cosine, sine) * Affine::Scaling(rect.Width, rect.Height)
                 : Across(rect.Width, rect.Height, cosine, sine);
    return GradientLine{rect, across * shift};
}

}  // namespace vxgui::gdiplus
