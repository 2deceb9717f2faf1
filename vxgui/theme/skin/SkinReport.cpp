#include "vxgui/theme/skin/SkinReport.h"

namespace vxgui {

void SkinReport::Add(const String& path, core7::DefinePosition at, const String& text) {
    if (!lines_.empty()) lines_ += "\n";
    lines_ += path;
    if (at.line > 0) lines_ += ":" + String::FromInt(at.line) + ":" + String::FromInt(at.column);
    lines_ += ": error: " + text;
}

void SkinReport::AddProblems(const core7::DefineFile& file) {
    for (const core7::DefineProblem& problem : file.Problems())
        Add(file.Path(), {problem.line, problem.column}, problem.text);
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

}  // namespace vxgui
