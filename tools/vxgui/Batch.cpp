#include "tools/vxgui/Batch.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <system_error>

#include "tools/vxgui/PictureFile.h"
#include "tools/vxgui/Progress.h"
#include "tools/vxgui/StraightSurface.h"
#include "tools/vxgui/ToolError.h"
#include "vxgui/theme/skin/SkinError.h"

namespace vxgui::tool {
namespace {

constexpr const char* kForms = "bmp, png, tga or adib was expected";

std::string WithoutPoint(const std::string& ending) {
    return EndingOf("x." + (ending.starts_with(".") ? ending.substr(1) : ending));
}

PictureKind FormOf(const Batch& batch) {
    if (batch.ending.empty() && batch.inputs.size() > 1) {
        throw UsageError("several files go to a folder: -o FOLDER --to ENDING was expected");
    }
    const std::string ending =
        batch.ending.empty() ? EndingOf(batch.output) : WithoutPoint(batch.ending);
    if (const auto form = tool::FormOf(ending)) return *form;
    throw UsageError(batch.ending.empty() ? "-o " + batch.output + ": a name that ends in " + kForms
                                          : "--to " + batch.ending + ": " + kForms);
}

std::string InFolder(const Batch& batch, const std::string& input) {
    std::filesystem::path name = std::filesystem::path(input).stem();
    name += "." + WithoutPoint(batch.ending);
    return (std::filesystem::path(batch.output) / name).string();
}

// Where each file goes, by its name.
std::map<std::string, std::string> OutputsOf(const Batch& batch) {
    std::map<std::string, std::string> outputs, inputs;
    for (const std::string& input : batch.inputs) {
        const std::string output = batch.ending.empty() ? batch.output : InFolder(batch, input);
        const auto [other, first] = inputs.emplace(output, input);
        if (!first) {
            throw UsageError(other->second + " and " + input + " would both become " + output +
                             ": files of different names were expected");
        }
        outputs.emplace(input, output);
    }
    return outputs;
}

void MakeFolder(const std::string& path) {
    std::error_code error;
    std::filesystem::create_directories(path, error);
    if (error) Fail(path, "the folder can't be made: " + error.message());
}

Ref<cAlphaDIBSection> Changed(const cAlphaDIBSection& surface, const Change& change,
                              PictureKind form, const std::string& path) {
    Ref<cAlphaDIBSection> copy = StraightCopy(surface, path);
    change(*copy);
    const bool premultiplied = surface.Flags() & cAlphaDIBSection::kPremultiplied;
    if (premultiplied && form == PictureKind::Surface) copy->PreMultiplyAlpha();
    return copy;
}

std::string MessageOf(const std::string& file, const std::exception& error) {
    const bool named = dynamic_cast<const ToolError*>(&error) != nullptr ||
                       dynamic_cast<const SkinError*>(&error) != nullptr;
    return (named ? "" : file + ": error: ") + error.what();
}

}  // namespace

void AddBatchOptions(CLI::App& command, Batch& batch) {
    command
        .add_option("IN", batch.inputs,
                    "BMP, PNG, JPEG, GIF, TIFF or TGA file, serialized surface, or property bag "
                    "with a surface")
        ->required();
    command
        .add_option("-o,--output", batch.output,
                    "File to write, by whose ending .bmp, .png, .tga or .adib (a serialized "
                    "surface) its form is chosen; with --to, a folder")
        ->required();
    command.add_option("--to", batch.ending, "Ending of the files in the folder")
        ->type_name("{bmp,png,tga,adib}");
}

void ForEachFile(const std::vector<std::string>& files,
                 const std::function<void(const std::string& file)>& work) {
    std::string lines;
    for (const std::string& file : files) {
        try {
            work(file);
        } catch (const std::exception& error) {
            lines += (lines.empty() ? "" : "\n") + MessageOf(file, error);
        }
    }
    if (!lines.empty()) throw ToolError(lines);
}

void RunBatch(const Batch& batch, const Change& change, std::ostream& out, std::ostream& progress) {
    const PictureKind form = FormOf(batch);
    const std::map<std::string, std::string> outputs = OutputsOf(batch);
    if (!batch.ending.empty()) MakeFolder(batch.output);
    const bool live = batch.inputs.size() > 1 && IsTerminal(progress);
    Progress line(progress, batch.inputs.size(), live);
    ForEachFile(batch.inputs, [&](const std::string& input) {
        line.Next(input);
        const std::string& output = outputs.at(input);
        Ref<cAlphaDIBSection> surface = ReadPicture(input);
        if (change) surface = Changed(*surface, change, form, input);
        WritePicture(*surface, form, output);
        line.Clear();
        out << output << ": " << surface->Width() << "x" << std::abs(surface->Height()) << "\n";
    });
}

}  // namespace vxgui::tool
