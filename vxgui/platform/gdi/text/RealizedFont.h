#pragma once

#include <pango/pango.h>

#include <memory>
#include <vector>

#include "vxgui/platform/gdi/text/FontFace.h"
#include "vxgui/platform/gdi_text.h"

namespace vxgui::gdi {

class TextEngine;

/// A face that a font paints with: its own, or one that it falls back on.
struct UsedFace {
    std::shared_ptr<FontFace> face;
    FaceScale scale;
};

/// The pixel measures of a font.
struct FontMeasures {
    int32_t em = 0;
    int32_t ascent = 0;
    int32_t descent = 0;
    int32_t internalLeading = 0;
    int32_t externalLeading = 0;
    int32_t averageWidth = 0;
    int32_t largestWidth = 0;
    int32_t underlineTop = 0;  ///< below the base line
    int32_t underlineThickness = 1;
    int32_t strikeOutTop = 0;  ///< above the base line
    int32_t strikeOutThickness = 1;

    int32_t Height() const { return ascent + descent; }
};

/// A logical font with the faces that serve it, on one thread.
class RealizedFont {
public:
    RealizedFont(TextEngine& engine, const LOGFONTA& record, uint64_t id);
    ~RealizedFont();
    RealizedFont(const RealizedFont&) = delete;
    RealizedFont& operator=(const RealizedFont&) = delete;

    /// Unlike that of any other font that this thread has realized.
    uint64_t Id() const { return id_; }
    const LOGFONTA& Record() const { return record_; }
    const FontMeasures& Measures() const { return measures_; }
    TEXTMETRICA Metrics() const;
    PangoContext* Context() const { return context_; }
    /// The width of an em as a part of its height.
    double Stretch() const;
    /// Tenths of a degree, anticlockwise, 0 to 3599.
    int32_t Angle() const;

    /// The first face is the font's own; there is always one, though it may be without a face.
    const UsedFace& Face(size_t index) const { return faces_[index].used; }
    /// The number of the face that shaping chose.
    size_t FaceOf(PangoFont* font);

private:
    /// As yet without a face: what follows may run out of memory, and is then cleaned up.
    RealizedFont(TextEngine& engine, const LOGFONTA& record, uint64_t id, PangoContext* context);

    struct Known {
        PangoFont* font = nullptr;
        UsedFace used;
    };

    PangoFont* LoadOwn(PangoFontDescription* description);
    void Measure();
    UsedFace Use(PangoFont* font);

    TextEngine& engine_;
    const LOGFONTA record_;
    const uint64_t id_;
    PangoContext* context_;
    FontMeasures measures_;
    int32_t horizontal_ = 0;
    std::vector<Known> faces_;
};

}  // namespace vxgui::gdi
