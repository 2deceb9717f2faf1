#include "vxgui/platform/gdi/text/FontChoice.h"

#include <cstring>
#include <string>

#include "vxgui/platform/kernel.h"

namespace vxgui::gdi {
namespace {

constexpr BYTE kFixedPitch = 1;
constexpr BYTE kFamilyMask = 0xF0;
constexpr BYTE kRoman = 0x10;
constexpr BYTE kModern = 0x30;

struct Language {
    BYTE charSet;
    const char* codePage;
    const char* tag;
};
constexpr Language kLanguages[] = {
    {128, "CP932", "ja"}, {129, "CP949", "ko"}, {134, "CP936", "zh-cn"}, {136, "CP950", "zh-tw"}};

}  // namespace

const char* GenericFamily(const LOGFONTA& font) {
    const BYTE family = font.lfPitchAndFamily & kFamilyMask;
    if (family == kModern || (font.lfPitchAndFamily & 3) == kFixedPitch) return "monospace";
    return family == kRoman ? "serif" : "sans-serif";
}

std::string FaceName(const LOGFONTA& font) {
    const size_t length = strnlen(font.lfFaceName, sizeof font.lfFaceName);
    std::string name = kernel::TextFromAnsi({font.lfFaceName, length}).Utf8();
    for (char& c : name) c = c == ',' ? ' ' : c;
    return name.starts_with('@') ? name.substr(1) : name;
}

PangoFontDescription* DescriptionOf(const LOGFONTA& font) {
    PangoFontDescription* description = pango_font_description_new();
    const std::string face = FaceName(font);
    const std::string families =
        face.empty() ? GenericFamily(font) : face + "," + GenericFamily(font);
    pango_font_description_set_family(description, families.c_str());
    pango_font_description_set_weight(
        description, font.lfWeight >= kBoldFrom ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
    pango_font_description_set_style(description,
                                     font.lfItalic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
    return description;
}

PangoLanguage* LanguageOf(const LOGFONTA& font) {
    for (const Language& language : kLanguages) {
        const bool asked = font.lfCharSet <= 1 ? kernel::AnsiCodePage() == language.codePage
                                               : font.lfCharSet == language.charSet;
        if (asked) return pango_language_from_string(language.tag);
    }
    return pango_language_from_string("en");
}

}  // namespace vxgui::gdi
