#include "vxgui/platform/gdiplus/text/Font.h"

#include "vxgui/base/String.h"
#include "vxgui/platform/gdi/text/FontChoice.h"
#include "vxgui/platform/gdi/text/FontScale.h"
#include "vxgui/platform/gdiplus/Units.h"
#include "vxgui/platform/gdiplus/text/FontEngine.h"

namespace vxgui::gdiplus {
namespace {

const FamilyInfo* FamilyOfRecord(const FontSource& source, const gdi::LOGFONTA& record) {
    const String name = gdi::FaceName(record);
    const FamilyInfo* named = name.empty() ? nullptr : source.Find(name.view());
    return named ? named : source.Generic(gdi::GenericFamily(record));
}

INT StyleOf(const gdi::LOGFONTA& record) {
    return (record.lfWeight >= gdi::kBoldFrom ? FontStyleBold : 0) |
           (record.lfItalic ? FontStyleItalic : 0) | (record.lfUnderline ? FontStyleUnderline : 0) |
           (record.lfStrikeOut ? FontStyleStrikeout : 0);
}

REAL EmOf(const FontFamily& family, INT style, LONG height) {
    const gdi::DesignMetrics none;
    const auto typeface = FontEngine::Here().Find(family, style);
    const auto& face = typeface->Face(0).face;
    return static_cast<REAL>(gdi::EmFromHeight(face ? face->Design() : none, height));
}

}  // namespace

double Font::SizeInPixels(double dpi) const {
    const double units = UnitsPerInch(unit);
    return units > 0 ? size * dpi / units : size;
}

double Font::LineHeight(double em) const { return MetricsOf(*family, style).LineSpacing(em); }

Ref<Font> FontOfLogFont(const gdi::LOGFONTA& record) {
    const auto source = FontSource::System();
    const Ref<FontFamily> family = FamilyOf(source, FamilyOfRecord(*source, record));
    if (!family) return nullptr;
    const INT style = StyleOf(record);
    return New<Font>(family, EmOf(*family, style, record.lfHeight), style, UnitWorld);
}

}  // namespace vxgui::gdiplus
