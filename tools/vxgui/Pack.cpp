#include <CLI/CLI.hpp>
#include <algorithm>
#include <deque>
#include <filesystem>
#include <memory>

#include "tools/vxgui/Commands.h"
#include "tools/vxgui/ToolError.h"
#include "vxgui/base/Error.h"
#include "vxgui/platform/core7.h"

namespace vxgui::tool {
namespace {

namespace fs = std::filesystem;

struct Options {
    std::string folder;
    std::string output;
    bool wide = false;
};

/// The files of a module to be: a folder for each type, and in it a file for each resource.
class Contents {
public:
    explicit Contents(const std::string& folder) {
        for (const fs::path& type : Entries(folder)) {
            if (!fs::is_directory(type)) {
                throw ToolError(type.string() +
                                ": error: lies in no folder; a folder that names the type of "
                                "its files was expected, such as TxtFiles or Image");
            }
            for (const fs::path& file : Entries(type)) Add(type, file);
        }
        if (resources_.empty()) throw ToolError(folder + ": error: holds nothing to pack");
    }

    const std::vector<kernel::ModuleResource>& Resources() const { return resources_; }

private:
    // In the order of their names; hidden ones are not the skin's.
    static std::vector<fs::path> Entries(const fs::path& folder) {
        std::error_code failed;
        std::vector<fs::path> entries;
        for (const auto& entry : fs::directory_iterator(folder, failed)) {
            if (!entry.path().filename().string().starts_with('.')) entries.push_back(entry.path());
        }
        if (failed) throw ToolError(folder.string() + ": error: " + failed.message());
        std::sort(entries.begin(), entries.end());
        return entries;
    }

    void Add(const fs::path& type, const fs::path& file) {
        ByteArray& bytes = files_.emplace_back();
        if (!core7::ReadWholeFile(file.string(), &bytes))
            throw ToolError(file.string() + ": error: can't be read as a file");
        resources_.push_back(
            {type.filename().string(), file.filename().string(), {bytes.data(), bytes.size()}});
    }

    std::deque<ByteArray> files_;  // where the resources' bytes lie
    std::vector<kernel::ModuleResource> resources_;
};

ByteArray Write(const Contents& contents, const Options& options) {
    try {
        return kernel::WriteResourceModule(contents.Resources(), options.wide);
    } catch (const Error& error) {
        throw ToolError(options.folder + ": error: " + error.Description().Utf8());
    }
}

void Pack(const Options& options, std::ostream& out) {
    const Contents contents(options.folder);
    const ByteArray file = Write(contents, options);
    if (!core7::WriteWholeFile(options.output, file.data(), file.size()))
        FailBySystem(options.output, "can't be written");
    out << options.output << ": " << contents.Resources().size() << " resources, " << file.size()
        << " bytes\n";
}

}  // namespace

void AddPack(CLI::App& app, std::ostream& out) {
    const auto options = std::make_shared<Options>();
    CLI::App* command = app.add_subcommand("pack", "Make a style module of a folder of files");
    command
        ->add_option("DIR", options->folder,
                     "Folder that holds a folder for each type of resource, TxtFiles and Image, "
                     "and in it a file for each resource")
        ->required();
    command->add_option("-o,--output", options->output, "Module to write")->required();
    command->add_flag("--64", options->wide, "Make a module for 64-bit programs");
    command->footer("Example:\n  vxgui pack styles -o DefaultStyles.dll");
    command->callback([options, &out] { Pack(*options, out); });
}

}  // namespace vxgui::tool
