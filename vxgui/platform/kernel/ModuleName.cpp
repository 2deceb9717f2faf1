#include "vxgui/platform/kernel/ModuleName.h"

#include <algorithm>
#include <filesystem>

#include "vxgui/platform/core7.h"
#include "vxgui/platform/kernel/Folders.h"

namespace vxgui::kernel {

namespace {

constexpr std::string_view kEnding = ".dll";

char LowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::string FullPathOfFile(const std::string& written) {
    const std::string path = core7::NativePath(written);
    std::error_code failed;
    if (!std::filesystem::is_regular_file(path, failed)) return {};
    return std::filesystem::canonical(path, failed).string();
}

/// The file of that name in the folder of `path`. An unknown path has no folder; the working one
/// must not take its place.
std::string FileBeside(const std::string& path, const std::string& name) {
    return path.starts_with('/') ? FullPathOfFile(FolderOf(path) + name) : std::string();
}

}  // namespace

ModuleName::ModuleName(std::string_view given) : path_(given) {
    std::replace(path_.begin(), path_.end(), '\\', '/');
}

std::string ModuleName::Plain() const { return PlainNameOf(path_); }

std::string ModuleName::FindFile() const {
    std::string name = path_;
    if (name.empty()) return {};
    if (name.find('.', FolderOf(name).size()) == std::string::npos) name += kEnding;
    if (HasFolder()) return FullPathOfFile(name);
    const std::string beside = FileBeside(OwnPath(), name);
    return beside.empty() ? FileBeside(ProgramPath(), name) : beside;
}

std::string PlainNameOf(const std::string& path) {
    std::string name = path.substr(FolderOf(path).size());
    std::transform(name.begin(), name.end(), name.begin(), LowerAscii);
    if (name.ends_with(kEnding)) name.resize(name.size() - kEnding.size());
    return name;
}

}  // namespace vxgui::kernel
