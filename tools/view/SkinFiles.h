#pragma once

#include <string>
#include <vector>

namespace vxgui::view {

/// The files that a skin is made of, as paths of the operating system, each once and in order.
/// Those that are named and not there are among them.
struct SkinFiles {
    std::vector<std::string> defines;  ///< define files, or the compiled skin or style module
    std::vector<std::string> pictures;
};

/// By the names in a define file, and in the taskbar's file that it names. A file that can't be
/// read is all that a skin is made of.
SkinFiles FilesOfSkin(const std::string& path);

}  // namespace vxgui::view
