#include "vxgui/platform/gdi/text/FontFace.h"

#include FT_OUTLINE_H
#include FT_TRUETYPE_TABLES_H

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdlib>

#include "vxgui/base/Rounding.h"

namespace vxgui::gdi {
namespace {

/// Above this many pixels an em is painted as it was drawn: hints matter to small text alone.
constexpr int32_t kLargestHintedEm = 128;
constexpr double kObliqueSlope = 0.2;
/// The stems of a face that has no bold of its own grow by this part of the em.
constexpr int32_t kEmboldenDivisor = 24;

const TT_OS2* Os2Of(FT_Face face) {
    const auto* table = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2));
    return table && table->version != 0xFFFF ? table : nullptr;
}

/// The cell, and what the line spacing of the face leaves beyond it.
void ReadCell(FT_Face face, const TT_OS2* os2, DesignMetrics& design) {
    design.ascent = face->ascender;
    design.descent = -face->descender;
    if (os2 && os2->usWinAscent + os2->usWinDescent > 0) {
        design.ascent = os2->usWinAscent;
        design.descent = os2->usWinDescent;
    }
    design.externalLeading = std::max(0, face->height - design.ascent - design.descent);
}

int32_t ReachOf(const FT_BBox& box) {
    const auto [least, most] = std::minmax({box.xMin, box.yMin, box.xMax, box.yMax});
    return static_cast<int32_t>(std::max(std::abs(least), std::abs(most)));
}

void ReadLines(FT_Face face, const TT_OS2* os2, DesignMetrics& design) {
    const int32_t thickness = face->underline_thickness;
    design.underlineThickness = thickness > 0 ? thickness : design.unitsPerEm / 20;
    // FreeType gives the middle of the line.
    design.underlineTop = -face->underline_position - design.underlineThickness / 2;
    design.strikeOutThickness = design.underlineThickness;
    design.strikeOutTop = design.unitsPerEm * 3 / 10;
    if (os2 && os2->yStrikeoutSize > 0) {
        design.strikeOutThickness = os2->yStrikeoutSize;
        design.strikeOutTop = os2->yStrikeoutPosition;
    }
}

DesignMetrics ReadDesign(FT_Face face) {
    DesignMetrics design;
    design.fixedPitch = FT_IS_FIXED_WIDTH(face) != 0;
    if (!FT_IS_SCALABLE(face) || face->units_per_EM == 0) return design;
    const TT_OS2* os2 = Os2Of(face);
    design.unitsPerEm = face->units_per_EM;
    design.largestWidth = face->max_advance_width;
    design.averageWidth =
        os2 && os2->xAvgCharWidth > 0 ? os2->xAvgCharWidth : design.unitsPerEm / 2;
    design.reach = ReachOf(face->bbox);
    ReadCell(face, os2, design);
    ReadLines(face, os2, design);
    return design;
}

FT_Fixed Fixed(double value) { return RoundHalfEven<FT_Fixed>(value * 65536); }

FT_Matrix MatrixOf(const FaceScale& scale) {
    const double angle = scale.angle * (3.14159265358979323846 / 1800);
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    const double slope = scale.oblique ? kObliqueSlope : 0;
    return {Fixed(c), Fixed(c * slope - s), Fixed(s), Fixed(s * slope + c)};
}

FT_Int32 LoadFlags(const FaceScale& scale) {
    constexpr FT_Int32 kAlways = FT_LOAD_NO_BITMAP;
    const bool hinted = scale.Upright() && scale.em <= kLargestHintedEm;
    if (scale.mono) return kAlways | FT_LOAD_TARGET_MONO | (hinted ? 0 : FT_LOAD_NO_HINTING);
    // The light hinter snaps heights alone: widths stay what the layout was measured with.
    return kAlways | (hinted ? FT_LOAD_TARGET_LIGHT : FT_LOAD_NO_HINTING);
}

std::atomic<uint64_t> lastFaceId{0};

struct EndFace {
    void operator()(FT_Face face) const { FT_Done_Face(face); }
};

}  // namespace

std::shared_ptr<FontFace> FontFace::Open(FT_Library library, const std::string& file, int index) {
    FT_Face face = nullptr;
    if (FT_New_Face(library, file.c_str(), index, &face) != 0) return nullptr;
    std::unique_ptr<FT_FaceRec, EndFace> held(face);
    auto* const opened = new FontFace(face, ++lastFaceId);
    static_cast<void>(held.release());
    return std::shared_ptr<FontFace>(opened);
}

FontFace::FontFace(FT_Face face, uint64_t id) : face_(face), id_(id), design_(ReadDesign(face)) {}

FontFace::~FontFace() { FT_Done_Face(face_); }

double FontFace::Advance(uint32_t glyph, int32_t em) const {
    if (FT_Load_Glyph(face_, glyph, FT_LOAD_NO_SCALE) != 0) return em / 2.0;
    return static_cast<double>(face_->glyph->metrics.horiAdvance) * em / design_.unitsPerEm;
}

bool FontFace::Apply(const FaceScale& scale) {
    if (applied_ == scale) return true;
    applied_ = {};
    if (FT_Set_Char_Size(face_, scale.horizontal, scale.em * 64, 72, 72) != 0) return false;
    FT_Matrix matrix = MatrixOf(scale);
    FT_Set_Transform(face_, scale.Upright() ? nullptr : &matrix, nullptr);
    applied_ = scale;
    return true;
}

bool FontFace::Load(uint32_t glyph, const FaceScale& scale) {
    if (!FT_IS_SCALABLE(face_) || !Apply(scale)) return false;
    if (FT_Load_Glyph(face_, glyph, LoadFlags(scale)) != 0) return false;
    FT_GlyphSlot slot = face_->glyph;
    if (slot->format != FT_GLYPH_FORMAT_OUTLINE) return false;
    if (scale.bold) FT_Outline_Embolden(&slot->outline, scale.em * 64 / kEmboldenDivisor);
    return true;
}

}  // namespace vxgui::gdi
