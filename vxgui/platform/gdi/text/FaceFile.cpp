#include "vxgui/platform/gdi/text/FaceFile.h"

#include <fontconfig/fontconfig.h>

namespace vxgui::gdi {
namespace {

int PatternInteger(FcPattern* pattern, const char* object, int fallback) {
    int value = fallback;
    FcPatternGetInteger(pattern, object, 0, &value);
    return value;
}

}  // namespace

std::optional<FaceFile> FileOf(PangoFont* font) {
    FcPattern* pattern = nullptr;
    g_object_get(font, "pattern", &pattern, nullptr);
    FcChar8* path = nullptr;
    if (!pattern || FcPatternGetString(pattern, FC_FILE, 0, &path) != FcResultMatch) return {};
    return FaceFile{reinterpret_cast<const char*>(path), PatternInteger(pattern, FC_INDEX, 0),
                    PatternInteger(pattern, FC_SLANT, FC_SLANT_ROMAN) == FC_SLANT_ROMAN,
                    PatternInteger(pattern, FC_WEIGHT, FC_WEIGHT_REGULAR) < FC_WEIGHT_DEMIBOLD};
}

}  // namespace vxgui::gdi
