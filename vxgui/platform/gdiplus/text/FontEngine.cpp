#include "vxgui/platform/gdiplus/text/FontEngine.h"

#include <pango/pangofc-fontmap.h>
#include <pango/pangoft2.h>

#include "vxgui/platform/gdi/text/MissingFonts.h"

namespace vxgui::gdiplus {

FontEngine& FontEngine::Here() {
    thread_local FontEngine engine;
    return engine;
}

// Pango keeps a configuration that it was given beyond the end of the map, unless it is taken away.
void FontEngine::MapEnd::operator()(PangoFontMap* map) const {
    pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(map), nullptr);
    g_object_unref(map);
}

FontEngine::FontEngine() {
    FT_Init_FreeType(&library_);
    gdi::TellOfMissingFonts();
}

FontEngine::~FontEngine() {
    // The typefaces hold faces, which end before their library.
    layouts_.Clear();
    typefaces_.Clear();
    maps_.Clear();
    FT_Done_FreeType(library_);
}

PangoFontMap* FontEngine::MapOf(const FontSource& source) {
    if (const FontMap* known = maps_.Find(source.Id())) return known->get();
    FontMap map(pango_ft2_font_map_new());
    pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(map.get()), source.Config());
    return maps_.Insert(source.Id(), std::move(map), 1)->get();
}

std::shared_ptr<Typeface> FontEngine::Find(const FontFamily& family, INT style) {
    const INT looks = style & FontStyleBoldItalic;
    const uint64_t key = family.info.id * 4 + static_cast<uint64_t>(looks);
    if (const auto* known = typefaces_.Find(key)) return *known;
    auto typeface =
        std::make_shared<Typeface>(family.source, family.info, looks, MapOf(*family.source));
    return *typefaces_.Insert(key, std::move(typeface), 1);
}

std::shared_ptr<gdi::FontFace> FontEngine::OpenFace(uint64_t source, const std::string& path,
                                                    int index) {
    std::string key = std::to_string(source) + ":" + std::to_string(index) + ":" + path;
    std::weak_ptr<gdi::FontFace>& kept = faces_[std::move(key)];
    std::shared_ptr<gdi::FontFace> face = kept.lock();
    if (!face) kept = face = gdi::FontFace::Open(library_, path, index);
    return face;
}

FamilyMetrics MetricsOf(const FontFamily& family, INT style) {
    return FontEngine::Here().Find(family, style)->Metrics();
}

}  // namespace vxgui::gdiplus
