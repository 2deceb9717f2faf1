#include "vxgui/platform/gdi/text/RealizedFont.h"

#include <algorithm>

#include "vxgui/platform/gdi/text/FaceFile.h"
#include "vxgui/platform/gdi/text/FontChoice.h"
#include "vxgui/platform/gdi/text/FontScale.h"
#include "vxgui/platform/gdi/text/TextEngine.h"

namespace vxgui::gdi {
namespace {

/// Used where no font file can be read at all; text is then as wide as it would be, and unseen.
const DesignMetrics kNoDesign;

const DesignMetrics& DesignOf(const UsedFace& used) {
    return used.face ? used.face->Design() : kNoDesign;
}

bool SmoothingOff(const LOGFONTA& record) {
    constexpr BYTE kNonAntialiased = 3;
    return record.lfQuality == kNonAntialiased;
}

struct FreeDescription {
    void operator()(PangoFontDescription* description) const {
        pango_font_description_free(description);
    }
};

int32_t Turn(LONG tenths) { return (tenths % 3600 + 3600) % 3600; }

}  // namespace

RealizedFont::RealizedFont(TextEngine& engine, const LOGFONTA& record, uint64_t id,
                           PangoContext* context)
    : engine_(engine), record_(record), id_(id), context_(context) {}

RealizedFont::RealizedFont(TextEngine& engine, const LOGFONTA& record, uint64_t id)
    : RealizedFont(engine, record, id, pango_font_map_create_context(engine.FontMap())) {
    const std::unique_ptr<PangoFontDescription, FreeDescription> held(DescriptionOf(record));
    PangoFontDescription* const description = held.get();
    pango_context_set_language(context_, LanguageOf(record));
    pango_context_set_round_glyph_positions(context_, FALSE);
    // The em follows from the face, and a face is found at any size.
    pango_font_description_set_absolute_size(description, 16.0 * PANGO_SCALE);
    faces_.emplace_back();
    faces_[0].font = LoadOwn(description);
    if (faces_[0].font) faces_[0].used = Use(faces_[0].font);
    Measure();
    faces_[0].used.scale.em = measures_.em;
    faces_[0].used.scale.horizontal = horizontal_;
    pango_font_description_set_absolute_size(description, double{PANGO_SCALE} * measures_.em);
    pango_context_set_font_description(context_, description);
}

RealizedFont::~RealizedFont() {
    for (const Known& known : faces_) {
        if (known.font) g_object_unref(known.font);
    }
    g_object_unref(context_);
}

PangoFont* RealizedFont::LoadOwn(PangoFontDescription* description) {
    return pango_font_map_load_font(engine_.FontMap(), context_, description);
}

void RealizedFont::Measure() {
    const DesignMetrics& design = DesignOf(faces_[0].used);
    const int32_t em = EmFromHeight(design, record_.lfHeight);
    horizontal_ = HorizontalEm(design, em, record_.lfWidth);
    const auto across = [&](int32_t units) {
        return static_cast<int32_t>(int64_t{ScaledUnits(design, units, em)} * horizontal_ / em /
                                    64);
    };
    measures_.em = em;
    measures_.ascent = ScaledUnits(design, design.ascent, em);
    measures_.descent = ScaledUnits(design, design.descent, em);
    measures_.internalLeading =
        ScaledUnits(design, design.ascent + design.descent - design.unitsPerEm, em);
    measures_.externalLeading = ScaledUnits(design, design.externalLeading, em);
    measures_.averageWidth = std::max(1, across(design.averageWidth));
    measures_.largestWidth = std::max(1, across(design.largestWidth));
    measures_.underlineTop = ScaledUnits(design, design.underlineTop, em);
    measures_.underlineThickness = std::max(1, ScaledUnits(design, design.underlineThickness, em));
    measures_.strikeOutTop = ScaledUnits(design, design.strikeOutTop, em);
    measures_.strikeOutThickness = std::max(1, ScaledUnits(design, design.strikeOutThickness, em));
}

TEXTMETRICA RealizedFont::Metrics() const {
    constexpr BYTE kVariablePitch = 1, kOutline = 2, kTrueType = 4;
    TEXTMETRICA metrics{};
    metrics.tmHeight = measures_.Height();
    metrics.tmAscent = measures_.ascent;
    metrics.tmDescent = measures_.descent;
    metrics.tmInternalLeading = measures_.internalLeading;
    metrics.tmExternalLeading = measures_.externalLeading;
    metrics.tmAveCharWidth = measures_.averageWidth;
    metrics.tmMaxCharWidth = measures_.largestWidth;
    metrics.tmWeight = record_.lfWeight >= kBoldFrom ? 700 : 400;
    metrics.tmDigitizedAspectX = metrics.tmDigitizedAspectY = 96;
    metrics.tmFirstChar = 30;
    metrics.tmLastChar = 255;
    metrics.tmDefaultChar = 31;
    metrics.tmBreakChar = 32;
    metrics.tmItalic = record_.lfItalic;
    metrics.tmUnderlined = record_.lfUnderline;
    metrics.tmStruckOut = record_.lfStrikeOut;
    metrics.tmPitchAndFamily =
        static_cast<BYTE>((record_.lfPitchAndFamily & 0xF0) | kOutline | kTrueType |
                          (DesignOf(faces_[0].used).fixedPitch ? 0 : kVariablePitch));
    metrics.tmCharSet = record_.lfCharSet == 1 ? 0 : record_.lfCharSet;
    return metrics;
}

double RealizedFont::Stretch() const { return horizontal_ / 64.0 / measures_.em; }

int32_t RealizedFont::Angle() const { return Turn(record_.lfEscapement); }

UsedFace RealizedFont::Use(PangoFont* font) {
    UsedFace used;
    const auto file = FileOf(font);
    if (!file) return used;
    used.face = engine_.OpenFace(file->path, file->index);
    used.scale.em = measures_.em;
    used.scale.horizontal = horizontal_;
    used.scale.angle = Angle();
    used.scale.mono = SmoothingOff(record_);
    used.scale.oblique = record_.lfItalic && file->upright;
    used.scale.bold = record_.lfWeight >= kBoldFrom && file->regular;
    return used;
}

size_t RealizedFont::FaceOf(PangoFont* font) {
    const auto known = std::find_if(faces_.begin(), faces_.end(),
                                    [font](const Known& one) { return one.font == font; });
    if (known != faces_.end()) return static_cast<size_t>(known - faces_.begin());
    faces_.push_back({nullptr, Use(font)});
    faces_.back().font = static_cast<PangoFont*>(g_object_ref(font));
    return faces_.size() - 1;
}

}  // namespace vxgui::gdi
