#pragma once

#include <optional>

#include "vxgui/platform/gdiplus/brushes/Blend.h"
#include "vxgui/platform/gdiplus/brushes/WrappedBrush.h"

namespace vxgui::gdiplus {

/// A line gradient's place: its rectangle, and the line along which the colours change.
struct GradientLine {
    GpRectF rect;
    /// Takes (0, y) to where the first colour is and (1, y) to the second.
    Affine fromUnit;
};

/// None for two equal points.
std::optional<GradientLine> LineBetween(GpPointF from, GpPointF to);
/// None for a rectangle without area. The line runs in the direction of `degrees`, clockwise from
/// the right, as far as the rectangle reaches; `scalable` turns it in a square that is then
/// stretched to the rectangle.
std::optional<GradientLine> LineInRect(const GpRectF& rect, REAL degrees, bool scalable);

class LineBrush final : public WrappedBrush {
public:
    LineBrush(const GradientLine& line, ARGB first, ARGB second, WrapMode wrap)
        : WrappedBrush(wrap), line(line), colors{first, second} {}
    LineBrush(const LineBrush&) = default;

    /// A line has no end to stop at, so that clamping is no mode of it.
    static constexpr bool Takes(WrapMode wrap) { return IsWrap(wrap) && wrap != WrapModeClamp; }

    BrushType Type() const override { return BrushTypeLinearGradient; }
    Ref<Brush> Clone() const override { return New<LineBrush>(*this); }
    Pattern MakePattern(const PatternPlace& place) const override;

    const GpRectF& Rect() const { return line.rect; }

    const GradientLine line;
    ARGB colors[2];
    Blend blend;

private:
    std::vector<uint32_t> Ramp(size_t size) const;
};

}  // namespace vxgui::gdiplus
