#include "vxgui/platform/gdi/text/SpanPainter.h"

#include <algorithm>
#include <cmath>

#include "vxgui/platform/gdi/text/OutlinePaint.h"

namespace vxgui::gdi {
namespace {

/// A rectangle, turned, as an outline around the pen.
struct Quadrangle {
    FT_Vector points[4];
    unsigned char tags[4] = {FT_CURVE_TAG_ON, FT_CURVE_TAG_ON, FT_CURVE_TAG_ON, FT_CURVE_TAG_ON};
    short end = 3;

    FT_Outline Outline() {
        FT_Outline outline{};
        outline.n_contours = 1;
        outline.n_points = 4;
        outline.points = points;
        outline.tags = reinterpret_cast<char*>(tags);
        outline.contours = &end;
        return outline;
    }
};

void PaintTurnedSpan(const LinePlace& place, PenPoint pen, const LineSpan& span,
                     CoveragePaint& paint) {
    // Ends far out of sight are cut, which keeps the outline's numbers small.
    constexpr int64_t kFar = 1 << 20;
    const int64_t xs[] = {span.left, span.right, span.right, span.left};
    const int64_t ys[] = {span.top, span.top, span.bottom, span.bottom};
    Quadrangle shape;
    for (int i = 0; i < 4; ++i) {
        const auto along = static_cast<double>(std::clamp(xs[i], -kFar, kFar));
        const auto above = static_cast<double>(-ys[i]);
        shape.points[i] = {std::lround(place.turn.Right(along, above) * 64),
                           std::lround(place.turn.Up(along, above) * 64)};
    }
    FT_Outline outline = shape.Outline();
    const int64_t x = std::clamp(pen.x, -kFar, kFar);
    const int64_t y = std::clamp(pen.y, -kFar, kFar);
    ForEachClipRect(place.context, place.clip, [&](const RECT& part) {
        PaintOutline(place.setup.engine.Library(), outline, x, y, part, false, paint);
    });
}

}  // namespace

void PaintSpan(const LinePlace& place, PenPoint pen, const LineSpan& span, uint32_t color) {
    if (span.right <= span.left) return;
    CoveragePaint paint(place.target, color);
    if (!place.turn.None()) return PaintTurnedSpan(place, pen, span, paint);
    const RECT area =
        HeldRect(pen.x + span.left, pen.y + span.top, pen.x + span.right, pen.y + span.bottom);
    ForEachClipRect(place.context, Intersection(area, place.clip),
                    [&](const RECT& part) { paint.Fill(part); });
}

}  // namespace vxgui::gdi
