#include "vxgui/platform/gdiplus/text/StringFace.h"

#include "vxgui/platform/gdi/text/ItemShaper.h"

namespace vxgui::gdiplus {
namespace {

PangoAttrList* AttributesOf(const FormatSettings& format) {
    PangoAttrList* list = pango_attr_list_new();
    pango_attr_list_insert(list, pango_attr_font_features_new("kern=0,liga=0,clig=0"));
    if (format.Has(StringFormatFlagsNoFontFallback))
        pango_attr_list_insert(list, pango_attr_fallback_new(FALSE));
    if (format.Has(StringFormatFlagsDisplayFormatControl))
        pango_attr_list_insert(list, pango_attr_show_new(PANGO_SHOW_IGNORABLES));
    return list;
}

}  // namespace

StringFace::StringFace(std::shared_ptr<Typeface> typeface, double em, const FormatSettings& format)
    : typeface_(std::move(typeface)),
      em_(em),
      rightToLeft_(format.Has(StringFormatFlagsDirectionRightToLeft) &&
                   !format.Has(StringFormatFlagsDirectionVertical)),
      attributes_(AttributesOf(format)) {}

StringFace::~StringFace() { pango_attr_list_unref(attributes_); }

ShapedString StringFace::Shape(std::u16string_view text) const {
    ShapedString shaped;
    shaped.advances.resize(text.size());
    gdi::ForEachPiece(text, [&](std::u16string_view piece, size_t first) {
        const gdi::Utf8Text utf8(piece);
        gdi::ShapeItems(
            typeface_->Context(), attributes_, utf8, rightToLeft_, [&](const gdi::ItemGlyph& one) {
                const auto unit = static_cast<size_t>(one.unit);
                StringGlyph glyph = GlyphOf(one.info, one.font, gdi::IsShapeless(piece[unit]));
                glyph.unit = static_cast<int32_t>(unit + first);
                shaped.glyphs.push_back(glyph);
                shaped.advances[unit + first] += glyph.advance;
                shaped.width += glyph.advance;
            });
    });
    return shaped;
}

std::vector<ShapedString> StringFace::ShapeBetweenTabs(std::u16string_view text) const {
    std::vector<ShapedString> pieces;
    for (size_t at = 0; at <= text.size();) {
        const size_t tab = std::min(text.find(u'\t', at), text.size());
        pieces.push_back(Shape(text.substr(at, tab - at)));
        at = tab + 1;
    }
    return pieces;
}

// What has no glyph shows as the missing one of the typeface's own face.
StringGlyph StringFace::GlyphOf(const PangoGlyphInfo& info, PangoFont* font, bool shapeless) const {
    const double scale = em_ / Typeface::kEm;
    StringGlyph glyph{info.glyph, 0, info.glyph != PANGO_GLYPH_EMPTY, 0, 0, 0, 0};
    if (!glyph.ink) return glyph;
    if (shapeless || (info.glyph & PANGO_GLYPH_UNKNOWN_FLAG)) {
        const auto& own = typeface_->Face(0).face;
        glyph.index = 0;
        glyph.advance = own ? own->Advance(0, 1024) * em_ / 1024 : em_ / 2;
        return glyph;
    }
    glyph.face = static_cast<uint16_t>(font ? typeface_->FaceOf(font) : 0);
    glyph.advance = info.geometry.width * scale;
    glyph.dx = info.geometry.x_offset * scale;
    glyph.dy = info.geometry.y_offset * scale;
    return glyph;
}

}  // namespace vxgui::gdiplus
