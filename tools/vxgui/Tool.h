#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "tools/vxgui/ToolError.h"

namespace CLI {
class App;
}

namespace vxgui::tool {

/// Runs the tool with its arguments, without the program's name, and answers its exit status: 0
/// when all is well, 1 for an error in what it was given, 2 for a wrong command line. Errors are
/// lines on `errors`; the help goes to `out`.
int RunTool(std::vector<std::string> arguments, std::ostream& out, std::ostream& errors);

/// Gives an empty command line the subcommands and the help of the tool.
void AddCommands(CLI::App& app, std::ostream& out, std::ostream& errors);

}  // namespace vxgui::tool
