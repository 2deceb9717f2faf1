#include <dirent.h>
#include <sys/stat.h>

#include <memory>

#include "vxgui/platform/core7.h"

namespace vxgui::core7 {
namespace {

bool Exists(const std::string& path) {
    struct stat status;
    return ::stat(path.c_str(), &status) == 0;
}

// The entry of `folder` that differs from `name` in letter case alone: the first in the order of
// bytes, so that the answer does not hang on the order of the directory. Empty if there is none.
std::string FindNoCase(const std::string& folder, const std::string& name) {
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(::opendir(folder.c_str()), ::closedir);
    if (!entries) return {};
    const String wanted = String(name).Lower();
    std::string found;
    while (const dirent* entry = ::readdir(entries.get())) {
        const std::string_view candidate = entry->d_name;
        if (!found.empty() && candidate >= found) continue;
        if (String(candidate).Lower() == wanted) found = candidate;
    }
    return found;
}

// One step down from `folder`, which is empty or ends with "/".
std::string Descend(const std::string& folder, const std::string& part) {
    if (part.empty() || Exists(folder + part)) return folder + part;
    const std::string other = FindNoCase(folder.empty() ? "." : folder, part);
    return folder + (other.empty() ? part : other);
}

std::string ResolveCase(const std::string& path) {
    std::string resolved;
    size_t start = 0;
    for (size_t at = path.find('/'); at != path.npos; at = path.find('/', start)) {
        resolved = Descend(resolved, path.substr(start, at - start)) + '/';
        start = at + 1;
    }
    return Descend(resolved, path.substr(start));
}

}  // namespace

std::string NativePath(const String& path) {
    std::string native = path.Utf8();
    if (native.find('\0') != native.npos) return {};
    for (char& unit : native) unit = unit == '\\' ? '/' : unit;
    return native.empty() || Exists(native) ? native : ResolveCase(native);
}

}  // namespace vxgui::core7
