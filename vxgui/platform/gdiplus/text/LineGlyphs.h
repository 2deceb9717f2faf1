#pragma once

#include "vxgui/platform/gdiplus/text/Paragraph.h"

namespace vxgui::gdiplus {

/// One line as glyphs, from its left edge and its base line.
struct LineGlyphs {
    struct Glyph {
        uint32_t index;
        uint16_t face;
        bool wide;  ///< stands upright in vertical text
        double x, y, advance;
    };

    std::vector<Glyph> glyphs;
    double width = 0;
    double markLeft = 0, markWidth = 0;  ///< of the character that is a hot key
};

/// The glyphs of a line, which was shaped between its tabs. `mark` is the unit of its hot key, npos
/// for none.
LineGlyphs MakeLine(const std::vector<ShapedString>& pieces, const StringTabs& tabs,
                    std::u16string_view text, size_t mark, bool rightToLeft);

/// How far a line's ink reaches beyond [0, width] at its left and right; 0 where it doesn't.
struct Overhang {
    double left = 0, right = 0;
};
Overhang OverhangOf(const StringFace& face, const LineGlyphs& line);

}  // namespace vxgui::gdiplus
