#include <CLI/CLI.hpp>
#include <memory>

#include "tools/vxgui/Commands.h"
#include "tools/vxgui/ToolError.h"
#include "vxgui/theme/CompiledSkin.h"
#include "vxgui/theme/skin/Skin.h"

namespace vxgui::tool {
namespace {

struct Options {
    std::string skin;
    std::string output;
};

// What the tool itself reads of an item beyond what the library does.
String NotesOf(const Skin& skin) {
    const Ref<core7::DefineEditor> notes = core7::CreateDefineEditor();
    for (const SkinItem& item : skin.items) {
        if (!item.name.EqualsNoCase(item.section))
            notes->SetString(item.section, "Name", item.name);
        if (!item.caption.empty()) notes->SetString(item.section, "Caption", item.caption);
    }
    return notes->Text();
}

void Compile(const Options& options, std::ostream& out) {
    const Skin skin = LoadSkin(options.skin);
    if (!skin.set) Fail(options.skin, "no theme set; only these can be compiled");
    const ByteArray file = BytesOfCompiledSkin({skin.set, NotesOf(skin)});
    if (!core7::WriteWholeFile(options.output, file.data(), file.size()))
        FailBySystem(options.output, "can't be written");
    out << options.output << ": " << skin.items.size() << " items, " << file.size() << " bytes\n";
}

}  // namespace

void AddCompile(CLI::App& app, std::ostream& out) {
    const auto options = std::make_shared<Options>();
    CLI::App* command =
        app.add_subcommand("compile", "Put a theme set and its pictures into one file");
    command->add_option("THEME", options->skin, "Define file of a theme set")->required();
    command->add_option("-o,--output", options->output, "Compiled skin to write")->required();
    command->footer(
        "Example:\n  vxgui compile skins/aurora/aurora.theme -o aurora.vxs\n\n"
        "A host loads either file by the same call.");
    command->callback([options, &out] { Compile(*options, out); });
}

}  // namespace vxgui::tool
