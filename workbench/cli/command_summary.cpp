#include "workbench/cli/command_summary.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstddef>

namespace workbench {
namespace {

std::string inOneLine(std::string text) {
    std::ranges::replace(text, '\n', ' ');
    return text;
}

/// The words between braces, as the check for one of several words describes itself.
std::vector<std::string> choicesIn(const std::string& type) {
    const std::size_t begin = type.find('{');
    const std::size_t end = type.find('}');
    if (begin == std::string::npos || end == std::string::npos) {
        return {};
    }
    return CLI::detail::split(type.substr(begin + 1, end - begin - 1), ',');
}

bool isRepeated(const CLI::Option& option) {
    return option.get_items_expected_max() >= CLI::detail::expected_max_vector_size;
}

std::vector<std::string> namesOf(const CLI::Option& option) {
    std::vector<std::string> names;
    for (const std::string& each : option.get_lnames()) {
        names.push_back("--" + each);
    }
    for (const std::string& each : option.get_snames()) {
        names.push_back("-" + each);
    }
    if (names.empty()) {
        names.push_back(option.get_single_name());
    }
    return names;
}

/// What stands for the value, without the checks that follow after a colon: "COLUMN[:desc]" has one
/// of its own.
std::string valueName(const std::string& type) {
    int brackets = 0;
    std::size_t end = 0;
    for (; end < type.size() && (type[end] != ':' || brackets > 0); ++end) {
        brackets += type[end] == '[' ? 1 : type[end] == ']' ? -1 : 0;
    }
    return end == 0 || type.substr(0, end) == "TEXT" ? "VALUE" : type.substr(0, end);
}

OptionSummary summarize(const CLI::Option& option) {
    const std::string type = option.get_type_name();
    OptionSummary summary;
    summary.names = namesOf(option);
    summary.choices = choicesIn(type);
    summary.description = inOneLine(option.get_description());
    summary.byDefault = option.get_default_str();
    summary.required = option.get_required();
    summary.repeated = isRepeated(option);
    if (option.get_items_expected_max() > 0) {
        summary.value = valueName(type);
    }
    return summary;
}

}  // namespace

CommandSummary summarize(const CLI::App& command) {
    CommandSummary summary;
    summary.name = command.get_name();
    summary.description = inOneLine(command.get_description());
    summary.footer = command.get_footer();
    for (const CLI::Option* each : command.get_options()) {
        auto& list = each->nonpositional() ? summary.options : summary.arguments;
        list.push_back(summarize(*each));
    }
    for (const CLI::App* each : command.get_subcommands([](const CLI::App*) { return true; })) {
        summary.commands.push_back(summarize(*each));
    }
    return summary;
}

}  // namespace workbench
