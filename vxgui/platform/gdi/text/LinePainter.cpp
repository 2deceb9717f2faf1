#include "vxgui/platform/gdi/text/LinePainter.h"

#include "vxgui/platform/gdi/Record.h"
#include "vxgui/platform/gdi/text/SpanPainter.h"

namespace vxgui::gdi {

LinePainter::LinePainter(const DeviceContext& context, const TextSetup& setup, const RECT& clip)
    : place_(context, setup, clip), glyphs_(place_, SwapRedAndBlue(context.state.textColor)) {}

PenPoint LinePainter::PenOf(const TextLine& line, int64_t x, int64_t y) const {
    const UINT align = place_.context.state.textAlign;
    const FontMeasures& measures = place_.font.Measures();
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
    return place_.turn.From({x, y}, along, above);
}

void LinePainter::Paint(const TextLine& line, int64_t x, int64_t y) {
    const PenPoint pen = PenOf(line, x, y);
    const FontMeasures& m = place_.font.Measures();
    if (place_.context.state.backMode == OPAQUE) {
        PaintSpan(place_, pen, {0, line.width, -m.ascent, m.descent},
                  SwapRedAndBlue(place_.context.state.backColor));
    }
    for (const LinePart& part : line.parts) glyphs_.Paint(part, pen);
    const uint32_t color = SwapRedAndBlue(place_.context.state.textColor);
    if (place_.font.Record().lfUnderline) {
        PaintSpan(place_, pen,
                  {0, line.width, m.underlineTop, m.underlineTop + m.underlineThickness}, color);
    }
    if (place_.font.Record().lfStrikeOut) {
        PaintSpan(place_, pen,
                  {0, line.width, -m.strikeOutTop, m.strikeOutThickness - m.strikeOutTop}, color);
    }
}

void LinePainter::PaintPrefix(const TextLine& line, size_t unit, int64_t x, int64_t y) {
    int32_t advance = 0;
    const int64_t left = line.LeftOf(unit, &advance);
    // The second row below the base line, so that it stays clear of the letters.
    PaintSpan(place_, PenOf(line, x, y), {left, left + advance, 1, 2},
              SwapRedAndBlue(place_.context.state.textColor));
}

}  // namespace vxgui::gdi
