#include "vxgui/platform/gdi/text/LinePainter.h"

#include <algorithm>
#include <cmath>

#include "vxgui/platform/gdi/Record.h"
#include "vxgui/platform/gdi/text/OutlinePaint.h"

namespace vxgui::gdi {
namespace {

double Radians(int32_t tenths) { return tenths * (3.14159265358979323846 / 1800); }

LONG Clamped(int64_t value) {
    return static_cast<LONG>(std::clamp<int64_t>(value, INT32_MIN, INT32_MAX));
}

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

}  // namespace

LinePainter::LinePainter(const DeviceContext& context, const TextSetup& setup, const RECT& clip)
    : context_(context),
      setup_(setup),
      target_(context.Target()),
      clip_(Intersection(clip, target_.Bounds())),
      font_(*setup.font),
      cosine_(std::cos(Radians(font_.Angle()))),
      sine_(std::sin(Radians(font_.Angle()))),
      paint_(target_, SwapRedAndBlue(context.state.textColor)) {}

LinePainter::Point LinePainter::Turned(Point pen, int64_t along, int64_t above) const {
    if (font_.Angle() == 0) return {pen.x + along, pen.y - above};
    const auto dx =
        std::llround(static_cast<double>(along) * cosine_ - static_cast<double>(above) * sine_);
    const auto dy =
        std::llround(static_cast<double>(along) * sine_ + static_cast<double>(above) * cosine_);
    return {pen.x + dx, pen.y - dy};
}

LinePainter::Point LinePainter::PenOf(const TextLine& line, int64_t x, int64_t y) const {
    const UINT align = context_.state.textAlign;
    const FontMeasures& measures = font_.Measures();
    int64_t along = 0;
    if ((align & TA_CENTER) == TA_CENTER) {
        along = -(line.width / 2);
    } else if ((align & TA_RIGHT) != 0) {
        along = -line.width;
    }
    int64_t above = -measures.ascent;
    if ((align & TA_BASELINE) == TA_BASELINE) {
        above = 0;
    } else if ((align & TA_BOTTOM) != 0) {
        above = measures.descent;
    }
    return Turned({x, y}, along, above);
}

void LinePainter::Paint(const TextLine& line, int64_t x, int64_t y) {
    const Point pen = PenOf(line, x, y);
    const FontMeasures& m = font_.Measures();
    if (context_.state.backMode == OPAQUE) {
        PaintSpan(pen, {0, line.width, -m.ascent, m.descent},
                  SwapRedAndBlue(context_.state.backColor));
    }
    for (const LinePart& part : line.parts) PaintPart(part, pen);
    const uint32_t color = SwapRedAndBlue(context_.state.textColor);
    if (font_.Record().lfUnderline) {
        PaintSpan(pen, {0, line.width, m.underlineTop, m.underlineTop + m.underlineThickness},
                  color);
    }
    if (font_.Record().lfStrikeOut) {
        PaintSpan(pen, {0, line.width, -m.strikeOutTop, m.strikeOutThickness - m.strikeOutTop},
                  color);
    }
}

void LinePainter::PaintPrefix(const TextLine& line, size_t unit, int64_t x, int64_t y) {
    int32_t advance = 0;
    const int64_t left = line.LeftOf(unit, &advance);
    // The second row below the base line, so that it stays clear of the letters.
    PaintSpan(PenOf(line, x, y), {left, left + advance, 1, 2},
              SwapRedAndBlue(context_.state.textColor));
}

// A text with spacing, and a long one, is laid out anew each time: its image would never be found.
const LineImage* LinePainter::ImageOf(const LinePart& part) const {
    const bool kept =
        setup_.spacing.None() && part.shaped->advances.size() <= ShapedTextCache::kLongestLine;
    if (!kept || font_.Angle() != 0) return nullptr;
    return setup_.engine.Lines().Find(part.shaped, font_, setup_.engine.Glyphs());
}

void LinePainter::PaintPart(const LinePart& part, Point pen) {
    if (const LineImage* image = ImageOf(part)) {
        for (const GlyphImage& layer : *image) PaintImage(layer, {pen.x + part.x, pen.y});
        return;
    }
    int64_t along = part.x;
    for (const ShapedGlyph& glyph : part.shaped->glyphs) {
        if (glyph.ink) PaintGlyph(glyph, Turned(pen, along + glyph.dx, glyph.dy));
        along += glyph.advance;
    }
}

bool LinePainter::OutOfSight(const UsedFace& used, Point pen) const {
    const DesignMetrics& design = used.face->Design();
    const int64_t em = std::max(used.scale.em, used.scale.horizontal / 64 + 1);
    // Half as much again for a slant and a bold that the face's own box doesn't know.
    const int64_t reach = em * design.reach / design.unitsPerEm * 3 / 2 + 4;
    return pen.x + reach < clip_.left || pen.x - reach > clip_.right || pen.y + reach < clip_.top ||
           pen.y - reach > clip_.bottom;
}

void LinePainter::PaintGlyph(const ShapedGlyph& glyph, Point pen) {
    const UsedFace& used = font_.Face(glyph.face);
    if (!used.face || OutOfSight(used, pen)) return;
    if (const GlyphImage* image = setup_.engine.Glyphs().Find(used, glyph.index)) {
        PaintImage(*image, pen);
    } else {
        PaintLoaded(used, pen);
    }
}

void LinePainter::PaintImage(const GlyphImage& image, Point pen) {
    const int64_t left = pen.x + image.left;
    const int64_t top = pen.y - image.top;
    const RECT area = {Clamped(left), Clamped(top), Clamped(left + image.width),
                       Clamped(top + image.rows)};
    ForEachClipRect(context_, Intersection(area, clip_), [&](const RECT& part) {
        const uint8_t* coverage =
            image.coverage.data() + (part.top - top) * image.width + (part.left - left);
        for (int32_t y = part.top; y < part.bottom; ++y, coverage += image.width) {
            paint_.Row(part.left, y, part.right - part.left, coverage);
        }
    });
}

void LinePainter::PaintLoaded(const UsedFace& used, Point pen) {
    FT_Outline& outline = used.face->Handle()->glyph->outline;
    ForEachClipRect(context_, clip_, [&](const RECT& part) {
        PaintOutline(setup_.engine.Library(), outline, pen.x, pen.y, part, used.scale.mono, paint_);
    });
}

void LinePainter::PaintSpan(Point pen, const Span& span, uint32_t color) {
    if (span.right <= span.left) return;
    CoveragePaint paint(target_, color);
    if (font_.Angle() != 0) return PaintTurnedSpan(pen, span, paint);
    const RECT area = {Clamped(pen.x + span.left), Clamped(pen.y + span.top),
                       Clamped(pen.x + span.right), Clamped(pen.y + span.bottom)};
    ForEachClipRect(context_, Intersection(area, clip_),
                    [&](const RECT& part) { paint.Fill(part); });
}

void LinePainter::PaintTurnedSpan(Point pen, const Span& span, CoveragePaint& paint) {
    // Ends far out of sight are cut, which keeps the outline's numbers small.
    constexpr int64_t kFar = 1 << 20;
    const int64_t xs[] = {span.left, span.right, span.right, span.left};
    const int64_t ys[] = {span.top, span.top, span.bottom, span.bottom};
    Quadrangle shape;
    for (int i = 0; i < 4; ++i) {
        const auto along = static_cast<double>(std::clamp(xs[i], -kFar, kFar));
        const auto above = static_cast<double>(-ys[i]);
        shape.points[i] = {std::lround((along * cosine_ - above * sine_) * 64),
                           std::lround((along * sine_ + above * cosine_) * 64)};
    }
    FT_Outline outline = shape.Outline();
    const int64_t x = std::clamp(pen.x, -kFar, kFar);
    const int64_t y = std::clamp(pen.y, -kFar, kFar);
    ForEachClipRect(context_, clip_, [&](const RECT& part) {
        PaintOutline(setup_.engine.Library(), outline, x, y, part, false, paint);
    });
}

}  // namespace vxgui::gdi
