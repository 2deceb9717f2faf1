#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <memory>
#include <set>

#include "tools/vxgui/Commands.h"
#include "tools/vxgui/ToolError.h"
#include "vxgui/platform/core7.h"

namespace vxgui::tool {
namespace {

namespace fs = std::filesystem;

struct Options {
    std::string module;
    std::string folder;
};

// A name from a module becomes a file only where it can't lead out of the folder.
bool IsFileName(const String& name) {
    return !name.empty() && name != "." && name != ".." &&
           std::none_of(name.view().begin(), name.view().end(), [](char16_t unit) {
               return unit < u' ' || unit == u'/' || unit == u'\\' || unit == u':';
           });
}

void Check(const std::string& module, const std::vector<kernel::ModuleResource>& resources,
           size_t fileSize) {
    if (resources.empty()) throw ToolError(module + ": error: no module with resources");
    size_t sum = 0;
    for (const auto& [type, name, block] : resources) {
        sum += block.size;
        if (IsFileName(type) && IsFileName(name)) continue;
        throw ToolError(module + ": error: the resource \"" + type.Utf8() + "\" \"" + name.Utf8() +
                        "\" has a name that no file can have");
    }
    // Resources that share their bytes could fill a disk from a small file.
    if (sum > fileSize)
        throw ToolError(module + ": error: damaged, since its resources are larger than itself");
}

void WriteFile(const fs::path& path, const kernel::ResourceBlock& block) {
    std::error_code failed;
    fs::create_directories(path.parent_path(), failed);
    if (failed) Fail(path.string(), "can't be written: " + failed.message());
    if (!core7::WriteWholeFile(path.string(), block.data, block.size))
        FailBySystem(path.string(), "can't be written");
}

void Unpack(const Options& options, std::ostream& out) {
    ByteArray file;
    if (!core7::ReadWholeFile(options.module, &file))
        throw ToolError(options.module + ": error: can't be read");
    const auto resources = kernel::ResourcesOfFile({file.data(), file.size()});
    Check(options.module, resources, file.size());
    std::set<fs::path> written;  // of names that stand twice the first counts
    for (const auto& [type, name, block] : resources) {
        const fs::path path = fs::path(options.folder) / type.Utf8() / name.Utf8();
        if (written.insert(path).second) WriteFile(path, block);
    }
    out << options.folder << ": " << written.size() << " files\n";
}

}  // namespace

void AddUnpack(CLI::App& app, std::ostream& out) {
    const auto options = std::make_shared<Options>();
    CLI::App* command =
        app.add_subcommand("unpack", "Write the resources of a style module to files");
    command->add_option("MODULE", options->module, "Module to read; it is not run")->required();
    command
        ->add_option("-o,--output", options->folder,
                     "Folder to write to: a folder for each type, in it a file for each resource")
        ->required();
    command->footer("Example:\n  vxgui unpack DefaultStyles.dll -o styles");
    command->callback([options, &out] { Unpack(*options, out); });
}

}  // namespace vxgui::tool
