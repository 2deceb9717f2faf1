#include <filesystem>

#include "vxgui/theme/SkinConfinement.h"
#include "vxgui/theme/StyleModule.h"
#include "vxgui/theme/skin/SkinDialects.h"
#include "vxgui/theme/skin/SkinReport.h"
#include "vxgui/theme/skin/UisItems.h"

namespace vxgui {
namespace {

bool Has(core7::DefineFile& file, const String& section) {
    return file.PositionOf(section).line > 0;
}

// Why the library went on to a built-in style: the taskbar's file, or one of its images.
[[noreturn]] void RefuseTaskbar(const Skin& skin, const String& folder) {
    SkinReport report;
    const Ref<core7::DefineFile> file = core7::CreateDefineFile();
    const String path = skin.desktop->TaskbarFileName();
    file->OpenFile(path);
    report.AddProblems(*file);
    if (!MaySkinRead(folder, path)) {
        report.Add(skin.path, skin.file->PositionOf("XPTaskbar", "File"),
                   "the taskbar's file \"" + path +
                       "\" lies outside the folder of the skin, which is not read");
    } else if (!core7::ThePathService().FileExists(path) || file->SectionNames().empty()) {
        report.Add(skin.path, skin.file->PositionOf("XPTaskbar", "File"),
                   "the taskbar's file \"" + path +
                       "\" is not there or has no sections; a skin is used whole or not at all");
    }
    for (const String& section : file->SectionNames()) {
        const String name = file->GetString(section, "Image", "");
        const String image = core7::ThePathService().JoinPath({folder, name});
        CheckPicture(path, file->PositionOf(section, "Image"), folder, name,
                     core7::ThePathService().FileExists(image) && MaySkinRead(folder, image),
                     report);
    }
    report.Throw();
}

// A bare name means a module beside the program or the library. To whoever types one, it is also
// the file in the current folder.
String Reference(const String& path) {
    const StyleReference reference = ParseStyleReference(path);
    const bool bare = reference.module.view().find_first_of(u"/\\") == String::npos;
    const bool here = bare && core7::ThePathService().FileExists(reference.module);
    return here ? "res:./" + reference.module + ":" + reference.style : path;
}

void StartUp(Skin& skin) {
    try {
        if (skin.desktop->DefFile().empty()) skin.desktop->DefFile(Reference(skin.path));
        skin.desktop->InitializeXPTaskbar();
    } catch (const Error& error) {
        RefuseSkin(skin.path, error.Description());
    }
}

}  // namespace

bool IsUisSkin(core7::DefineFile& file) {
    return Has(file, "XPTaskbar") || Has(file, "Personality") || Has(file, "Colour0");
}

void LoadUisSkin(Skin& skin) {
    const std::filesystem::path path = skin.path.Utf8();
    const String folder =
        core7::ThePathService().TheFileSystem().GetParentFolderName(skin.file->Path());
    skin.desktop = New<SkinDef>();
    skin.desktop->SkinPath(folder);
    skin.desktop->SkinName(path.stem().string());
    skin.desktop->DefFile(path.filename().string());
    StartUp(skin);
    if (skin.desktop->SkinName().empty()) RefuseTaskbar(skin, folder);
    const Ref<core7::DefineFile> taskbar = skin.desktop->TaskbarFile();
    SkinReport report;
    report.AddProblems(*taskbar);
    report.ThrowIfAny();
    GatherUisItems(skin, taskbar->Path(), folder.empty() ? "." : folder);
}

void LoadStyle(Skin& skin) {
    skin.desktop = New<SkinDef>();
    StartUp(skin);
    skin.file = skin.desktop->UisFile();
    if (!skin.file || skin.desktop->TaskbarFile()->SectionNames().empty())
        RefuseSkin(skin.path,
                   "no such style; res:MODULE:STYLE was expected, for example "
                   "res:DefaultStyles:blue");
    GatherUisItems(skin, skin.path, "");
}

}  // namespace vxgui
