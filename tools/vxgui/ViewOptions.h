#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace vxgui::tool {

/// The command line of the viewer.
struct ViewOptions {
    std::string skin;
    std::string item;        ///< shown first; the skin's first when empty
    std::string background;  ///< checks, a colour or a picture file
    std::string caption;
    std::string screenshot;  ///< a PNG of the window to write, instead of staying open
    int zoom = 1;
    bool captioned = false;  ///< `caption` was given
    bool margins = false;
};

/// Adds the options, their help and examples to a command line.
void AddViewOptions(CLI::App& app, ViewOptions& options);

/// A command line that says the same.
std::vector<std::string> ArgumentsOf(const ViewOptions& options);

}  // namespace vxgui::tool
