#pragma once

#include <string>

namespace vxgui::view {

/// Writes a style of a module, "res:MODULE:STYLE", as a skin in a folder: its two define files and
/// the pictures that they name. Answers the path of the UIS file. A `ToolError` when the module
/// isn't there or a file can't be written.
std::string WriteStyle(const std::string& reference, const std::string& folder);

}  // namespace vxgui::view
