#pragma once

#include <pango/pango.h>

#include <memory>
#include <optional>
#include <vector>

#include "vxgui/platform/gdi/text/FontFace.h"
#include "vxgui/platform/gdiplus/text/FontFamily.h"

namespace vxgui::gdiplus {

/// The measures of a family in a style, in design units.
struct FamilyMetrics {
    INT emHeight = 1000;
    INT ascent = 800;
    INT descent = 200;
    INT lineSpacing = 1000;

    double LineSpacing(double em) const { return em * lineSpacing / emHeight; }
    double Ascent(double em) const { return em * ascent / emHeight; }
};

// What a face without an italic or a bold of its own gets: a slant of 1 in 5, and stems that grow
// by this part of the em.
constexpr double kObliqueSlope = 0.2;
constexpr double kEmboldenDivisor = 24;

/// A face that text is drawn with: a family's own, or one that it falls back on.
struct DrawnFace {
    std::shared_ptr<gdi::FontFace> face;  ///< none when the file can't be read
    bool bold = false;                    ///< emboldened by us
    bool oblique = false;                 ///< slanted by us
};

/// A family in bold, italic, both or none, with the faces that serve it, on one thread.
class Typeface {
public:
    Typeface(std::shared_ptr<const FontSource> source, const FamilyInfo& info, INT style,
             PangoFontMap* map);
    ~Typeface();
    Typeface(const Typeface&) = delete;
    Typeface& operator=(const Typeface&) = delete;

    /// Text is shaped at an em of this many Pango units, where no rounding shows.
    static constexpr double kEm = 1024.0 * PANGO_SCALE;

    PangoContext* Context() const { return context_; }
    const FamilyMetrics& Metrics() const { return metrics_; }
    /// The first face is the family's own.
    const DrawnFace& Face(size_t index) const { return faces_[index].drawn; }
    /// The number of the face that shaping chose.
    size_t FaceOf(PangoFont* font);

private:
    struct Known {
        PangoFont* font = nullptr;
        DrawnFace drawn;
    };

    DrawnFace Draw(PangoFont* font) const;
    void Measure();

    const std::shared_ptr<const FontSource> source_;
    const INT style_;
    PangoContext* const context_;
    std::vector<Known> faces_;
    FamilyMetrics metrics_;
};

}  // namespace vxgui::gdiplus
