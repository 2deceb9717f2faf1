#include "vxgui/theme/lint/PictureShelf.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "vxgui/platform/core7.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui::lint {
namespace {

namespace fs = std::filesystem;

bool IsPictureName(const fs::path& path) {
    const String ending = String(path.extension().string()).Lower();
    static const String kEndings[] = {".bmp", ".tga", ".png", ".jpg", ".jpeg", ".gif"};
    return std::ranges::count(kEndings, ending) > 0;
}

fs::path Normal(const fs::path& path) { return path.lexically_normal(); }

PictureFacts Look(const String& folder, const String& path) {
    PictureFacts facts;
    facts.exists = core7::ThePathService().FileExists(path);
    facts.outside = !core7::IsWithin(path, folder);
    facts.file = core7::NativePath(path);
    if (!facts.exists || facts.outside) return facts;
    const Ref<cAlphaDIBSection> picture = New<cAlphaDIBSection>();
    if (!picture->CreateFromPictureFile(path)) return facts;
    facts.width = picture->Width();
    facts.height = std::abs(picture->Height());
    return facts;
}

bool IsInside(const fs::path& path, const fs::path& folder) {
    const auto [end, rest] = std::mismatch(folder.begin(), folder.end(), path.begin(), path.end());
    return end == folder.end();
}

void AddUnused(const fs::path& folder, const std::set<std::string>& used,
               std::vector<std::string>& unused) {
    std::error_code failed;
    for (const auto& entry : fs::directory_iterator(folder, failed)) {
        const std::string path = Normal(entry.path()).string();
        const bool picture = entry.is_regular_file(failed) && IsPictureName(entry.path());
        if (picture && !used.contains(path)) unused.push_back(path);
    }
}

}  // namespace

const PictureFacts& PictureShelf::Use(const String& folder, const String& name, bool absolute) {
    core7::PathService& paths = core7::ThePathService();
    const String path =
        absolute ? paths.JoinPath({folder, name}) : paths.TheFileSystem().BuildPath(folder, name);
    auto known = seen_.find({folder, path});
    if (known == seen_.end())
        known = seen_.emplace(std::pair(folder, path), Look(folder, path)).first;
    used_.insert(Normal(known->second.file).string());
    return known->second;
}

void PictureShelf::Mark(const String& folder, const String& name) {
    const String path = core7::ThePathService().TheFileSystem().BuildPath(folder, name);
    used_.insert(Normal(core7::NativePath(path)).string());
}

std::vector<std::string> PictureShelf::UnusedIn(const String& folder) const {
    const fs::path top = Normal(fs::path(core7::NativePath(folder)) / "");
    std::set<fs::path> folders{top};
    for (const std::string& file : used_) {
        const fs::path parent = Normal(fs::path(file).parent_path() / "");
        if (IsInside(parent, top.parent_path())) folders.insert(parent);
    }
    std::vector<std::string> unused;
    for (const fs::path& each : folders) AddUnused(each, used_, unused);
    std::ranges::sort(unused);
    return unused;
}

}  // namespace vxgui::lint
