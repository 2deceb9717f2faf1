#pragma once

#include <map>
#include <set>

#include "tests/support/ActedKernel.h"
#include "vxgui/frame/Services.h"

namespace vxgui::test {

/// A file system, modules and a desktop that exist in a test alone, and what was asked of them.
/// While one lives, it is what the apartment's services answer from.
class SkinWorld {
public:
    SkinWorld();
    ~SkinWorld();
    SkinWorld(const SkinWorld&) = delete;
    SkinWorld& operator=(const SkinWorld&) = delete;

    /// Adds a file, with its text where it is a define file.
    void AddFile(const std::string& path, const std::string& text = {}) { files[path] = text; }
    /// Adds a style module with the two texts of a style.
    void AddModule(const std::string& path, const std::string& style, const std::string& uis,
                   const std::string& taskbar);
    bool Exists(const std::string& path) const { return files.count(path) != 0; }
    /// The same as a question of the library's.
    bool Ask(const std::string& path) {
        sought.push_back(path);
        return Exists(path);
    }

    std::map<std::string, std::string> files;
    /// By "type/name"; they are in every module.
    std::map<std::string, std::string> resources;
    /// "type/name" of each resource that was asked for.
    std::vector<std::string> asked;
    /// Each path whose existence was asked for.
    std::vector<std::string> sought;
    std::u16string styleFile = u"C:/Windows/Luna.msstyles";
    std::u16string scheme;
    int32_t styleResult = 0;
    ActedKernel kernel;

private:
    kernel::Kernel* kernelBefore_;
    Services before_;
};

}  // namespace vxgui::test
