#include "vxgui/platform/gdi/text/GlyphPainter.h"

#include <algorithm>

#include "vxgui/platform/gdi/text/OutlinePaint.h"

namespace vxgui::gdi {

// A text with spacing, and a long one, is laid out anew each time: its image would never be found.
const LineImage* GlyphPainter::ImageOf(const LinePart& part) const {
    const bool kept = place_.setup.spacing.None() &&
                      part.shaped->advances.size() <= ShapedTextCache::kLongestLine;
    if (!kept || !place_.turn.None()) return nullptr;
    return place_.setup.engine.Lines().Find(part.shaped, place_.font, place_.setup.engine.Glyphs());
}

void GlyphPainter::Paint(const LinePart& part, PenPoint pen) {
    if (const LineImage* image = ImageOf(part)) {
        for (const GlyphImage& layer : *image) PaintImage(layer, {pen.x + part.x, pen.y});
        return;
    }
    int64_t along = part.x;
    for (const ShapedGlyph& glyph : part.shaped->glyphs) {
        if (glyph.ink) PaintGlyph(glyph, place_.turn.From(pen, along + glyph.dx, glyph.dy));
        along += glyph.advance;
    }
}

bool GlyphPainter::OutOfSight(const UsedFace& used, PenPoint pen) const {
    const DesignMetrics& design = used.face->Design();
    const int64_t em = std::max(used.scale.em, used.scale.horizontal / 64 + 1);
    // Half as much again for a slant and a bold that the face's own box doesn't know.
    const int64_t reach = em * design.reach / design.unitsPerEm * 3 / 2 + 4;
    return pen.x + reach < place_.clip.left || pen.x - reach > place_.clip.right ||
           pen.y + reach < place_.clip.top || pen.y - reach > place_.clip.bottom;
}

void GlyphPainter::PaintGlyph(const ShapedGlyph& glyph, PenPoint pen) {
    const UsedFace& used = place_.font.Face(glyph.face);
    if (!used.face || OutOfSight(used, pen)) return;
    if (const GlyphImage* image = place_.setup.engine.Glyphs().Find(used, glyph.index)) {
        PaintImage(*image, pen);
    } else {
        PaintLoaded(used, pen);
    }
}

void GlyphPainter::PaintImage(const GlyphImage& image, PenPoint pen) {
    const int64_t left = pen.x + image.left;
    const int64_t top = pen.y - image.top;
    const RECT area = HeldRect(left, top, left + image.width, top + image.rows);
    ForEachClipRect(place_.context, Intersection(area, place_.clip), [&](const RECT& part) {
        const uint8_t* coverage =
            image.coverage.data() + (part.top - top) * image.width + (part.left - left);
        for (int32_t y = part.top; y < part.bottom; ++y, coverage += image.width) {
            paint_.Row(part.left, y, part.right - part.left, coverage);
        }
    });
}

void GlyphPainter::PaintLoaded(const UsedFace& used, PenPoint pen) {
    FT_Outline& outline = used.face->Handle()->glyph->outline;
    ForEachClipRect(place_.context, place_.clip, [&](const RECT& part) {
        PaintOutline(place_.setup.engine.Library(), outline, pen.x, pen.y, part, used.scale.mono,
                     paint_);
    });
}

}  // namespace vxgui::gdi
