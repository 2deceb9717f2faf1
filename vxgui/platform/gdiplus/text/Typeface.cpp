#include "vxgui/platform/gdiplus/text/Typeface.h"

#include <algorithm>

#include "vxgui/platform/gdi/text/FaceFile.h"
#include "vxgui/platform/gdi/text/FontChoice.h"
#include "vxgui/platform/gdiplus/text/FontEngine.h"

namespace vxgui::gdiplus {
namespace {

struct DescriptionEnd {
    void operator()(PangoFontDescription* description) const {
        pango_font_description_free(description);
    }
};
using Description = std::unique_ptr<PangoFontDescription, DescriptionEnd>;

Description Describe(const FamilyInfo& info, INT style) {
    Description description(pango_font_description_new());
    std::string name = info.name;
    std::replace(name.begin(), name.end(), ',', ' ');  // a comma would separate two families
    pango_font_description_set_family(description.get(), name.c_str());
    pango_font_description_set_weight(
        description.get(), style & FontStyleBold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
    pango_font_description_set_style(
        description.get(), style & FontStyleItalic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
    pango_font_description_set_absolute_size(description.get(), Typeface::kEm);
    return description;
}

}  // namespace

Typeface::Typeface(std::shared_ptr<const FontSource> source, const FamilyInfo& info, INT style,
                   PangoFontMap* map)
    : source_(std::move(source)), style_(style), context_(pango_font_map_create_context(map)) {
    const Description description = Describe(info, style);
    pango_context_set_font_description(context_, description.get());
    pango_context_set_language(context_, gdi::LanguageOf({}));
    pango_context_set_round_glyph_positions(context_, FALSE);
    Known own;
    own.font = pango_font_map_load_font(map, context_, description.get());
    if (own.font) own.drawn = Draw(own.font);
    faces_.push_back(std::move(own));
    Measure();
}

Typeface::~Typeface() {
    for (const Known& known : faces_) {
        if (known.font) g_object_unref(known.font);
    }
    g_object_unref(context_);
}

DrawnFace Typeface::Draw(PangoFont* font) const {
    const auto file = gdi::FileOf(font);
    if (!file) return {};
    return {FontEngine::Here().OpenFace(source_->Id(), file->path, file->index),
            (style_ & FontStyleBold) && file->regular, (style_ & FontStyleItalic) && file->upright};
}

void Typeface::Measure() {
    if (!faces_[0].drawn.face) return;
    const gdi::DesignMetrics& design = faces_[0].drawn.face->Design();
    metrics_ = {design.unitsPerEm, design.ascent, design.descent,
                design.ascent + design.descent + design.externalLeading};
}

size_t Typeface::FaceOf(PangoFont* font) {
    const auto known = std::find_if(faces_.begin(), faces_.end(),
                                    [font](const Known& one) { return one.font == font; });
    if (known != faces_.end()) return static_cast<size_t>(known - faces_.begin());
    faces_.push_back({static_cast<PangoFont*>(g_object_ref(font)), Draw(font)});
    return faces_.size() - 1;
}

}  // namespace vxgui::gdiplus
