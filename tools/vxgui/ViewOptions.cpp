#include "tools/vxgui/ViewOptions.h"

#include <CLI/CLI.hpp>

#include "tools/vxgui/Commands.h"

namespace vxgui::tool {

void AddViewOptions(CLI::App& app, ViewOptions& options) {
    app.add_option("SKIN", options.skin, kSkinHelp)->required();
    app.add_option("--item", options.item, "The item to show first, by its name or its section");
    app.add_option("--caption", options.caption, "Caption for all items, instead of their own")
        ->each([&options](const std::string&) { options.captioned = true; });
    app.add_option("--background", options.background,
                   "What stands behind the item: checks, a colour as '#RRGGBB', or a picture file");
    app.add_option("--zoom", options.zoom, "Screen pixels that a pixel takes each way, 1 to 32")
        ->check(CLI::Range(1, 32))
        ->capture_default_str();
    app.add_flag("--margins", options.margins, "Draw the margins over the item");
    app.add_option("--screenshot", options.screenshot,
                   "Write a PNG of the window and end; QT_QPA_PLATFORM=offscreen needs no display");
    app.footer(
        "The window reads the skin anew whenever its define file or a picture of it is saved. An "
        "edit with errors leaves the last good skin on the screen and shows what is wrong.\n\n"
        "Examples:\n"
        "  vxgui view skins/aurora/aurora.theme\n"
        "  vxgui view skins/porcelain/porcelain.uis --item Tab --zoom 8 --margins\n"
        "  vxgui view skins/aurora/aurora.theme --background '#204060' --caption Delete\n"
        "  vxgui view res:DefaultStyles:metallic\n\n"
        "Exit status: 0 when the window was closed, 1 when it can't be shown.");
}

std::vector<std::string> ArgumentsOf(const ViewOptions& options) {
    std::vector<std::string> arguments;
    const auto add = [&](const char* name, const std::string& value) {
        arguments.push_back(std::string(name) + "=" + value);
    };
    if (!options.item.empty()) add("--item", options.item);
    if (options.captioned) add("--caption", options.caption);
    if (!options.background.empty()) add("--background", options.background);
    if (options.zoom > 1) add("--zoom", std::to_string(options.zoom));
    if (options.margins) arguments.push_back("--margins");
    if (!options.screenshot.empty()) add("--screenshot", options.screenshot);
    arguments.insert(arguments.end(), {"--", options.skin});
    return arguments;
}

}  // namespace vxgui::tool
