#include "tools/vxgui/Tool.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "tools/vxgui/Commands.h"
#include "vxgui/frame/Version.h"
#include "vxgui/theme/SkinConfinement.h"
#include "vxgui/theme/skin/SkinError.h"

namespace vxgui::tool {
namespace {

constexpr const char* kExamples =
    "Examples:\n"
    "  vxgui gallery skins/aurora/aurora.theme -o gallery.png\n"
    "  vxgui gallery skins/porcelain/porcelain.uis --desktop -o desktop.png\n"
    "  vxgui render skins/aurora/aurora.theme --item PushButton --state MouseOver --size 120x34 "
    "-o button.png\n"
    "  vxgui view skins/aurora/aurora.theme\n"
    "  vxgui check skins/aurora/aurora.theme\n"
    "  vxgui compile skins/aurora/aurora.theme -o aurora.vxs\n"
    "  vxgui pack styles -o DefaultStyles.dll\n"
    "  vxgui convert skins/aurora/button.tga -o button.png\n"
    "  vxgui adjust skins/aurora/*.tga -o tinted --to tga --hue 140\n"
    "  vxgui effect photo.jpg -o soft.png --blur 6\n"
    "  vxgui info skins/aurora/button.tga\n"
    "\n"
    "Exit status: 0 when all is well, 1 for an error in a file, 2 for a wrong command line.";

constexpr int kFileError = 1;
constexpr int kWrongCommandLine = 2;

int Parse(CLI::App& app, std::vector<std::string> arguments, std::ostream& out,
          std::ostream& errors) {
    std::reverse(arguments.begin(), arguments.end());  // as the parser takes them
    try {
        app.parse(std::move(arguments));
        return 0;
    } catch (const CLI::ParseError& error) {
        return app.exit(error, out, errors) == 0 ? 0 : kWrongCommandLine;
    } catch (const UsageError& error) {
        errors << "vxgui: " << error.what() << "\n";
        return kWrongCommandLine;
    } catch (const ToolError& error) {
        errors << error.what() << "\n";
        return kFileError;
    } catch (const SkinError& error) {
        errors << error.what() << "\n";
        return kFileError;
    } catch (const std::exception& error) {
        errors << "vxgui: " << error.what() << "\n";
        return kFileError;
    }
}

std::string VersionText() {
    const int32_t version = LibraryVersion();
    return "vxgui " + std::to_string(version / 100) + "." + std::to_string(version % 100);
}

// Skins come from anywhere. Whoever calls the tool's parts gets his own choice back.
class Confinement {
public:
    Confinement() : before_(AreSkinsConfined()) { ConfineSkins(true); }
    ~Confinement() { ConfineSkins(before_); }
    Confinement(const Confinement&) = delete;
    Confinement& operator=(const Confinement&) = delete;

private:
    const bool before_;
};

}  // namespace

void AddCommands(CLI::App& app, std::ostream& out, std::ostream& errors) {
    app.footer(kExamples);
    app.set_version_flag("--version", VersionText(), "Print the version and exit");
    app.require_subcommand(1);
    app.fallthrough();
    app.add_flag_callback(
        "--any-folder", [] { ConfineSkins(false); },
        "Let skins name files outside their own folders; else these count as missing. For skins "
        "that you trust");
    AddAdjust(app, out, errors);
    AddCheck(app, out);
    AddCompile(app, out);
    AddCompletion(app, out);
    AddConvert(app, out, errors);
    AddEffect(app, out, errors);
    AddGallery(app, out);
    AddInfo(app, out);
    AddManual(app, out);
    AddPack(app, out);
    AddRender(app, out);
    AddUnpack(app, out);
    AddView(app);
}

int RunTool(std::vector<std::string> arguments, std::ostream& out, std::ostream& errors) {
    CLI::App app("Paints and checks skins, and converts their pictures.", "vxgui");
    const Confinement confinement;
    AddCommands(app, out, errors);
    return Parse(app, std::move(arguments), out, errors);
}

}  // namespace vxgui::tool
