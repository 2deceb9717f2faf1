#include "tools/view/recolour/DefinedOriginal.h"

#include <filesystem>

#include "tools/view/recolour/DefineColours.h"
#include "tools/vxgui/ToolError.h"

namespace vxgui::view {
namespace {

namespace fs = std::filesystem;
using Kind = PictureUse::Kind;

void MakeFolderOf(const fs::path& file) {
    std::error_code failed;
    fs::create_directories(file.parent_path(), failed);
    if (failed)
        tool::Fail(file.parent_path().string(), "the folder can't be made: " + failed.message());
}

fs::path Normal(const fs::path& path) { return fs::absolute(path).lexically_normal(); }

// The folder of a bare name is the current one.
fs::path FolderOf(const SkinDefines& skin) {
    const std::string folder = core7::NativePath(skin.Folder());
    return Normal(folder.empty() ? "." : folder);
}

bool Exists(const std::string& path) {
    std::error_code failed;
    return fs::is_regular_file(path, failed);
}

}  // namespace

DefinedOriginal::DefinedOriginal(const std::string& path) : skin_(path) {
    for (const DefineText& define : skin_.Defines()) {
        defineNames_.push_back(FreeName(define.path));
        const Ref<core7::DefineEditor> editor = core7::CreateDefineEditor();
        if (!editor->OpenFile(define.path)) tool::Fail(define.path, "can't be read");
        texts_.push_back(editor->Text());
    }
    ReadPictures();
}

// The place that a file has in the skin's folder; one from elsewhere comes into the folder itself.
std::string DefinedOriginal::FreeName(const std::string& path) {
    fs::path name = Normal(path).lexically_relative(FolderOf(skin_));
    if (name.empty() || *name.begin() == "..") name = fs::path(path).filename();
    std::string free = name.string();
    while (!taken_.insert(free).second) free = (name.parent_path() / "_").string() + free;
    return free;
}

void DefinedOriginal::ReadPictures() {
    for (const PictureUse& use : skin_.Pictures()) {
        const bool wallpaper = use.kind == Kind::Wallpaper;
        if (const auto known = pictures_.find(use.path); known != pictures_.end()) {
            known->second.isWallpaper = known->second.isWallpaper && wallpaper;
        } else if (Exists(use.path)) {
            SkinPicture content(use.path, KeysOf(use.path), BackgroundOf(use));
            const std::string name = FreeName(use.path) + content.AddedEnding();
            pictures_.emplace(use.path, Picture{name, wallpaper, std::move(content)});
        }
    }
}

// Of all sections that use the picture.
KeyColours DefinedOriginal::KeysOf(const std::string& path) const {
    KeyColours keys;
    for (const PictureUse& use : skin_.Pictures()) {
        if (use.path != path || use.kind == Kind::Wallpaper) continue;
        core7::DefineFile& file = *skin_.Defines()[use.define].file;
        const KeyColours more = use.kind == Kind::Image ? KeysOfImage(file, use.section)
                                                        : KeysOfGlyph(file, use.section);
        keys.insert(keys.end(), more.begin(), more.end());
    }
    return keys;
}

int32_t DefinedOriginal::BackgroundOf(const PictureUse& use) const {
    core7::DefineFile& file = *skin_.Defines()[use.define].file;
    return use.kind == Kind::Glyph ? BackgroundOfGlyph(file, use.section)
                                   : BackgroundOfImage(file, use.section);
}

void DefinedOriginal::WriteDefine(size_t index, const std::string& path,
                                  const Recolour& how) const {
    const DefineText& define = skin_.Defines()[index];
    const Ref<core7::DefineEditor> editor = core7::CreateDefineEditor();
    editor->LoadText(texts_[index]);
    RecolourDefine(*define.file, *editor, how);
    const fs::path folder = FolderOf(skin_);
    const auto stays = [&](const std::string& from, const std::string& name) {
        return Normal(from) == (folder / name).lexically_normal();
    };
    for (const PictureUse& use : skin_.Pictures()) {
        const auto picture = pictures_.find(use.path);
        if (use.define != index || use.key.empty() || picture == pictures_.end()) continue;
        if (!stays(use.path, picture->second.name))
            editor->SetString(use.section, use.key, picture->second.name);
    }
    if (index == 0 && defineNames_.size() > 1 && !stays(skin_.Defines()[1].path, defineNames_[1]))
        editor->SetString("XPTaskbar", "File", defineNames_[1]);
    MakeFolderOf(path);
    if (!editor->Save(path)) tool::Fail(path, "can't be written");
}

std::string DefinedOriginal::Write(const std::string& folder, const Recolour& how,
                                   Extent extent) const {
    for (const auto& [from, picture] : pictures_) {
        if (picture.isWallpaper && extent == Extent::Items) continue;
        const fs::path path = fs::path(folder) / picture.name;
        MakeFolderOf(path);
        picture.content.Write(path.string(), how);
    }
    for (size_t i = 0; i < defineNames_.size(); ++i)
        WriteDefine(i, (fs::path(folder) / defineNames_[i]).string(), how);
    return (fs::path(folder) / defineNames_[0]).string();
}

}  // namespace vxgui::view
