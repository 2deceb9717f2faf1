#include "vxgui/platform/gdi/text/TextEngine.h"

#include <pango/pangoft2.h>

#include <cstring>
#include <string_view>

#include "vxgui/platform/gdi/text/MissingFonts.h"

namespace vxgui::gdi {
namespace {

std::string_view Bytes(const LOGFONTA& font) {
    return {reinterpret_cast<const char*>(&font), sizeof font};
}

/// The record with nothing behind the name, so that equal fonts have equal bytes.
LOGFONTA Normalised(LOGFONTA record) {
    const size_t length = strnlen(record.lfFaceName, sizeof record.lfFaceName);
    std::memset(record.lfFaceName + length, 0, sizeof record.lfFaceName - length);
    return record;
}

}  // namespace

size_t LogFontHash::operator()(const LOGFONTA& font) const {
    return std::hash<std::string_view>()(Bytes(font));
}

bool LogFontEqual::operator()(const LOGFONTA& a, const LOGFONTA& b) const {
    return Bytes(a) == Bytes(b);
}

TextEngine& TextEngine::Here() {
    thread_local TextEngine engine;
    return engine;
}

TextEngine::TextEngine(PangoFontMap* fontMap)
    : fontMap_(fontMap), attributes_(pango_attr_list_new()) {
    // Kerning and ligatures would make a text's width depend on where it is cut.
    pango_attr_list_insert(attributes_, pango_attr_font_features_new("kern=0,liga=0,clig=0"));
    FT_Init_FreeType(&library_);
}

TextEngine::TextEngine() : TextEngine(pango_ft2_font_map_new()) {
    glyphs_ = std::make_unique<GlyphCache>(library_);
    TellOfMissingFonts();
}

TextEngine::~TextEngine() {
    // The fonts hold faces, which end before their library.
    fonts_.Clear();
    pango_attr_list_unref(attributes_);
    g_object_unref(fontMap_);
    glyphs_.reset();
    FT_Done_FreeType(library_);
}

std::shared_ptr<RealizedFont> TextEngine::Realize(const LOGFONTA& record) {
    const LOGFONTA key = Normalised(record);
    if (auto* known = fonts_.Find(key)) return *known;
    return *fonts_.Insert(key, std::make_shared<RealizedFont>(*this, key, ++lastFontId_), 1);
}

std::shared_ptr<FontFace> TextEngine::OpenFace(const std::string& file, int index) {
    std::weak_ptr<FontFace>& kept = faces_[file + ":" + std::to_string(index)];
    std::shared_ptr<FontFace> face = kept.lock();
    if (!face) kept = face = FontFace::Open(library_, file, index);
    return face;
}

}  // namespace vxgui::gdi
