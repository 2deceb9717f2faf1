#include "tools/vxgui/Skin.h"

#include "tools/vxgui/ToolError.h"

namespace vxgui::tool {
namespace {

const char* const kSetSection = "ThemeSet";

/// Gathers the lines of an error report.
class Report {
public:
    explicit Report(std::string path) : path_(std::move(path)) {}

    void Add(int32_t line, int32_t column, const String& text) {
        if (!lines_.empty()) lines_ += "\n";
        lines_ += path_;
        if (line > 0) lines_ += ":" + std::to_string(line) + ":" + std::to_string(column);
        lines_ += ": error: " + text.Utf8();
    }
    void Add(const core7::DefinePosition& at, const String& text) { Add(at.line, at.column, text); }
    void Throw() const { throw ToolError(lines_); }
    void ThrowIfAny() const {
        if (!lines_.empty()) Throw();
    }

private:
    std::string path_;
    std::string lines_;
};

bool HasSection(core7::DefineFile& file, const String& name) {
    for (const String& section : file.SectionNames()) {
        if (section.EqualsNoCase(name)) return true;
    }
    return false;
}

void Open(core7::DefineFile& file, const std::string& path, Report& report) {
    const bool opened = file.OpenFile(path);
    for (const core7::DefineProblem& problem : file.Problems()) {
        report.Add(problem.line, problem.column, problem.text);
    }
    if (!opened && file.Problems().empty()) report.Add(0, 0, "can't be read");
    report.ThrowIfAny();
    if (!HasSection(file, kSetSection)) {
        report.Add(1, 1,
                   "no section [ThemeSet]; a theme set begins with one that has the key Themes");
        report.Throw();
    }
}

// An item that names a picture must have got it.
void CheckPicture(core7::DefineFile& file, const String& section, const char* key, bool loaded,
                  Report& report) {
    const String name = file.GetString(section, key, "");
    if (name.empty() || loaded) return;
    const String folder = core7::ThePathService().TheFileSystem().GetParentFolderName(file.Path());
    const bool exists =
        core7::ThePathService().FileExists(core7::ThePathService().JoinPath({folder, name}));
    report.Add(
        file.PositionOf(section, key),
        "image \"" + name +
            (exists ? "\" is no picture that can be read: BMP, PNG, JPEG, GIF or TGA was expected"
                    : "\" is not there: a file in the folder of the skin was expected"));
}

void CheckPictures(const Skin& skin, Report& report) {
    const int32_t count = skin.set->ThemeItems()->Count();
    for (int32_t n = 1; n <= count; ++n) {
        const String section = NumberedSection("Theme_", n);
        const Ref<ThemeItem> item = skin.set->Item(section);
        if (!item) continue;
        CheckPicture(*skin.file, section, "Image", item->Image() != nullptr, report);
        CheckPicture(*skin.file, section, "GlyphImage", item->Glyph() != nullptr, report);
    }
}

// The section in which loading stopped: the one after the last item that was added.
core7::DefinePosition StoppedAt(const Skin& skin) {
    return skin.file->PositionOf(NumberedSection("Theme_", skin.set->ThemeItems()->Count() + 1));
}

}  // namespace

String Skin::NameOf(const String& section) const {
    return file->GetString(section, "Name", section);
}

Skin LoadSkin(const std::string& path) {
    Report report(path);
    Skin skin{path, core7::CreateDefineFile(), New<ThemeSet>()};
    Open(*skin.file, path, report);
    const String folder =
        core7::ThePathService().TheFileSystem().GetParentFolderName(skin.file->Path());
    try {
        ThemeSetFromDefine(skin.set, skin.file, folder);
    } catch (const Error& error) {
        report.Add(StoppedAt(skin), error.Description());
        report.Throw();
    }
    if (skin.set->ThemeItems()->Count() == 0) {
        report.Add(
            skin.file->PositionOf(kSetSection),
            "no items; the key Themes says how many sections [Theme_01], [Theme_02] ... there are");
    }
    CheckPictures(skin, report);
    report.ThrowIfAny();
    return skin;
}

Ref<ThemeItem> FindItem(const Skin& skin, const std::string& name) {
    std::string known;
    for (int32_t n = 1; n <= skin.set->ThemeItems()->Count(); ++n) {
        const String section = NumberedSection("Theme_", n);
        const String given = skin.NameOf(section);
        if (section.EqualsNoCase(name) || given.EqualsNoCase(name)) return skin.set->Item(section);
        known += (n > 1 ? ", " : "") + given.Utf8();
    }
    throw ToolError(skin.path + ": error: no item \"" + name + "\"; the items are " + known);
}

}  // namespace vxgui::tool
