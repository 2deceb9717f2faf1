#pragma once

#include <vector>

#include "vxgui/platform/gdi/text/LruCache.h"
#include "vxgui/platform/gdi/text/RealizedFont.h"

namespace vxgui::gdi {

/// The coverage of a glyph, a byte a pixel, top row first.
struct GlyphImage {
    int32_t left = 0;  ///< of the first column, from the pen
    int32_t top = 0;   ///< of the first row, above the base line
    int32_t width = 0;
    int32_t rows = 0;
    std::vector<uint8_t> coverage;
};

/// The image of a glyph that has been rendered in its slot.
GlyphImage ImageOf(FT_GlyphSlot slot);

struct GlyphKey {
    uint64_t face;
    uint32_t glyph;
    FaceScale scale;
    friend bool operator==(const GlyphKey&, const GlyphKey&) = default;
};
struct GlyphKeyHash {
    size_t operator()(const GlyphKey& key) const;
};

/// The glyphs that a thread has painted lately.
class GlyphCache {
public:
    /// Bytes of coverage and records, all glyphs together.
    static constexpr size_t kBound = size_t{4} << 20;
    /// A glyph of more pixels is painted straight from its outline.
    static constexpr int64_t kLargestGlyph = 1 << 16;

    explicit GlyphCache(FT_Library library) : library_(library), images_(kBound) {}

    /// The image, valid until the next call; null for a glyph that is too large to keep, which is
    /// then loaded in its face.
    const GlyphImage* Find(const UsedFace& used, uint32_t glyph);
    FT_Library Library() const { return library_; }
    size_t Cost() const { return images_.Cost(); }

private:
    const FT_Library library_;
    LruCache<GlyphKey, GlyphImage, GlyphKeyHash> images_;
};

}  // namespace vxgui::gdi
