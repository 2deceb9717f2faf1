#include "tools/vxgui/SkinReport.h"

#include "tools/vxgui/ToolError.h"

namespace vxgui::tool {

void SkinReport::Add(const String& path, core7::DefinePosition at, const String& text) {
    if (!lines_.empty()) lines_ += "\n";
    lines_ += path.Utf8();
    if (at.line > 0) lines_ += ":" + std::to_string(at.line) + ":" + std::to_string(at.column);
    lines_ += ": error: " + text.Utf8();
}

void SkinReport::AddProblems(const core7::DefineFile& file) {
    for (const core7::DefineProblem& problem : file.Problems())
        Add(file.Path(), {problem.line, problem.column}, problem.text);
}

void SkinReport::Throw() const { throw ToolError(lines_); }

void SkinReport::ThrowIfAny() const {
    if (!lines_.empty()) Throw();
}

void CheckPicture(const String& path, core7::DefinePosition at, const String& folder,
                  const String& name, bool loaded, SkinReport& report) {
    if (name.empty() || loaded) return;
    core7::PathService& paths = core7::ThePathService();
    const bool exists = paths.FileExists(paths.JoinPath({folder, name}));
    report.Add(
        path, at,
        "image \"" + name +
            (exists ? "\" is no picture that can be read: BMP, PNG, JPEG, GIF or TGA was expected"
                    : "\" is not there: a file in the folder of the skin was expected"));
}

}  // namespace vxgui::tool
