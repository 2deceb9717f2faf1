#include "vxgui/platform/limits.h"
#include "vxgui/theme/ThemeSet.h"

namespace vxgui {
namespace {

const char* const kSetSection = "ThemeSet";

// Calls `read(section)` for each numbered section. A count of 0 leaves the pool as it was, so
// `reset` runs only when there is something to read.
template <class Reset, class Read>
void ReadPool(core7::DefineFile& file, const char* countKey, const char* prefix, Reset reset,
              Read read) {
    const int32_t count = file.GetInteger(kSetSection, countKey, "0");
    if (count == 0) return;
    // A slip of the keyboard would else fill the memory with default items.
    if (count > ApartmentLimits().themeSections)
        throw Error(ErrorNumber::Overflow, "ThemeSet", String("Too many sections: ") + countKey);
    reset();
    for (int32_t n = 1; n <= count; ++n) read(NumberedSection(prefix, n));
}

}  // namespace

String NumberedSection(const char* prefix, int32_t number) {
    const String digits = String::FromInt(number < 0 ? -int64_t{number} : number);
    return String(prefix) + (number < 0 ? "-" : "") + (digits.size() < 2 ? "0" : "") + digits;
}

int32_t ThemeSetFromDefine(const Ref<ThemeSet>& set, const Ref<core7::DefineFile>& defineFile,
                           const String& basePath) {
    // The pools come first: items look fonts and styles up by section while they are read.
    ReadPool(
        *defineFile, "Fonts", "Font_", [&] { set->Fonts(New<LFonts>()); },
        [&](const String& section) {
            const Ref<LFont> font = New<LFont>();
            font->FromIniFile(defineFile, section);
            set->Fonts()->AddItem(font, section);
        });
    ReadPool(
        *defineFile, "TextStyles", "TextStyle_", [&] { set->TextStyles(New<TextStyles>()); },
        [&](const String& section) {
            const Ref<TextStyle> style = New<TextStyle>();
            style->FromIniFile(defineFile, section);
            set->TextStyles()->AddItem(style, section);
        });
    ReadPool(
        *defineFile, "Themes", "Theme_", [&] { set->ThemeItems(New<ThemeItems>()); },
        [&](const String& section) {
            const Ref<ThemeItem> item = New<ThemeItem>();
            item->FromThemeDefine(defineFile, section, set, basePath);
            set->ThemeItems()->AddItem(item, section);
        });
    return 0;
}

}  // namespace vxgui
