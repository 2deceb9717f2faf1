#include "vxgui/base/OutOfMemory.h"
#include "vxgui/frame/Services.h"
#include "vxgui/theme/SkinConfinement.h"
#include "vxgui/theme/SkinDef.h"
#include "vxgui/theme/StyleModule.h"

namespace vxgui {
namespace {

Ref<core7::DefineFile> Open(const String& path) {
    Ref<core7::DefineFile> file = gServices.createDefineFile();
    file->OpenFile(path);
    return file;
}

bool IsThere(const String& skinPath, const String& file) {
    return gServices.pathService().FileExists(file) && MaySkinRead(skinPath, file);
}

// A taskbar skin without sections, or with one picture missing, isn't used at all.
bool IsWhole(core7::DefineFile& taskbar, const String& skinPath) {
    core7::PathService& paths = gServices.pathService();
    const std::vector<String> sections = taskbar.SectionNames();
    for (const String& section : sections) {
        const String image = taskbar.GetString(section, "Image", "");
        if (!image.empty() && !IsThere(skinPath, paths.JoinPath({skinPath, image}))) return false;
    }
    return !sections.empty();
}

}  // namespace

SkinDef::Files SkinDef::OpenSkinFolder() {
    core7::PathService& paths = gServices.pathService();
    core7::FileSystem& files = paths.TheFileSystem();
    defFile_ = paths.JoinPath({skinPath_, defFile_});
    const Ref<core7::DefineFile> uis = Open(defFile_);
    const String name = uis->GetString("XPTaskbar", "File", "");
    taskbarFile_ = name.empty() ? files.BuildPath(files.GetParentFolderName(defFile_), "XPStuff.xp")
                                : paths.JoinPath({skinPath_, name});
    if (!IsThere(skinPath_, taskbarFile_)) return {};
    const Ref<core7::DefineFile> taskbar = Open(taskbarFile_);
    return IsWhole(*taskbar, skinPath_) ? Files{uis, taskbar} : Files{};
}

SkinDef::Files SkinDef::OpenStyleModule() {
    skinName_ = {};
    if (!defFile_.empty() && !IsStyleReference(defFile_)) defFile_ = "res:DefaultStyles:blue";
    const StyleReference reference = ParseStyleReference(defFile_);
    const String path = FindStyleModule(reference.module, skinPath_);
    if (!gServices.pathService().FileExists(path)) return {};
    const LoadedModule module(path);
    if (!module) return {};
    styleModule_ = path;
    return {module.DefineFile(reference.style + ".INI"),
            module.DefineFile(reference.style + "TaskBar.INI")};
}

void SkinDef::InitializeXPTaskbar() try {
    const KeepAlive keep(this);
    styleModule_ = {};
    uis_ = taskbar_ = nullptr;
    items_ = nullptr;
    if (defFile_.empty()) defFile_ = ReferenceOfCurrentScheme();
    Files files;
    if (!IsStyleReference(defFile_)) files = OpenSkinFolder();
    // A skin is used whole or not at all: both files come from one place.
    if (!files.taskbar) files = OpenStyleModule();
    if (!files.taskbar) return;
    uis_ = files.uis;
    taskbar_ = files.taskbar;
    ReadSkinColours();
    ReadSkinFonts();
    items_ = New<ThemeItems>();
    LoadSkinItems();
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("SkinDef.InitializeXPTaskbar");
}

}  // namespace vxgui
