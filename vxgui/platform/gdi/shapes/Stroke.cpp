#include "vxgui/platform/gdi/shapes/Stroke.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "vxgui/base/Rounding.h"
#include "vxgui/platform/gdi/PixelConverter.h"
#include "vxgui/platform/gdi/PixelRows.h"
#include "vxgui/platform/gdi/Record.h"
#include "vxgui/platform/gdi/shapes/Dashes.h"
#include "vxgui/platform/gdi/shapes/EllipseArc.h"
#include "vxgui/platform/gdi/shapes/FillArea.h"
#include "vxgui/platform/gdi/shapes/LatticeFill.h"
#include "vxgui/platform/gdi/shapes/ThinLine.h"

namespace vxgui::gdi {
namespace {

POINT PixelAt(PathPoint point) {
    return {RoundHalfEven<LONG>(point.x), RoundHalfEven<LONG>(point.y)};
}

// A box around the line's pixels, cut where the coordinates end.
RECT BoxAround(POINT a, POINT b) {
    const auto [left, right] = std::minmax(a.x, b.x);
    const auto [top, bottom] = std::minmax(a.y, b.y);
    constexpr LONG kEnd = INT32_MAX;
    return {left, top, right < kEnd ? right + 1 : kEnd, bottom < kEnd ? bottom + 1 : kEnd};
}

class ThinStroke {
public:
    explicit ThinStroke(const DeviceContext& dc)
        : dc_(dc),
          target_(dc.Target()),
          dashes_(DashesOf(dc.state.pen->Description().lopnStyle)),
          gaps_(dc.state.backMode == OPAQUE) {
        ColorMatcher matcher(target_);
        word_ = matcher.Word(SwapRedAndBlue(dc.state.pen->Description().lopnColor));
        gapWord_ = matcher.Word(SwapRedAndBlue(dc.state.backColor));
    }

    void Line(POINT from, POINT to) {
        const ThinLine line(from, to);
        ForEachClipRect(dc_, BoxAround(from, to), [&](const RECT& part) {
            line.ForEachPixel(part, [&](int32_t x, int32_t y, int64_t step) {
                const bool inside = line.Flat() ? y >= part.top && y < part.bottom
                                                : x >= part.left && x < part.right;
                if (inside) Put(x, y, done_ + step);
            });
        });
        done_ += line.Length();
    }

private:
    void Put(int32_t x, int32_t y, int64_t step) const {
        const bool dash = InDash(dashes_, step);
        if (dash || gaps_) StoreRow(target_, x, y, 1, dash ? &word_ : &gapWord_);
    }

    const DeviceContext& dc_;
    const PixelTarget target_;
    const std::span<const int> dashes_;
    const bool gaps_;
    uint32_t word_;
    uint32_t gapWord_;
    // Pixels of the lines before, over which dashes go on.
    int64_t done_ = 0;
};

void StrokeWide(const DeviceContext& dc, std::span<const PathPoint> points, const LOGPEN& pen) {
    const RECT box = dc.DrawableBox();
    const Brush brush = PlainBrush(pen.lopnColor);
    for (size_t i = 1; i < points.size(); ++i) {
        // Parts that overlap are painted twice, in the same colour.
        const Path outline = WideLine(points[i - 1], points[i], pen.lopnWidth.x);
        const auto area = LatticePoints(outline, ALTERNATE, box);
        if (area) FillArea(dc, *area, brush);
    }
}

}  // namespace

Path WideLine(PathPoint from, PathPoint to, int width) {
    constexpr double kHalfTurn = std::numbers::pi;
    const double radius = width / 2.0;
    const double side = std::atan2(to.y - from.y, to.x - from.x) - kHalfTurn / 2;
    Path outline;
    outline.Append(Flatten({to, radius, radius, side, kHalfTurn}));
    outline.Append(Flatten({from, radius, radius, side + kHalfTurn, kHalfTurn}));
    return outline;
}

void Stroke(const DeviceContext& dc, std::span<const PathPoint> points) {
    const LOGPEN& pen = dc.state.pen->Description();
    if (pen.lopnStyle == PS_NULL) return;
    if (pen.lopnWidth.x > 1) return StrokeWide(dc, points, pen);
    ThinStroke stroke(dc);
    for (size_t i = 1; i < points.size(); ++i) {
        stroke.Line(PixelAt(points[i - 1]), PixelAt(points[i]));
    }
}

}  // namespace vxgui::gdi
