#pragma once

#include <cstdint>
#include <memory>
#include <vector>

namespace vxgui::gdi {

/// A glyph where shaping put it. Glyphs stand in the order in which they are seen, leftmost first.
struct ShapedGlyph {
    uint32_t index;    ///< in its face
    uint16_t face;     ///< number of the face in its font
    bool ink;          ///< false for what has a width and no shape
    bool endsCluster;  ///< the last glyph of its characters
    int32_t unit;      ///< first 16-bit unit of its characters
    int32_t advance;   ///< pixels
    int32_t dx, dy;    ///< from the pen, rightwards and upwards
};

/// A line of text as glyphs.
struct ShapedText {
    std::vector<ShapedGlyph> glyphs;
    /// The width of each 16-bit unit in the text's own order: that of the characters that were
    /// shaped together stands at the first of their units.
    std::vector<int32_t> advances;
    int64_t width = 0;
};

using ShapedTextRef = std::shared_ptr<const ShapedText>;

}  // namespace vxgui::gdi
