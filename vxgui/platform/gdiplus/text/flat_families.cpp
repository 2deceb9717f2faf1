#include <algorithm>
#include <cmath>

#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/text/FontCollection.h"
#include "vxgui/platform/gdiplus/text/FontEngine.h"
#include "vxgui/platform/gdiplus_fonts.h"

namespace vxgui::gdiplus {
namespace {

constexpr size_t kNameRoom = 32;  // the published length of a name's buffer

GpStatus HandOutFamily(GpFontFamily** result, const Ref<FontFamily>& family) {
    return family ? HandOut(result, family) : FontFamilyNotFound;
}

GpStatus CreateGeneric(const char* name, GpFontFamily** family) {
    return FlatCreate(family, [&] {
        const auto source = FontSource::System();
        return HandOutFamily(family, FamilyOf(source, source->Generic(name)));
    });
}

template <class Pick>
GpStatus GetMetric(const GpFontFamily* family, INT style, WORD* result, Pick pick) {
    return FlatGet<FontFamily>(family, result, [&](FontFamily& found) {
        const INT value = pick(MetricsOf(found, style));
        return static_cast<WORD>(std::clamp<INT>(value, 0, UINT16_MAX));
    });
}

}  // namespace

extern "C" {

GpStatus GdipCreateFontFamilyFromName(const WCHAR* name, GpFontCollection* fontCollection,
                                      GpFontFamily** family) {
    return FlatCreate(family, [&]() -> GpStatus {
        if (!name) return InvalidParameter;
        const auto source = FontSource::System();
        if (!fontCollection) return HandOutFamily(family, FamilyOf(source, source->Find(name)));
        return FlatOn<FontCollection>(fontCollection, [&](FontCollection& found) {
            return HandOutFamily(family, found.Find(name));
        });
    });
}

GpStatus GdipGetGenericFontFamilySansSerif(GpFontFamily** family) {
    return CreateGeneric("sans-serif", family);
}

GpStatus GdipGetGenericFontFamilySerif(GpFontFamily** family) {
    return CreateGeneric("serif", family);
}

GpStatus GdipGetGenericFontFamilyMonospace(GpFontFamily** family) {
    return CreateGeneric("monospace", family);
}

GpStatus GdipDeleteFontFamily(GpFontFamily* family) { return FlatDelete<FontFamily>(family); }

GpStatus GdipGetFamilyName(const GpFontFamily* family, WCHAR* name, LANGID) {
    return FlatOn<FontFamily>(family, [&](FontFamily& found) {
        if (!name) return InvalidParameter;
        const std::u16string& full = found.info.name16;
        const size_t length = full.copy(name, kNameRoom - 1);
        name[length] = 0;
        return Ok;
    });
}

GpStatus GdipIsStyleAvailable(const GpFontFamily* family, INT style, BOOL* available) {
    return FlatGet<FontFamily>(family, available,
                               [&](FontFamily& found) { return found.info.HasStyle(style); });
}

GpStatus GdipGetEmHeight(const GpFontFamily* family, INT style, WORD* height) {
    return GetMetric(family, style, height, [](const FamilyMetrics& m) { return m.emHeight; });
}

GpStatus GdipGetCellAscent(const GpFontFamily* family, INT style, WORD* ascent) {
    return GetMetric(family, style, ascent, [](const FamilyMetrics& m) { return m.ascent; });
}

GpStatus GdipGetCellDescent(const GpFontFamily* family, INT style, WORD* descent) {
    return GetMetric(family, style, descent, [](const FamilyMetrics& m) { return m.descent; });
}

GpStatus GdipGetLineSpacing(const GpFontFamily* family, INT style, WORD* spacing) {
    return GetMetric(family, style, spacing, [](const FamilyMetrics& m) { return m.lineSpacing; });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
