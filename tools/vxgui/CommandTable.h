#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace vxgui::tool {

/// An option of the tool, as `--help` tells it.
struct CommandOption {
    std::vector<std::string> names;  ///< with their dashes, the long ones last; none of an argument
    std::string value;               ///< what stands for its value; empty for a flag
    std::vector<std::string> choices;  ///< the values that it takes, where they are few
    std::string help;
    bool required = false;
};

/// A subcommand, or the tool itself.
struct Command {
    std::string name;
    std::string help;
    std::string footer;
    std::vector<CommandOption> arguments;
    std::vector<CommandOption> options;
};

/// The tool itself first, then each of its subcommands in the order of the help.
std::vector<Command> CommandsOf(CLI::App& app);

}  // namespace vxgui::tool
