#include "vxgui/platform/gdiplus/text/GlyphMasks.h"

#include FT_OUTLINE_H

#include <bit>
#include <cmath>

#include "vxgui/base/Rounding.h"

namespace vxgui::gdiplus {
namespace {

FT_Fixed Fixed(double value) { return RoundHalfEven<FT_Fixed>(value * 65536); }
FT_F26Dot6 Points(double pixels) { return RoundHalfEven<FT_F26Dot6>(pixels * 64); }

// The face's axes point up where the device's point down.
FT_Matrix MatrixOf(const Affine& em, double height, bool oblique) {
    const double slope = oblique ? kObliqueSlope : 0;
    return {Fixed(em.m11 / height), Fixed((em.m11 * slope - em.m21) / height),
            Fixed(-em.m12 / height), Fixed((em.m22 - em.m12 * slope) / height)};
}

bool SetScale(FT_Face face, const GlyphLook& look, double height, bool oblique) {
    if (look.Upright() && !oblique) {
        FT_Set_Transform(face, nullptr, nullptr);
        return FT_Set_Char_Size(face, Points(look.em.m11), Points(look.em.m22), 72, 72) == 0;
    }
    FT_Matrix matrix = MatrixOf(look.em, height, oblique);
    FT_Set_Transform(face, &matrix, nullptr);
    return FT_Set_Char_Size(face, Points(height), Points(height), 72, 72) == 0;
}

FT_Int32 LoadFlags(const GlyphLook& look, bool oblique) {
    const bool hinted = look.fitted && look.Upright() && !oblique;
    const FT_Int32 target = look.mono ? FT_LOAD_TARGET_MONO : FT_LOAD_TARGET_LIGHT;
    return FT_LOAD_NO_BITMAP | target | (hinted ? 0 : FT_LOAD_NO_HINTING);
}

gdi::GlyphImage Render(const DrawnFace& drawn, uint32_t glyph, const GlyphLook& look, int phaseX,
                       int phaseY) {
    const double height = std::hypot(look.em.m21, look.em.m22);
    if (!drawn.face || !FT_IS_SCALABLE(drawn.face->Handle()) || Points(height) < 1) return {};
    FT_Face face = drawn.face->Handle();
    if (!SetScale(face, look, height, drawn.oblique)) return {};
    if (FT_Load_Glyph(face, glyph, LoadFlags(look, drawn.oblique)) != 0) return {};
    if (face->glyph->format != FT_GLYPH_FORMAT_OUTLINE) return {};
    FT_Outline& outline = face->glyph->outline;
    if (drawn.bold) FT_Outline_Embolden(&outline, Points(height / kEmboldenDivisor));
    constexpr int kPhase = 64 / GlyphMasks::kPhases;
    FT_Outline_Translate(&outline, phaseX * kPhase, -phaseY * kPhase);
    const FT_Render_Mode mode = look.mono ? FT_RENDER_MODE_MONO : FT_RENDER_MODE_NORMAL;
    return FT_Render_Glyph(face->glyph, mode) == 0 ? gdi::ImageOf(face->glyph) : gdi::GlyphImage{};
}

}  // namespace

size_t GlyphMasks::KeyHash::operator()(const Key& key) const {
    size_t hash = gdi::MixHash(key.face, key.glyph);
    const Affine& em = key.look.em;
    for (const REAL part : {em.m11, em.m12, em.m21, em.m22})
        hash = gdi::MixHash(hash, std::bit_cast<uint32_t>(part));
    return gdi::MixHash(hash, static_cast<size_t>(key.phaseX + kPhases * key.phaseY) << 4 |
                                  key.bold << 3 | key.oblique << 2 | key.look.mono << 1 |
                                  key.look.fitted);
}

GlyphMasks::Image GlyphMasks::Find(const DrawnFace& drawn, uint32_t glyph, const GlyphLook& look,
                                   int phaseX, int phaseY) {
    const uint64_t face = drawn.face ? drawn.face->Id() : 0;
    const Key key{face, glyph, drawn.bold, drawn.oblique, phaseX, phaseY, look};
    if (const Image* known = images_.Find(key)) return *known;
    auto image =
        std::make_shared<const gdi::GlyphImage>(Render(drawn, glyph, look, phaseX, phaseY));
    const size_t cost = sizeof(Key) + sizeof *image + image->coverage.size();
    return *images_.Insert(key, std::move(image), cost);
}

}  // namespace vxgui::gdiplus
