#include <filesystem>

#include "vxgui/platform/core7.h"

namespace vxgui::core7 {
namespace {

constexpr char16_t kSeparator = u'/';

bool IsSeparator(char16_t unit) { return unit == u'/' || unit == u'\\'; }

// The path with "/" alone, each run of separators one of them.
std::u16string Normal(const String& path) {
    std::u16string normal;
    for (const char16_t unit : path.view()) {
        if (!IsSeparator(unit))
            normal += unit;
        else if (!normal.ends_with(kSeparator))
            normal += kSeparator;
    }
    return normal;
}

bool IsAbsolute(const String& path) {
    return (!path.empty() && IsSeparator(path[0])) || (path.size() > 1 && path[1] == u':');
}

// `name`, which is not empty, below `folder`, with one separator between them.
std::u16string Below(std::u16string folder, std::u16string_view name) {
    if (!folder.empty() && !folder.ends_with(kSeparator)) folder += kSeparator;
    if (!folder.empty() && name.starts_with(kSeparator)) name.remove_prefix(1);
    return folder.append(name);
}

class PlainFileSystem final : public FileSystem {
public:
    String BuildPath(const String& folder, const String& name) override {
        return name.empty() ? Normal(folder) : Below(Normal(folder), Normal(name));
    }

    bool FileExists(const String& path) override {
        std::error_code ignored;
        return std::filesystem::is_regular_file(NativePath(path), ignored);
    }

    String GetParentFolderName(const String& path) override {
        std::u16string normal = Normal(path);
        if (normal.size() > 1 && normal.ends_with(kSeparator)) normal.pop_back();
        const size_t at = normal.rfind(kSeparator);
        if (at == normal.npos || normal.size() == 1) return {};
        return normal.substr(0, at == 0 ? 1 : at);
    }

    String GetExtensionName(const String& path) override {
        const std::u16string normal = Normal(path);
        const size_t point = normal.rfind(u'.');
        const bool inLastPart =
            point != normal.npos && normal.find(kSeparator, point) == normal.npos;
        return inLastPart ? normal.substr(point + 1) : std::u16string();
    }
};

class PlainPathService final : public PathService {
public:
    String JoinPath(const std::vector<String>& parts) override {
        std::u16string path;
        for (const String& part : parts) {
            if (part.empty()) continue;
            path = IsAbsolute(part) ? Normal(part) : Below(path, Normal(part));
        }
        return path;
    }

    bool FileExists(const String& path) override { return files_->FileExists(path); }

    bool PathExists(const String& path) override {
        std::error_code ignored;
        return std::filesystem::exists(NativePath(path), ignored);
    }

    FileSystem& TheFileSystem() override { return *files_; }

private:
    const Ref<PlainFileSystem> files_ = New<PlainFileSystem>();
};

}  // namespace

PathService& ThePathService() {
    thread_local const Ref<PlainPathService> service = New<PlainPathService>();
    return *service;
}

}  // namespace vxgui::core7
