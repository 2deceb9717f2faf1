#pragma once

#include <string>

namespace vxgui::view {

/// A folder among the system's temporary files for the length of a scope.
class ScratchFolder {
public:
    /// A `ToolError` when it can't be made.
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::string& Path() const { return path_; }

private:
    std::string path_;
};

}  // namespace vxgui::view
