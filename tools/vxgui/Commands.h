#pragma once

#include <ostream>

namespace CLI {
class App;
}

namespace vxgui::tool {

/// What the commands say of a skin that is their argument.
constexpr const char* kSkinHelp =
    "Define file of a theme set, compiled skin, UIS file of a skin, or res:MODULE:STYLE";

// Each adds its subcommand to the tool's command line. What the subcommand reports goes to `out`;
// how far it has got goes to `progress`, as long as that is a terminal.
void AddAdjust(CLI::App& app, std::ostream& out, std::ostream& progress);
void AddCheck(CLI::App& app, std::ostream& out);
void AddCompile(CLI::App& app, std::ostream& out);
void AddCompletion(CLI::App& app, std::ostream& out);
void AddConvert(CLI::App& app, std::ostream& out, std::ostream& progress);
void AddEffect(CLI::App& app, std::ostream& out, std::ostream& progress);
void AddGallery(CLI::App& app, std::ostream& out);
void AddInfo(CLI::App& app, std::ostream& out);
void AddManual(CLI::App& app, std::ostream& out);
void AddPack(CLI::App& app, std::ostream& out);
void AddRender(CLI::App& app, std::ostream& out);
void AddUnpack(CLI::App& app, std::ostream& out);
void AddView(CLI::App& app);

}  // namespace vxgui::tool
