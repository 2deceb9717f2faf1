#pragma once

#include "vxgui/platform/gdi/text/GlyphCache.h"
#include "vxgui/platform/gdi/text/ShapedText.h"

namespace vxgui::gdi {

/// The glyphs of a shaped text as few images, each from the text's pen. Glyphs whose ink meets are
/// in images of their own, to be painted one after the other; no image is none.
using LineImage = std::vector<GlyphImage>;

/// The images of texts that a thread has painted lately, so that a text is painted row by row and
/// not glyph by glyph.
class LineImages {
public:
    /// Bytes of coverage and records, all texts together.
    static constexpr size_t kBound = size_t{1} << 20;
    /// A larger text is painted glyph by glyph.
    static constexpr int64_t kLargestLine = 1 << 15;

    /// The image of a text in the font that it was shaped for, which isn't turned; valid until the
    /// next call. Null where the glyphs have to be painted one by one.
    const LineImage* Find(const ShapedTextRef& shaped, const RealizedFont& font,
                          GlyphCache& glyphs);
    size_t Cost() const { return images_.Cost(); }

private:
    struct Entry {
        ShapedTextRef shaped;  ///< holds the address that is the key
        LineImage image;
        bool usable;
    };

    LruCache<const ShapedText*, Entry, std::hash<const ShapedText*>> images_{kBound};
};

}  // namespace vxgui::gdi
