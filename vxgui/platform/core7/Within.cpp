#include <algorithm>
#include <filesystem>

#include "vxgui/platform/core7.h"

namespace vxgui::core7 {
namespace {

namespace fs = std::filesystem;

fs::path Real(const String& path) {
    const std::string native = NativePath(path);
    return fs::weakly_canonical(fs::absolute(native.empty() ? "." : native));
}

}  // namespace

bool IsWithin(const String& path, const String& folder) {
    try {
        const fs::path inner = Real(path), outer = Real(folder);
        return std::mismatch(outer.begin(), outer.end(), inner.begin(), inner.end()).first ==
               outer.end();
    } catch (const fs::filesystem_error&) {  // links in a ring, or a folder that can't be looked at
        return false;
    }
}

}  // namespace vxgui::core7
