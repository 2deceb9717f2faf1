#include "tools/vxgui/CommandTable.h"

#include <CLI/CLI.hpp>
#include <sstream>

namespace vxgui::tool {
namespace {

// The words of "{one,two}"; none of any other name of a type.
std::vector<std::string> ChoicesIn(const std::string& type) {
    std::vector<std::string> choices;
    if (type.size() < 2 || type.front() != '{' || type.back() != '}') return choices;
    std::istringstream words(type.substr(1, type.size() - 2));
    for (std::string word; std::getline(words, word, ',');) choices.push_back(word);
    return choices;
}

CommandOption Described(const CLI::Option& option) {
    CommandOption described;
    for (const std::string& name : option.get_snames()) described.names.push_back("-" + name);
    for (const std::string& name : option.get_lnames()) described.names.push_back("--" + name);
    if (described.names.empty()) {
        described.value = option.get_name(true);
    } else if (option.get_items_expected_max() != 0) {
        described.value = option.get_type_name();
    }
    described.choices = ChoicesIn(option.get_type_name());
    described.help = option.get_description();
    described.required = option.get_required();
    return described;
}

Command Described(const CLI::App& app) {
    Command command{app.get_name(), app.get_description(), app.get_footer(), {}, {}};
    for (const CLI::Option* option : app.get_options()) {
        CommandOption described = Described(*option);
        (described.names.empty() ? command.arguments : command.options)
            .push_back(std::move(described));
    }
    return command;
}

}  // namespace

std::vector<Command> CommandsOf(CLI::App& app) {
    std::vector<Command> commands{Described(app)};
    for (const CLI::App* each : app.get_subcommands([](CLI::App*) { return true; }))
        commands.push_back(Described(*each));
    return commands;
}

}  // namespace vxgui::tool
