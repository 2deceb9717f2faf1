#include "vxgui/platform/gdi/text/GlyphCache.h"

#include FT_OUTLINE_H

#include <cstring>

namespace vxgui::gdi {
namespace {

bool TooLarge(const FT_Outline& outline) {
    FT_BBox box;
    FT_Outline_Get_CBox(&outline, &box);
    const int64_t width = (box.xMax - box.xMin) / 64 + 2;
    const int64_t rows = (box.yMax - box.yMin) / 64 + 2;
    return width * rows > GlyphCache::kLargestGlyph;
}

void CopyRow(const FT_Bitmap& bitmap, uint32_t row, uint8_t* coverage) {
    const uint8_t* source = bitmap.buffer + static_cast<ptrdiff_t>(row) * bitmap.pitch;
    if (bitmap.pixel_mode == FT_PIXEL_MODE_GRAY) {
        std::memcpy(coverage, source, bitmap.width);
        return;
    }
    for (uint32_t x = 0; x < bitmap.width; ++x) {
        coverage[x] = source[x / 8] >> (7 - x % 8) & 1 ? 255 : 0;
    }
}

}  // namespace

GlyphImage ImageOf(FT_GlyphSlot slot) {
    GlyphImage image;
    const FT_Bitmap& bitmap = slot->bitmap;
    if (bitmap.width == 0 || bitmap.rows == 0) return image;
    image.left = slot->bitmap_left;
    image.top = slot->bitmap_top;
    image.width = static_cast<int32_t>(bitmap.width);
    image.rows = static_cast<int32_t>(bitmap.rows);
    image.coverage.resize(size_t{bitmap.width} * bitmap.rows);
    for (uint32_t row = 0; row < bitmap.rows; ++row) {
        CopyRow(bitmap, row, image.coverage.data() + size_t{row} * bitmap.width);
    }
    return image;
}

size_t GlyphKeyHash::operator()(const GlyphKey& key) const {
    size_t hash = MixHash(key.face, key.glyph);
    hash = MixHash(hash, static_cast<size_t>(key.scale.em) << 32 |
                             static_cast<uint32_t>(key.scale.horizontal));
    return MixHash(hash, static_cast<size_t>(key.scale.angle) << 3 | key.scale.oblique << 2 |
                             key.scale.bold << 1 | key.scale.mono);
}

const GlyphImage* GlyphCache::Find(const UsedFace& used, uint32_t glyph) {
    static const GlyphImage kNothing;
    if (!used.face) return &kNothing;
    const GlyphKey key{used.face->Id(), glyph, used.scale};
    if (const GlyphImage* known = images_.Find(key)) return known;
    FT_GlyphSlot slot = used.face->Handle()->glyph;
    if (!used.face->Load(glyph, used.scale)) return images_.Insert(key, {}, sizeof(GlyphImage));
    if (TooLarge(slot->outline)) return nullptr;
    GlyphImage image;
    const FT_Render_Mode mode = used.scale.mono ? FT_RENDER_MODE_MONO : FT_RENDER_MODE_NORMAL;
    if (FT_Render_Glyph(slot, mode) == 0) image = ImageOf(slot);
    const size_t cost = sizeof(GlyphImage) + sizeof(GlyphKey) + image.coverage.size();
    return images_.Insert(key, std::move(image), cost);
}

}  // namespace vxgui::gdi
