#include <cmath>

#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/text/Font.h"
#include "vxgui/platform/gdiplus_fonts.h"

namespace vxgui::gdiplus {
namespace {

bool IsFontUnit(Unit unit) {
    return unit == UnitWorld || (unit >= UnitPixel && unit <= UnitMillimeter);
}

GpStatus CreateFromRecord(const gdi::LOGFONTA& record, GpFont** font) {
    const Ref<Font> made = FontOfLogFont(record);
    return made ? HandOut(font, made) : NotTrueTypeFont;
}

}  // namespace

extern "C" {

GpStatus GdipCreateFont(const GpFontFamily* fontFamily, REAL emSize, INT style, Unit unit,
                        GpFont** font) {
    return FlatCreate(font, [&] {
        return FlatOn<FontFamily>(fontFamily, [&](FontFamily& family) -> GpStatus {
            if (!(emSize > 0) || !std::isfinite(emSize) || !IsFontUnit(unit))
                return InvalidParameter;
            if (!family.info.HasStyle(style)) return FontStyleNotFound;
            return HandOut(font, New<Font>(Ref<FontFamily>(&family), emSize, style, unit));
        });
    });
}

GpStatus GdipCreateFontFromDC(gdi::HDC hdc, GpFont** font) {
    return FlatCreate(font, [&]() -> GpStatus {
        gdi::LOGFONTA record{};
        const auto selected = gdi::GetCurrentObject(hdc, gdi::OBJ_FONT);
        if (!gdi::GetObjectA(selected, sizeof record, &record)) return InvalidParameter;
        return CreateFromRecord(record, font);
    });
}

GpStatus GdipCreateFontFromLogfontA(gdi::HDC hdc, const gdi::LOGFONTA* logfont, GpFont** font) {
    return FlatCreate(font, [&]() -> GpStatus {
        const bool live = gdi::GetCurrentObject(hdc, gdi::OBJ_FONT) != nullptr;
        return live && logfont ? CreateFromRecord(*logfont, font) : InvalidParameter;
    });
}

GpStatus GdipCloneFont(GpFont* font, GpFont** cloneFont) {
    return FlatCreate(cloneFont, [&] {
        return FlatOn<Font>(
            font, [&](Font& found) { return HandOut(cloneFont, Ref<FlatObject>(&found)); });
    });
}

GpStatus GdipDeleteFont(GpFont* font) { return FlatDelete<Font>(font); }

GpStatus GdipGetFamily(GpFont* font, GpFontFamily** family) {
    return FlatCreate(family, [&] {
        return FlatOn<Font>(font, [&](Font& found) { return HandOut(family, found.family); });
    });
}

GpStatus GdipGetFontStyle(GpFont* font, INT* style) {
    return FlatGet<Font>(font, style, [](Font& found) { return found.style; });
}

GpStatus GdipGetFontSize(GpFont* font, REAL* size) {
    return FlatGet<Font>(font, size, [](Font& found) { return found.size; });
}

GpStatus GdipGetFontUnit(GpFont* font, Unit* unit) {
    return FlatGet<Font>(font, unit, [](Font& found) { return found.unit; });
}

GpStatus GdipGetFontHeightGivenDPI(const GpFont* font, REAL dpi, REAL* height) {
    return FlatGet<Font>(font, height, [&](Font& found) {
        return static_cast<REAL>(found.LineHeight(found.SizeInPixels(dpi)));
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
