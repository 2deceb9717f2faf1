#pragma once

#include "vxgui/platform/gdi/text/CoveragePaint.h"
#include "vxgui/platform/gdi/text/TextLine.h"

namespace vxgui::gdi {

/// Paints lines in a context's colours.
class LinePainter {
public:
    /// Inside `clip` and the context's own clip.
    LinePainter(const DeviceContext& context, const TextSetup& setup, const RECT& clip);

    /// A line whose cell begins at the left and top, or as the context's text alignment says, of
    /// (x, y): background, glyphs, underline and strike-out.
    void Paint(const TextLine& line, int64_t x, int64_t y);
    /// One pixel of underline below a part of the line, as if it stood at (x, y).
    void PaintPrefix(const TextLine& line, size_t unit, int64_t x, int64_t y);

private:
    struct Point {
        int64_t x, y;
    };
    struct Span {
        int64_t left, right, top, bottom;  ///< from the pen, bottom below top
    };

    Point PenOf(const TextLine& line, int64_t x, int64_t y) const;
    Point Turned(Point pen, int64_t along, int64_t above) const;
    void PaintPart(const LinePart& part, Point pen);
    const LineImage* ImageOf(const LinePart& part) const;
    void PaintGlyph(const ShapedGlyph& glyph, Point pen);
    void PaintImage(const GlyphImage& image, Point pen);
    void PaintLoaded(const UsedFace& used, Point pen);
    void PaintSpan(Point pen, const Span& span, uint32_t color);
    void PaintTurnedSpan(Point pen, const Span& span, CoveragePaint& paint);
    bool OutOfSight(const UsedFace& used, Point pen) const;

    const DeviceContext& context_;
    const TextSetup& setup_;
    const PixelTarget target_;
    const RECT clip_;
    const RealizedFont& font_;
    const double cosine_;
    const double sine_;
    CoveragePaint paint_;
};

}  // namespace vxgui::gdi
