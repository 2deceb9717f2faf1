#pragma once

#include <ft2build.h>
#include FT_FREETYPE_H

#include <cstdint>
#include <memory>
#include <string>

namespace vxgui::gdi {

/// The measures of a face in its own units.
struct DesignMetrics {
    int32_t unitsPerEm = 1000;
    int32_t ascent = 800;   ///< of the cell, above the base line
    int32_t descent = 200;  ///< of the cell, below it, positive
    int32_t externalLeading = 0;
    int32_t averageWidth = 500;
    int32_t largestWidth = 1000;
    int32_t underlineTop = 100;  ///< below the base line
    int32_t underlineThickness = 50;
    int32_t strikeOutTop = 300;  ///< above the base line
    int32_t strikeOutThickness = 50;
    int32_t reach = 1000;  ///< no glyph goes further from its pen, either way
    bool fixedPitch = false;
};

/// How the glyphs of a face are scaled and turned.
struct FaceScale {
    int32_t em = 0;          ///< pixels
    int32_t horizontal = 0;  ///< the em's width in 64ths of a pixel
    int32_t angle = 0;       ///< tenths of a degree, anticlockwise, 0 to 3599
    bool oblique = false;    ///< slanted by us
    bool bold = false;       ///< emboldened by us
    bool mono = false;       ///< no smoothing

    bool Upright() const { return angle == 0 && !oblique; }
    friend bool operator==(const FaceScale&, const FaceScale&) = default;
};

/// A face of a font file, opened on one thread.
class FontFace {
public:
    /// None for a file that FreeType cannot read.
    static std::shared_ptr<FontFace> Open(FT_Library library, const std::string& file, int index);
    ~FontFace();
    FontFace(const FontFace&) = delete;
    FontFace& operator=(const FontFace&) = delete;

    /// Unlike that of any other face of the process.
    uint64_t Id() const { return id_; }
    FT_Face Handle() const { return face_; }
    const DesignMetrics& Design() const { return design_; }
    /// The advance of a glyph at an em of `em` pixels, in pixels.
    double Advance(uint32_t glyph, int32_t em) const;
    /// Loads a glyph as it is to be painted; false when it can't be.
    bool Load(uint32_t glyph, const FaceScale& scale);

private:
    FontFace(FT_Face face, uint64_t id);
    bool Apply(const FaceScale& scale);

    const FT_Face face_;
    const uint64_t id_;
    DesignMetrics design_;
    FaceScale applied_;
};

}  // namespace vxgui::gdi
