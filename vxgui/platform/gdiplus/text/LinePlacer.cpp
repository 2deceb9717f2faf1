#include "vxgui/platform/gdiplus/text/LinePlacer.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vxgui::gdiplus {
namespace {

constexpr double kSlack = 1e-3;  // what sums of floats may be off, in parts of a line

constexpr double kInkless = 1.0 / 16;  // the part of a line that has no ink, at its top

double Bound(REAL side) { return side > 0 ? side : 0; }

REAL Real(double value) { return static_cast<REAL>(value); }

}  // namespace

LinePlacer::LinePlacer(const StringFace& face, const LayoutRequest& request)
    : face_(face),
      format_(*request.format),
      style_(request.style),
      vertical_(format_.Has(StringFormatFlagsDirectionVertical)),
      rightToLeft_(!vertical_ && format_.Has(StringFormatFlagsDirectionRightToLeft)),
      width_(Bound(vertical_ ? request.room.Height : request.room.Width)),
      height_(Bound(vertical_ ? request.room.Width : request.room.Height)),
      padding_(format_.padding * request.em),
      lineWidth_(width_ > 0 ? width_ - 2 * padding_ : std::numeric_limits<double>::infinity()),
      lineHeight_(face.LineHeight()),
      mostLines_(MostLines()) {}

size_t LinePlacer::MostLines() const {
    constexpr size_t kNoLimit = std::numeric_limits<size_t>::max() - 1;
    const double lines = height_ / lineHeight_;
    if (height_ == 0 || !(lines < 1e9)) return kNoLimit;
    if (format_.Has(StringFormatFlagsLineLimit)) return static_cast<size_t>(lines + kSlack);
    if (format_.Has(StringFormatFlagsNoClip)) return kNoLimit;
    return static_cast<size_t>(std::max(1.0, std::ceil(lines - kInkless)));
}

// Without a bound the layout rectangle is the point that text is aligned to.
double LinePlacer::Aligned(StringAlignment alignment, double room, double size) const {
    if (alignment == StringAlignmentCenter) return (room - size) / 2;
    return alignment == StringAlignmentFar ? room - size : 0;
}

LinePlacer::LinePlace LinePlacer::PlaceOf(size_t number) const {
    const LineGlyphs& line = lines_[number];
    auto alignment = format_.alignment;
    if (rightToLeft_ && alignment != StringAlignmentCenter) {
        alignment = alignment == StringAlignmentNear ? StringAlignmentFar : StringAlignmentNear;
    }
    double x = Aligned(alignment, width_, line.width + 2 * padding_) + padding_;
    if (!format_.Has(StringFormatFlagsNoFitBlackBox) && width_ > 0 && line.width <= width_) {
        const Overhang over = OverhangOf(face_, line);
        x = std::min(x, width_ - line.width - over.right);
        x = std::max(x, over.left);
    }
    const double total = lineHeight_ * static_cast<double>(lines_.size());
    const double top = Aligned(format_.lineAlignment, height_, total);
    return {x, top + lineHeight_ * static_cast<double>(number)};
}

// In vertical text lines are columns whose letters lie on their right side. They follow each other
// from the left, or from the right where the text is read so.
GpPointF LinePlacer::Point(const LinePlace& line, double x, double below) const {
    if (!vertical_) return {Real(line.x + x), Real(line.top + below)};
    const bool fromRight = format_.Has(StringFormatFlagsDirectionRightToLeft);
    const double left = fromRight ? height_ - line.top - lineHeight_ : line.top;
    return {Real(left + lineHeight_ - below), Real(line.x + x)};
}

GpRectF LinePlacer::Box(const LinePlace& line, double x, double below, double width,
                        double height) const {
    const GpPointF a = Point(line, x, below), b = Point(line, x + width, below + height);
    return {std::min(a.X, b.X), std::min(a.Y, b.Y), std::abs(b.X - a.X), std::abs(b.Y - a.Y)};
}

void LinePlacer::PlaceGlyphs(size_t number, StringLayout& layout) const {
    const LinePlace place = PlaceOf(number);
    for (const LineGlyphs::Glyph& glyph : lines_[number].glyphs) {
        GpPointF pen = Point(place, glyph.x, face_.Ascent() + glyph.y);
        const bool upright = vertical_ && glyph.wide;
        if (upright) {
            // In the middle of its column, and of the way that its advance takes.
            const GpPointF middle = Point(place, glyph.x + glyph.advance / 2, lineHeight_ / 2);
            pen = {Real(middle.X - glyph.advance / 2),
                   Real(middle.Y - lineHeight_ / 2 + face_.Ascent())};
        }
        layout.glyphs.push_back({glyph.index, glyph.face, vertical_ && !upright, pen.X, pen.Y});
    }
}

void LinePlacer::PlaceBars(size_t number, StringLayout& layout) const {
    const LinePlace place = PlaceOf(number);
    const LineGlyphs& line = lines_[number];
    const auto& own = face_.Face().Face(0).face;
    if (!own) return;
    const gdi::DesignMetrics& design = own->Design();
    const double underline = face_.Ascent() + face_.Design(design.underlineTop);
    const double thickness = face_.Design(design.underlineThickness);
    const auto add = [&](double x, double below, double width, double height) {
        if (width > 0) layout.bars.push_back(Box(place, x, below, width, height));
    };
    if (style_ & FontStyleUnderline) add(0, underline, line.width, thickness);
    add(line.markLeft, underline, line.markWidth, thickness);
    if (style_ & FontStyleStrikeout) {
        add(0, face_.Ascent() - face_.Design(design.strikeOutTop), line.width,
            face_.Design(design.strikeOutThickness));
    }
}

GpRectF LinePlacer::Bounds() const {
    if (lines_.empty()) return {};
    double left = std::numeric_limits<double>::infinity(), right = -left;
    for (size_t i = 0; i < lines_.size(); ++i) {
        const double x = PlaceOf(i).x;
        left = std::min(left, x - padding_);
        right = std::max(right, x + lines_[i].width + padding_);
    }
    double top = PlaceOf(0).top;
    double bottom = top + lineHeight_ * static_cast<double>(lines_.size());
    if (!format_.Has(StringFormatFlagsNoClip)) {
        if (width_ > 0) left = std::max(left, 0.0), right = std::min(right, width_);
        if (height_ > 0) top = std::max(top, 0.0), bottom = std::min(bottom, height_);
    }
    const GpRectF along{Real(left), Real(top), Real(right - left), Real(bottom - top)};
    if (!vertical_) return along;
    const bool fromRight = format_.Has(StringFormatFlagsDirectionRightToLeft);
    return {fromRight ? Real(height_ - bottom) : along.Y, along.X, along.Height, along.Width};
}

StringLayout LinePlacer::Finish() const {
    StringLayout layout;
    layout.typeface = face_.SharedFace();
    layout.em = face_.Em();
    layout.lines = static_cast<INT>(lines_.size());
    layout.bounds = Bounds();
    for (size_t i = 0; i < lines_.size(); ++i) {
        PlaceGlyphs(i, layout);
        PlaceBars(i, layout);
    }
    return layout;
}

}  // namespace vxgui::gdiplus
