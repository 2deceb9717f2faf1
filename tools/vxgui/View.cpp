#include <CLI/CLI.hpp>
#include <filesystem>
#include <memory>

#include "tools/vxgui/Commands.h"
#include "tools/vxgui/ViewOptions.h"
#include "tools/vxgui/ViewerProgram.h"

namespace vxgui::tool {
namespace {

std::string ToolFolder() {
    std::error_code failed;
    return std::filesystem::read_symlink("/proc/self/exe", failed).parent_path().string();
}

}  // namespace

void AddView(CLI::App& app) {
    const auto options = std::make_shared<ViewOptions>();
    CLI::App* command = app.add_subcommand(
        "view", "Show the items of a skin as live controls, and read it anew when it is saved");
    AddViewOptions(*command, *options);
    command->callback([options] { RunViewer(ViewerPlaces(ToolFolder()), ArgumentsOf(*options)); });
}

}  // namespace vxgui::tool
