#pragma once

#include <pango/pango.h>

#include <memory>
#include <unordered_map>

#include "vxgui/platform/gdi/text/GlyphCache.h"
#include "vxgui/platform/gdi/text/LineImages.h"
#include "vxgui/platform/gdi/text/LruCache.h"
#include "vxgui/platform/gdi/text/RealizedFont.h"
#include "vxgui/platform/gdi/text/ShapedTextCache.h"

namespace vxgui::gdi {

struct LogFontHash {
    size_t operator()(const LOGFONTA& font) const;
};
struct LogFontEqual {
    bool operator()(const LOGFONTA& a, const LOGFONTA& b) const;
};

/// Everything of text that one thread keeps: neither font maps nor FreeType's objects may cross
/// to another.
class TextEngine {
public:
    /// The calling thread's, made on first use and gone with the thread.
    static TextEngine& Here();

    TextEngine();
    ~TextEngine();
    TextEngine(const TextEngine&) = delete;
    TextEngine& operator=(const TextEngine&) = delete;

    std::shared_ptr<RealizedFont> Realize(const LOGFONTA& record);
    /// None for a file that can't be read.
    std::shared_ptr<FontFace> OpenFace(const std::string& file, int index);

    FT_Library Library() const { return library_; }
    PangoFontMap* FontMap() const { return fontMap_; }
    /// What every line is shaped with.
    PangoAttrList* Attributes() const { return attributes_; }
    GlyphCache& Glyphs() { return *glyphs_; }
    ShapedTextCache& Shapes() { return shapes_; }
    LineImages& Lines() { return lines_; }

private:
    /// As yet without a glyph cache: that may run out of memory, and the rest is then cleaned up.
    explicit TextEngine(PangoFontMap* fontMap);

    /// Fonts kept beyond those that are in use.
    static constexpr size_t kKeptFonts = 64;

    FT_Library library_ = nullptr;
    PangoFontMap* fontMap_ = nullptr;
    PangoAttrList* attributes_ = nullptr;
    std::unordered_map<std::string, std::weak_ptr<FontFace>> faces_;
    LruCache<LOGFONTA, std::shared_ptr<RealizedFont>, LogFontHash, LogFontEqual> fonts_{kKeptFonts};
    ShapedTextCache shapes_;
    LineImages lines_;
    std::unique_ptr<GlyphCache> glyphs_;
    uint64_t lastFontId_ = 0;
};

}  // namespace vxgui::gdi
