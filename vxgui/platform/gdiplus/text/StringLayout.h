#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "vxgui/platform/gdiplus/text/StringFormat.h"
#include "vxgui/platform/gdiplus/text/Typeface.h"

namespace vxgui::gdiplus {

/// A glyph with its pen, in world coordinates from the corner of the layout rectangle.
struct PlacedGlyph {
    uint32_t index;  ///< in its face
    uint16_t face;   ///< number of the face in the typeface
    bool turned;     ///< by a quarter, clockwise
    double x, y;
};

/// A string as it is drawn. Coordinates are of the world, from the layout rectangle's corner.
struct StringLayout {
    std::shared_ptr<Typeface> typeface;
    double em = 0;
    std::vector<PlacedGlyph> glyphs;
    std::vector<GpRectF> bars;  ///< underlines and strike-outs
    GpRectF bounds{};           ///< what measuring answers
    INT units = 0;              ///< of the text that have a place
    INT lines = 0;
};

/// What a layout follows from, besides the text.
struct LayoutRequest {
    const FontFamily* family;
    INT style;
    double em;
    const FormatSettings* format;
    GpSizeF room;  ///< a side of 0 or less has no bound
};

StringLayout LayOut(std::u16string_view text, const LayoutRequest& request);

}  // namespace vxgui::gdiplus
