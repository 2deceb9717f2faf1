#include "vxgui/theme/skin/SkinDialects.h"
#include "vxgui/theme/skin/SkinReport.h"

namespace vxgui {
namespace {

const char* const kSetSection = "ThemeSet";

// The section in which loading stopped: the one after the last item that was added.
core7::DefinePosition StoppedAt(const Skin& skin) {
    return skin.file->PositionOf(NumberedSection("Theme_", skin.set->ThemeItems()->Count() + 1));
}

void ReadSet(Skin& skin, const String& folder) {
    SkinReport report;
    try {
        ThemeSetFromDefine(skin.set, skin.file, folder);
    } catch (const Error& error) {
        report.Add(skin.path, StoppedAt(skin), error.Description());
        report.Throw();
    }
    if (skin.set->ThemeItems()->Count() > 0) return;
    report.Add(
        skin.path, skin.file->PositionOf(kSetSection),
        "no items; the key Themes says how many sections [Theme_01], [Theme_02] ... there are");
    report.Throw();
}

void CheckPictures(const Skin& skin, const SkinItem& item, const String& folder,
                   SkinReport& report) {
    const auto check = [&](const char* key, bool loaded) {
        CheckPicture(skin.path, skin.file->PositionOf(item.section, key), folder,
                     skin.file->GetString(item.section, key, ""), loaded, report);
    };
    check("Image", item.item->Image() != nullptr);
    check("GlyphImage", item.item->Glyph() != nullptr);
}

}  // namespace

bool IsThemeSet(core7::DefineFile& file) { return file.PositionOf(kSetSection).line > 0; }

void LoadThemeSet(Skin& skin) {
    const String folder =
        core7::ThePathService().TheFileSystem().GetParentFolderName(skin.file->Path());
    skin.set = New<ThemeSet>();
    ReadSet(skin, folder);
    SkinReport report;
    for (int32_t n = 1; n <= skin.set->ThemeItems()->Count(); ++n) {
        const String section = NumberedSection("Theme_", n);
        const Ref<ThemeItem> item = skin.set->Item(section);
        if (!item) continue;
        skin.items.push_back({section, skin.file->GetString(section, "Name", section),
                              skin.file->GetString(section, "Caption", ""), item});
        CheckPictures(skin, skin.items.back(), folder, report);
    }
    report.ThrowIfAny();
}

}  // namespace vxgui
