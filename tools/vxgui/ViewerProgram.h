#pragma once

#include <string>
#include <vector>

namespace vxgui::tool {

/// Where the viewer's program may lie: beside the tool, or in libexec next to the tool's folder.
std::vector<std::string> ViewerPlaces(const std::string& toolFolder);

/// Becomes the viewer. When it is in none of the places, an exception says what is missing and how
/// to get it.
[[noreturn]] void RunViewer(const std::vector<std::string>& places,
                            const std::vector<std::string>& arguments);

}  // namespace vxgui::tool
