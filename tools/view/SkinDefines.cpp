#include "tools/view/SkinDefines.h"

#include "vxgui/theme/SkinParts.h"

namespace vxgui::view {
namespace {

using Kind = PictureUse::Kind;

String InFolder(const String& folder, const String& name) {
    return core7::ThePathService().JoinPath({folder, name});
}

}  // namespace

SkinDefines::SkinDefines(const String& path)
    : folder_(core7::ThePathService().TheFileSystem().GetParentFolderName(path)) {
    Open(path);
    if (defines_[0].file->PositionOf("XPTaskbar").line > 0) AddTaskbar();
}

void SkinDefines::Open(const String& path) {
    defines_.push_back({core7::NativePath(path), core7::CreateDefineFile()});
    defines_.back().file->OpenFile(path);
    AddPictures(defines_.size() - 1);
}

// Parts that name no picture have one all the same, if it is there.
void SkinDefines::AddTaskbar() {
    const String name = defines_[0].file->GetString("XPTaskbar", "File", "");
    Open(InFolder(folder_, name.empty() ? String("XPStuff.xp") : name));
    for (const SkinPart& part : SkinParts()) {
        const size_t define = part.inUis ? 0 : 1;
        if (defines_[define].file->GetString(part.name, "Image", "").empty())
            AddPicture(Kind::Image, define, part.name, "", part.image);
    }
}

void SkinDefines::AddPictures(size_t define) {
    core7::DefineFile& file = *defines_[define].file;
    for (const String& section : file.SectionNames()) {
        for (const auto& [key, kind] : {std::pair("Image", Kind::Image),
                                        {"GlyphImage", Kind::Glyph},
                                        {"Wallpaper", Kind::Wallpaper}})
            AddPicture(kind, define, section, key, file.GetString(section, key, ""));
    }
}

void SkinDefines::AddPicture(Kind kind, size_t define, const String& section, const String& key,
                             const String& name) {
    if (!name.empty())
        pictures_.push_back(
            {kind, define, section, key, core7::NativePath(InFolder(folder_, name))});
}

}  // namespace vxgui::view
