#pragma once

#include "vxgui/platform/gdi/text/LruCache.h"
#include "vxgui/platform/gdiplus/text/GlyphMasks.h"
#include "vxgui/platform/gdiplus/text/LayoutCache.h"

namespace vxgui::gdiplus {

/// What one thread keeps of fonts: neither font maps nor FreeType's objects may cross to another.
class FontEngine {
public:
    /// The calling thread's, made on first use and gone with the thread.
    static FontEngine& Here();

    FontEngine();
    ~FontEngine();
    FontEngine(const FontEngine&) = delete;
    FontEngine& operator=(const FontEngine&) = delete;

    /// The bold and italic bits of `style` count.
    std::shared_ptr<Typeface> Find(const FontFamily& family, INT style);
    /// None for a file that can't be read. Paths mean files within a source.
    std::shared_ptr<gdi::FontFace> OpenFace(uint64_t source, const std::string& path, int index);

    GlyphMasks& Glyphs() { return glyphs_; }
    LayoutCache& Layouts() { return layouts_; }

private:
    struct MapEnd {
        void operator()(PangoFontMap* map) const;
    };
    using FontMap = std::unique_ptr<PangoFontMap, MapEnd>;

    PangoFontMap* MapOf(const FontSource& source);

    // Kept beyond what is in use.
    static constexpr size_t kKeptMaps = 8;
    static constexpr size_t kKeptTypefaces = 64;

    FT_Library library_ = nullptr;
    std::unordered_map<std::string, std::weak_ptr<gdi::FontFace>> faces_;
    gdi::LruCache<uint64_t, FontMap, std::hash<uint64_t>> maps_{kKeptMaps};
    gdi::LruCache<uint64_t, std::shared_ptr<Typeface>, std::hash<uint64_t>> typefaces_{
        kKeptTypefaces};
    GlyphMasks glyphs_;
    LayoutCache layouts_;
};

/// The measures of a family in a style.
FamilyMetrics MetricsOf(const FontFamily& family, INT style);

}  // namespace vxgui::gdiplus
