#include "vxgui/platform/gdi/text/Shaper.h"

#include "vxgui/base/Rounding.h"
#include "vxgui/platform/gdi/text/ItemShaper.h"
#include "vxgui/platform/gdi/text/TextEngine.h"

namespace vxgui::gdi {
namespace {

/// Shapes one piece and appends it.
class Piece {
public:
    Piece(RealizedFont& font, std::u16string_view text, int32_t firstUnit, ShapedText& shaped)
        : font_(font), text_(text), utf8_(text), firstUnit_(firstUnit), shaped_(shaped) {}

    void Append(PangoAttrList* attributes, bool rightToLeft) {
        ShapeItems(font_.Context(), attributes, utf8_, rightToLeft, [this](const ItemGlyph& glyph) {
            const auto face = static_cast<uint16_t>(glyph.font ? font_.FaceOf(glyph.font) : 0);
            AppendGlyph(glyph.info, face, glyph.unit, glyph.endsCluster);
        });
    }

private:
    void AppendGlyph(const PangoGlyphInfo& info, uint16_t face, int32_t unit, bool endsCluster) {
        ShapedGlyph glyph{info.glyph, face, true, endsCluster, unit + firstUnit_, 0, 0, 0};
        const bool missing = (info.glyph & PANGO_GLYPH_UNKNOWN_FLAG) != 0;
        if (info.glyph == PANGO_GLYPH_EMPTY) {
            glyph.ink = false;
        } else if (missing || IsShapeless(text_[static_cast<size_t>(unit)])) {
            SetMissing(glyph);
        } else {
            glyph.advance = Across(info.geometry.width);
            glyph.dx = Across(info.geometry.x_offset);
            glyph.dy = -Pixels(info.geometry.y_offset);
        }
        shaped_.glyphs.push_back(glyph);
        shaped_.advances[static_cast<size_t>(glyph.unit)] += glyph.advance;
        shaped_.width += glyph.advance;
    }

    void SetMissing(ShapedGlyph& glyph) const {
        const UsedFace& own = font_.Face(0);
        const int32_t em = font_.Measures().em;
        glyph.index = 0;
        glyph.face = 0;
        const double advance = own.face ? own.face->Advance(0, em) : em / 2.0;
        glyph.advance = RoundHalfEven(advance * font_.Stretch());
    }

    static int32_t Pixels(double units) { return RoundHalfEven(units / PANGO_SCALE); }
    int32_t Across(double units) const { return Pixels(units * font_.Stretch()); }

    RealizedFont& font_;
    const std::u16string_view text_;
    const Utf8Text utf8_;
    const int32_t firstUnit_;
    ShapedText& shaped_;
};

}  // namespace

ShapedTextRef Shape(TextEngine& engine, RealizedFont& font, std::u16string_view text,
                    bool rightToLeft) {
    const ShapeLookup key{font.Id(), rightToLeft, text};
    if (const ShapedTextRef* known = engine.Shapes().Find(key)) return *known;
    auto shaped = std::make_shared<ShapedText>();
    shaped->advances.resize(text.size());
    ForEachPiece(text, [&](std::u16string_view piece, size_t first) {
        Piece(font, piece, static_cast<int32_t>(first), *shaped)
            .Append(engine.Attributes(), rightToLeft);
    });
    engine.Shapes().Insert(key, shaped);
    return shaped;
}

}  // namespace vxgui::gdi
