#pragma once

#include "vxgui/platform/gdi/text/CoveragePaint.h"
#include "vxgui/platform/gdi/text/LinePlace.h"

namespace vxgui::gdi {

/// Paints the glyphs of lines: as an image of them all where one is kept, else one by one.
class GlyphPainter {
public:
    /// `color` is 0x00RRGGBB.
    GlyphPainter(const LinePlace& place, uint32_t color)
        : place_(place), paint_(place.target, color) {}

    /// A part of a line whose pen stands at `pen`.
    void Paint(const LinePart& part, PenPoint pen);

private:
    const LineImage* ImageOf(const LinePart& part) const;
    bool OutOfSight(const UsedFace& used, PenPoint pen) const;
    void PaintGlyph(const ShapedGlyph& glyph, PenPoint pen);
    void PaintImage(const GlyphImage& image, PenPoint pen);
    void PaintLoaded(const UsedFace& used, PenPoint pen);

    const LinePlace& place_;
    CoveragePaint paint_;
};

}  // namespace vxgui::gdi
