#include <CLI/CLI.hpp>
#include <memory>
#include <set>

#include "tools/vxgui/Commands.h"
#include "tools/vxgui/ToolError.h"
#include "vxgui/theme/lint/CheckSkin.h"

namespace vxgui::tool {
namespace {

using lint::Finding;
using lint::Severity;

std::string Counted(size_t count, const char* what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

/// Prints findings, each once: a taskbar file may be given beside the skin that names it.
class Printer {
public:
    explicit Printer(std::ostream& out) : out_(out) {}

    void Print(const Finding& finding) {
        const std::string line = lint::Describe(finding).Utf8();
        if (!printed_.insert(line).second) return;
        ++(finding.severity == Severity::Error ? errors_ : warnings_);
        out_ << line << "\n";
    }
    void PrintSummary() const {
        const std::string summary =
            Counted(errors_, "error") + ", " + Counted(warnings_, "warning");
        if (errors_ > 0) throw ToolError(summary);
        out_ << (warnings_ > 0 ? summary : "no problems") << "\n";
    }

private:
    std::ostream& out_;
    std::set<std::string> printed_;
    size_t errors_ = 0;
    size_t warnings_ = 0;
};

void Check(const std::vector<std::string>& files, std::ostream& out) {
    Printer printer(out);
    for (const std::string& file : files)
        for (const Finding& finding : lint::CheckSkin(file)) printer.Print(finding);
    printer.PrintSummary();
}

}  // namespace

void AddCheck(CLI::App& app, std::ostream& out) {
    const auto files = std::make_shared<std::vector<std::string>>();
    CLI::App* command = app.add_subcommand(
        "check", "Tell what is wrong with skins, a line for each: file:line:column: error: text");
    command
        ->add_option("FILE", *files,
                     "Define file of a theme set, UIS file of a skin (its taskbar file is checked "
                     "with it), taskbar file, or compiled skin")
        ->required();
    command->footer(
        "An error can't be read, can't be loaded or never shows; a warning has another effect than "
        "was meant, or none.\n\n"
        "Examples:\n"
        "  vxgui check skins/aurora/aurora.theme\n"
        "  vxgui check skins/porcelain/porcelain.uis skins/aurora/aurora.theme\n\n"
        "Exit status: 1 when there are errors, else 0.");
    command->callback([files, &out] { Check(*files, out); });
}

}  // namespace vxgui::tool
