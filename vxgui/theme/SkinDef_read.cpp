#include <array>
#include <optional>

#include "vxgui/base/NumberText.h"
#include "vxgui/base/Rounding.h"
#include "vxgui/text/DefineSection.h"
#include "vxgui/theme/SkinDef.h"

namespace vxgui {
namespace {

using ColourParts = std::array<String, 3>;

// What stands between the blanks of a text; runs of blanks divide once.
ColourParts PartsOf(const String& text) {
    ColourParts parts;
    size_t count = 0;
    for (const String& part : text.Split(u' ')) {
        const bool inRun = part.empty() && count > 0;
        if (!inRun && count < parts.size()) parts[count++] = part;
    }
    return parts;
}

// The parts of a palette entry, or none when the section has neither form of it.
std::optional<ColourParts> ReadParts(const DefineSection& read) {
    const String whole = read.Text("Colour");
    if (!whole.empty()) return PartsOf(whole);
    const String red = read.Text("R");
    if (red.empty()) return std::nullopt;
    return ColourParts{red, read.Text("G"), read.Text("B")};
}

int32_t ColourOf(const ColourParts& parts) {
    int32_t colour = 0;
    for (size_t i = 0; i < parts.size(); ++i) {
        const double number = IsNumeric(parts[i]) ? LeadingNumber(parts[i]) : 0;
        colour |= (RoundHalfEven(number) & 0xFF) << (8 * i);
    }
    return colour;
}

}  // namespace

void SkinDef::ReadSkinColours() {
    for (int32_t n = 0;; ++n) {
        const DefineSection read(uis_, "Colour" + String::FromInt(n), "SkinDef");
        const std::optional<ColourParts> parts = ReadParts(read);
        if (!parts) return;
        pools_->colours.Set(n, ColourOf(*parts));
    }
}

bool SkinDef::ReadSkinFont(const String& section) {
    if (uis_->GetString(section, "FontName", "").empty()) return false;
    const Ref<LFont> font = New<LFont>();
    font->FromIniFile(uis_, section);
    pools_->fonts->AddItem(font, section);
    return true;
}

void SkinDef::ReadNumberedFonts(const char* prefix) {
    for (int32_t n = 0; ReadSkinFont(prefix + String::FromInt(n)); ++n) {
    }
}

void SkinDef::ReadSkinFonts() {
    pools_->fonts = New<LFonts>();
    ReadNumberedFonts("Font");
    ReadNumberedFonts("SystemFont");
    ReadSkinFont("Fonts");
    const DefineSection read(uis_, "SystemFonts", "SkinDef");
    systemFonts_.SystemCaption = read.Integer("SystemCaption", "-1");
    systemFonts_.SystemSmallCaption = read.Integer("SystemSmallCaption", "-1");
    systemFonts_.SystemMenu = read.Integer("SystemMenu", "-1");
    systemFonts_.SystemStatus = read.Integer("SystemStatus", "-1");
    systemFonts_.SystemMessage = read.Integer("SystemMessage", "-1");
    systemFonts_.SystemIcon = read.Integer("SystemIcon", "-1");
}

}  // namespace vxgui
