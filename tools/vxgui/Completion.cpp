#include <CLI/CLI.hpp>
#include <memory>

#include "tools/vxgui/CommandTable.h"
#include "tools/vxgui/Commands.h"
#include "tools/vxgui/ToolError.h"

namespace vxgui::tool {
namespace {

std::string Joined(const std::vector<std::string>& words, const char* between = " ") {
    std::string text;
    for (const std::string& word : words) text += (text.empty() ? "" : between) + word;
    return text;
}

std::vector<std::string> OptionNames(const Command& command) {
    std::vector<std::string> names;
    for (const CommandOption& option : command.options)
        names.insert(names.end(), option.names.begin(), option.names.end());
    return names;
}

std::vector<std::string> SubcommandNames(const std::vector<Command>& commands) {
    std::vector<std::string> names;
    for (size_t i = 1; i < commands.size(); ++i) names.push_back(commands[i].name);
    return names;
}

constexpr const char* kBashHead =
    "# bash completion of vxgui, written by `vxgui completion bash`\n"
    "_vxgui() {\n"
    "    local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}\n"
    "    local command='' word words=''\n"
    "    for word in \"${COMP_WORDS[@]:1:COMP_CWORD-1}\"; do\n"
    "        case \"$word\" in\n";

constexpr const char* kBashEnd =
    "        esac\n"
    "    fi\n"
    "    COMPREPLY=()\n"
    "    [ -z \"$words\" ] || COMPREPLY=($(compgen -W \"$words\" -- \"$current\"))\n"
    "}\n"
    "complete -o bashdefault -o default -F _vxgui vxgui\n";

void WriteBashCase(const std::string& pattern, const std::string& words, std::ostream& out) {
    out << "        " << pattern << ") words='" << words << "' ;;\n";
}

void WriteBashChoices(const Command& command, std::ostream& out) {
    for (const CommandOption& option : command.options) {
        for (const std::string& name : option.names) {
            if (option.choices.empty()) continue;
            WriteBashCase("'" + command.name + " " + name + "'", Joined(option.choices), out);
        }
    }
}

// Which words complete an option's value, an option or the subcommand; files complete the rest.
void WriteBash(const std::vector<Command>& commands, std::ostream& out) {
    const std::vector<std::string> names = SubcommandNames(commands);
    out << kBashHead << "        " << Joined(names, " | ") << ") command=$word; break ;;\n"
        << "        esac\n    done\n    case \"$command $before\" in\n";
    for (const Command& command : commands) WriteBashChoices(command, out);
    out << "    esac\n"
           "    if [ -z \"$words\" ]; then\n"
           "        case \"$command $current\" in\n";
    for (size_t i = 1; i < commands.size(); ++i)
        WriteBashCase("'" + commands[i].name + " '-*", Joined(OptionNames(commands[i])), out);
    WriteBashCase("' '*", Joined(names) + " " + Joined(OptionNames(commands[0])), out);
    out << kBashEnd;
}

// In single quotes, with what _arguments takes for its own made plain.
std::string ZshText(const std::string& text) {
    std::string quoted;
    for (const char c : text) {
        if (c == '\'') {
            quoted += "'\\''";
            continue;
        }
        if (c == '[' || c == ']' || c == ':' || c == '\\') quoted += '\\';
        quoted += c;
    }
    return quoted;
}

void WriteZshOption(const CommandOption& option, std::ostream& out) {
    for (const std::string& name : option.names) {
        out << " \\\n        '" << name << "[" << ZshText(option.help) << "]";
        if (!option.value.empty()) out << ":value:";
        if (!option.choices.empty())
            out << "(" << Joined(option.choices) << ")";
        else if (!option.value.empty())
            out << "_files";
        out << "'";
    }
}

constexpr const char* kZshHead =
    "#compdef vxgui\n"
    "# zsh completion of vxgui, written by `vxgui completion zsh`\n"
    "_vxgui() {\n"
    "    local -a commands=(\n";

constexpr const char* kZshChoice =
    "    )\n"
    "    if (( CURRENT == 2 )); then\n"
    "        _describe 'command' commands\n"
    "        return\n"
    "    fi\n"
    "    local command=$words[2]\n"
    "    shift words\n"
    "    (( CURRENT-- ))\n"
    "    case $command in\n";

void WriteZsh(const std::vector<Command>& commands, std::ostream& out) {
    out << kZshHead;
    for (size_t i = 1; i < commands.size(); ++i)
        out << "        '" << commands[i].name << ":" << ZshText(commands[i].help) << "'\n";
    out << kZshChoice;
    for (size_t i = 1; i < commands.size(); ++i) {
        out << "    " << commands[i].name << ") _arguments";
        for (const CommandOption& option : commands[i].options) WriteZshOption(option, out);
        out << " \\\n        '*:file:_files' ;;\n";
    }
    out << "    esac\n}\n_vxgui \"$@\"\n";
}

void WriteCompletion(CLI::App& app, const std::string& shell, std::ostream& out) {
    const std::vector<Command> commands = CommandsOf(app);
    if (shell == "bash") return WriteBash(commands, out);
    if (shell == "zsh") return WriteZsh(commands, out);
    throw UsageError("completion " + shell + ": bash or zsh was expected");
}

}  // namespace

void AddCompletion(CLI::App& app, std::ostream& out) {
    const auto shell = std::make_shared<std::string>();
    CLI::App* command =
        app.add_subcommand("completion", "Print what makes a shell complete the command line");
    command->add_option("SHELL", *shell, "bash or zsh")->required();
    command->footer(
        "Packages install both. Elsewhere:\n"
        "  vxgui completion bash > ~/.local/share/bash-completion/completions/vxgui\n"
        "  vxgui completion zsh > ~/.zfunc/_vxgui\n\n"
        "Example:\n  vxgui completion bash");
    command->callback([&app, shell, &out] { WriteCompletion(app, *shell, out); });
}

}  // namespace vxgui::tool
