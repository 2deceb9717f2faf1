#pragma once

#include <pango/pango.h>

#include <algorithm>
#include <memory>

#include "vxgui/platform/gdi/text/Utf8Text.h"

namespace vxgui::gdi {

struct FreeItems {
    void operator()(GList* items) const {
        g_list_free_full(items,
                         [](gpointer item) { pango_item_free(static_cast<PangoItem*>(item)); });
    }
};
struct FreeList {
    void operator()(GList* list) const { g_list_free(list); }
};
struct FreeGlyphs {
    void operator()(PangoGlyphString* glyphs) const { pango_glyph_string_free(glyphs); }
};

/// A glyph as Pango made it.
struct ItemGlyph {
    const PangoGlyphInfo& info;
    PangoFont* font;   ///< may be null
    int32_t unit;      ///< first 16-bit unit of its characters
    bool endsCluster;  ///< the last glyph of its characters
};

/// Shapes one item of a text and gives each glyph to `sink`.
template <class Sink>
void ShapeItem(const Utf8Text& text, const PangoItem& item, Sink& sink) {
    const std::unique_ptr<PangoGlyphString, FreeGlyphs> glyphs(pango_glyph_string_new());
    pango_shape_full(text.bytes.data() + item.offset, item.length, text.bytes.data(),
                     static_cast<int>(text.bytes.size()), &item.analysis, glyphs.get());
    for (int i = 0; i < glyphs->num_glyphs; ++i) {
        const int cluster = glyphs->log_clusters[i];
        const bool last = i + 1 == glyphs->num_glyphs || glyphs->log_clusters[i + 1] != cluster;
        sink(ItemGlyph{glyphs->glyphs[i], item.analysis.font,
                       text.units[static_cast<size_t>(item.offset + cluster)], last});
    }
}

/// Shapes a text of one line: scripts, writing directions and missing characters are taken care of.
/// `sink(const ItemGlyph&)` gets the glyphs in the order in which they are seen, leftmost first.
template <class Sink>
void ShapeItems(PangoContext* context, PangoAttrList* attributes, const Utf8Text& text,
                bool rightToLeft, Sink sink) {
    const PangoDirection base = rightToLeft ? PANGO_DIRECTION_RTL : PANGO_DIRECTION_LTR;
    const std::unique_ptr<GList, FreeItems> logical(
        pango_itemize_with_base_dir(context, base, text.bytes.data(), 0,
                                    static_cast<int>(text.bytes.size()), attributes, nullptr));
    const std::unique_ptr<GList, FreeList> visual(pango_reorder_items(logical.get()));
    for (const GList* at = visual.get(); at; at = at->next)
        ShapeItem(text, *static_cast<PangoItem*>(at->data), sink);
}

/// A longer line is shaped in pieces of this many units, one after the other, so that memory and
/// time stay in line with its length.
constexpr size_t kLongestPiece = 16384;

/// Calls `shape(piece, first unit)` for each piece; a pair of surrogates stays together.
template <class Shape>
void ForEachPiece(std::u16string_view text, Shape shape) {
    for (size_t at = 0; at < text.size();) {
        size_t length = std::min(text.size() - at, kLongestPiece);
        const bool more = at + length < text.size();
        if (more && (text[at + length - 1] & 0xFC00) == 0xD800) --length;
        shape(text.substr(at, length), at);
        at += length;
    }
}

}  // namespace vxgui::gdi
