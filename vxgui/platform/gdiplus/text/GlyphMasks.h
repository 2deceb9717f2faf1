#pragma once

#include <memory>

#include "vxgui/platform/gdi/text/GlyphCache.h"
#include "vxgui/platform/gdiplus/Affine.h"
#include "vxgui/platform/gdiplus/text/Typeface.h"

namespace vxgui::gdiplus {

/// How the glyphs of a text are turned into pixels.
struct GlyphLook {
    Affine em;  ///< from the em's own square to pixels, without a shift
    bool mono = false;
    bool fitted = false;  ///< to the grid of pixels, by the face's hints

    bool Upright() const { return em.m12 == 0 && em.m21 == 0 && em.m11 > 0 && em.m22 > 0; }
    bool operator==(const GlyphLook&) const = default;
};

/// The coverage of glyphs that a thread has drawn lately.
class GlyphMasks {
public:
    using Image = std::shared_ptr<const gdi::GlyphImage>;

    /// Places between two pixels that a glyph can have, each way.
    static constexpr int kPhases = 4;

    /// A glyph whose pen stands at `phaseX`, `phaseY` parts of a pixel right of and below a pixel's
    /// corner.
    Image Find(const DrawnFace& drawn, uint32_t glyph, const GlyphLook& look, int phaseX,
               int phaseY);

private:
    struct Key {
        uint64_t face;
        uint32_t glyph;
        bool bold, oblique;
        int phaseX, phaseY;
        GlyphLook look;
        bool operator==(const Key&) const = default;
    };
    struct KeyHash {
        size_t operator()(const Key& key) const;
    };

    // Bytes of coverage and records, all glyphs together.
    static constexpr size_t kBound = size_t{4} << 20;

    gdi::LruCache<Key, Image, KeyHash> images_{kBound};
};

}  // namespace vxgui::gdiplus
