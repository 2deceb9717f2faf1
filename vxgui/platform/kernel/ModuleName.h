#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vxgui::kernel {

/// A module's name as it was given, ready to be compared and looked for. Both separators are
/// understood.
class ModuleName {
public:
    explicit ModuleName(std::string_view given);

    bool HasFolder() const { return path_.find('/') != std::string::npos; }
    /// What modules are compared by: lower case, without the ending ".dll".
    std::string Plain() const;
    /// The full path of the file, as far as there is one: of a name with a folder, that file and
    /// no other; of a bare name, the file beside this library, or else beside the program. The
    /// working folder and search paths play no part, so that a file that happens to lie about
    /// is never run. A name without an ending gets ".dll". A file that differs in letter case alone
    /// will do. Empty when there is no such file.
    std::string FindFile() const;

private:
    std::string path_;
};

/// The plain name of the file with this path.
std::string PlainNameOf(const std::string& path);

}  // namespace vxgui::kernel
