#pragma once

#include <string>

namespace vxgui::kernel {

/// The full path of this library, or of the program that it is linked into.
std::string OwnPath();
/// The full path of the running program.
std::string ProgramPath();
/// What stands before the last separator, the separator included; empty when there is none.
std::string FolderOf(const std::string& path);

}  // namespace vxgui::kernel
