#pragma once

#include "vxgui/platform/gdi/text/GlyphPainter.h"

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
    PenPoint PenOf(const TextLine& line, int64_t x, int64_t y) const;

    const LinePlace place_;
    GlyphPainter glyphs_;
};

}  // namespace vxgui::gdi
