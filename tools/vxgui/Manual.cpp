#include <CLI/CLI.hpp>

#include "tools/vxgui/CommandTable.h"
#include "tools/vxgui/Commands.h"
#include "vxgui/frame/Version.h"

namespace vxgui::tool {
namespace {

// A line of a manual page: no character is a request, and dashes are those that users type.
std::string Roff(const std::string& text) {
    std::string line;
    for (const char c : text) {
        if (c == '\\')
            line += "\\e";
        else if (c == '-')
            line += "\\-";
        else
            line += c;
    }
    const bool request = !line.empty() && (line[0] == '.' || line[0] == '\'');
    return request ? "\\&" + line : line;
}

std::string Capitals(std::string text) {
    for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

void WriteOption(const CommandOption& option, std::ostream& out) {
    out << ".TP\n";
    std::string names;
    for (const std::string& name : option.names)
        names += (names.empty() ? "\\fB" : ", \\fB") + Roff(name) + "\\fR";
    if (!option.value.empty())
        names += (names.empty() ? "\\fI" : " \\fI") + Roff(option.value) + "\\fR";
    out << names << "\n" << Roff(option.help) << (option.required ? "; required\n" : "\n");
}

// The examples keep their lines.
void WriteFooter(const std::string& footer, std::ostream& out) {
    if (footer.empty()) return;
    out << ".PP\n.nf\n";
    std::istringstream lines(footer);
    for (std::string line; std::getline(lines, line);) out << Roff(line) << "\n";
    out << ".fi\n";
}

void WriteCommand(const Command& command, std::ostream& out) {
    out << ".SH " << Capitals(command.name) << "\n.B vxgui " << command.name << "\n";
    for (const CommandOption& argument : command.arguments)
        out << ".I " << Roff(argument.value) << "\n";
    out << ".RI [ options ]\n.PP\n" << Roff(command.help) << ".\n";
    for (const CommandOption& argument : command.arguments) WriteOption(argument, out);
    for (const CommandOption& option : command.options) WriteOption(option, out);
    WriteFooter(command.footer, out);
}

void WriteManual(CLI::App& app, std::ostream& out) {
    const std::vector<Command> commands = CommandsOf(app);
    const std::string version =
        std::to_string(LibraryVersion() / 100) + "." + std::to_string(LibraryVersion() % 100);
    out << ".TH VXGUI 1 \"\" \"VxGUI " << version
        << "\" \"User commands\"\n"
           ".SH NAME\nvxgui \\- paint and check skins, and convert their pictures\n"
           ".SH SYNOPSIS\n.B vxgui\n.I command\n.RI [ options ]\n"
           ".SH DESCRIPTION\n"
        << Roff(commands[0].help) << "\n";
    for (const CommandOption& option : commands[0].options) WriteOption(option, out);
    WriteFooter(commands[0].footer, out);
    for (size_t i = 1; i < commands.size(); ++i) WriteCommand(commands[i], out);
}

}  // namespace

void AddManual(CLI::App& app, std::ostream& out) {
    CLI::App* command = app.add_subcommand("manual", "Print the manual page, as man reads it");
    command->footer("Example:\n  vxgui manual > vxgui.1 && man ./vxgui.1");
    command->callback([&app, &out] { WriteManual(app, out); });
}

}  // namespace vxgui::tool
