#include "vxgui/theme/skin/SkinReport.h"

#include "vxgui/theme/SkinConfinement.h"

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
    const String file = paths.JoinPath({folder, name});
    const char* const why =
        !paths.FileExists(file) ? "is not there: a file in the folder of the skin was expected"
        : !MaySkinRead(folder, file)
            ? "lies outside the folder of the skin, which is not read"
            : "is no picture that can be read: BMP, PNG, JPEG, GIF or TGA was expected";
    report.Add(path, at, "image \"" + name + "\" " + why);
}

}  // namespace vxgui
