#include "vxgui/platform/gdi/text/Shaper.h"

#include "vxgui/base/Rounding.h"
#include "vxgui/platform/gdi/text/TextEngine.h"
#include "vxgui/platform/gdi/text/Utf8Text.h"

namespace vxgui::gdi {
namespace {

struct FreeItems {
    void operator()(GList* items) const {
        g_list_free_full(items,
                         [](gpointer item) { pango_item_free(static_cast<PangoItem*>(item)); });
    }
};
using Items = std::unique_ptr<GList, FreeItems>;

struct FreeGlyphs {
    void operator()(PangoGlyphString* glyphs) const { pango_glyph_string_free(glyphs); }
};

/// Shapes one piece and appends it.
class Piece {
public:
    Piece(RealizedFont& font, std::u16string_view text, int32_t firstUnit, ShapedText& shaped)
        : font_(font), text_(text), utf8_(text), firstUnit_(firstUnit), shaped_(shaped) {}

    void Append(PangoAttrList* attributes, bool rightToLeft) {
        const PangoDirection base = rightToLeft ? PANGO_DIRECTION_RTL : PANGO_DIRECTION_LTR;
        const Items logical(pango_itemize_with_base_dir(font_.Context(), base, utf8_.bytes.data(),
                                                        0, static_cast<int>(utf8_.bytes.size()),
                                                        attributes, nullptr));
        GList* visual = pango_reorder_items(logical.get());
        for (const GList* at = visual; at; at = at->next)
            AppendItem(*static_cast<PangoItem*>(at->data));
        g_list_free(visual);
    }

private:
    void AppendItem(const PangoItem& item) {
        const std::unique_ptr<PangoGlyphString, FreeGlyphs> glyphs(pango_glyph_string_new());
        pango_shape_full(utf8_.bytes.data() + item.offset, item.length, utf8_.bytes.data(),
                         static_cast<int>(utf8_.bytes.size()), &item.analysis, glyphs.get());
        const auto face =
            static_cast<uint16_t>(item.analysis.font ? font_.FaceOf(item.analysis.font) : 0);
        for (int i = 0; i < glyphs->num_glyphs; ++i) {
            const bool last = i + 1 == glyphs->num_glyphs ||
                              glyphs->log_clusters[i + 1] != glyphs->log_clusters[i];
            AppendGlyph(glyphs->glyphs[i], face, UnitOf(item, glyphs->log_clusters[i]), last);
        }
    }

    int32_t UnitOf(const PangoItem& item, int cluster) const {
        return utf8_.units[static_cast<size_t>(item.offset + cluster)];
    }

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

/// The length of the next piece; a pair of surrogates stays together.
size_t PieceLength(std::u16string_view rest) {
    if (rest.size() <= kLongestPiece) return rest.size();
    const bool splitsPair = (rest[kLongestPiece - 1] & 0xFC00) == 0xD800;
    return kLongestPiece - (splitsPair ? 1 : 0);
}

}  // namespace

ShapedTextRef Shape(TextEngine& engine, RealizedFont& font, std::u16string_view text,
                    bool rightToLeft) {
    const ShapeLookup key{font.Id(), rightToLeft, text};
    if (const ShapedTextRef* known = engine.Shapes().Find(key)) return *known;
    auto shaped = std::make_shared<ShapedText>();
    shaped->advances.resize(text.size());
    for (size_t at = 0; at < text.size();) {
        const size_t length = PieceLength(text.substr(at));
        Piece(font, text.substr(at, length), static_cast<int32_t>(at), *shaped)
            .Append(engine.Attributes(), rightToLeft);
        at += length;
    }
    engine.Shapes().Insert(key, shaped);
    return shaped;
}

}  // namespace vxgui::gdi
