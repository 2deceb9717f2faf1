#include "vxgui/theme/SkinDef.h"

#include <algorithm>

#include "vxgui/base/NumberText.h"
#include "vxgui/base/Rounding.h"
#include "vxgui/frame/Services.h"
#include "vxgui/theme/SkinConfinement.h"

namespace vxgui {
namespace {

int32_t Channel(const String& part) {
    // The "0" makes a number of what has none, and keeps a sign from counting.
    return RoundHalfEven(std::clamp(LeadingNumber("0" + part.Trim()), 0.0, 255.0));
}

}  // namespace

SkinDef::SkinDef() = default;
SkinDef::~SkinDef() = default;

Ref<core7::DefineFile> SkinDef::FileOf(const String& name) const {
    if (name.EqualsNoCase("UIS")) return uis_;
    return name.EqualsNoCase("XPTaskBar") ? taskbar_ : nullptr;
}

String SkinDef::GetIniString(const String& File, const String& Section, const String& Key,
                             const String& Default) const {
    const Ref<core7::DefineFile> file = FileOf(File);
    return file ? file->GetString(Section, Key, Default) : String();
}

int32_t SkinDef::GetIniValue(const String& File, const String& Section, const String& Key,
                             int32_t Default) const {
    const String text = GetIniString(File, Section, Key, String::FromInt(Default));
    return RoundHalfEven(LeadingNumber(text));
}

int32_t SkinDef::SysColour(const String& Name) const {
    const String text = GetIniString("UIS", "Colours", Name, "");
    const bool commas = text.Find(u',') != String::npos;
    const std::vector<String> parts = text.Split(commas ? u',' : u' ');
    if (parts.size() != 3) return 0;
    return Channel(parts[0]) | Channel(parts[1]) << 8 | Channel(parts[2]) << 16;
}

int32_t SkinDef::AddFont(const Ref<LFont>&) {
    if (!pools_->fonts) pools_->fonts = New<LFonts>();
    return 0;
}

bool SkinDef::HaveWallpaper() const {
    core7::PathService& paths = gServices.pathService();
    String path = GetIniString("UIS", "Personality", "Wallpaper", "");
    if (!path.empty()) path = paths.JoinPath({skinPath_, path});
    std::u16string units = path.units();
    std::replace(units.begin(), units.end(), u'\\', u'/');
    return paths.FileExists(units) && MaySkinRead(skinPath_, units);
}

}  // namespace vxgui
