#include "workbench/cli/usage_error.h"

#include "workbench/cli/command_summary.h"
#include "workbench/cli/exit_code.h"
#include "workbench/cli/input_files.h"
#include "workbench/cli/nearest_word.h"

#include "host/base/utf8_path.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <string_view>

namespace workbench {
namespace {

constexpr const char* kProgram = "tarnix-workbench";

/// What comes between an unknown word and where to read on.
std::string suggestion(const std::string& nearest) {
    return nearest.empty() ? "; see " : "; did you mean " + nearest + "? See ";
}

/// Whether it can only be meant as a file: it is one, or it is spelt like one that can be opened.
bool isFile(const std::string& word) {
    std::error_code ignored;
    return hasDesignEnding(word) || word.ends_with(".json") ||
           std::filesystem::is_regular_file(host::fromUtf8(word), ignored);
}

std::vector<std::string> commandNames(const CommandSummary& program) {
    std::vector<std::string> names;
    std::ranges::transform(program.commands, std::back_inserter(names), &CommandSummary::name);
    return names;
}

/// The command that a command line is for: the innermost one that it names.
const CommandSummary* innermost(const CommandSummary& program,
                                const std::vector<std::string>& arguments, std::string& path) {
    const CommandSummary* command = &program;
    for (auto word = std::next(arguments.begin()); word != arguments.end(); ++word) {
        const auto found = std::ranges::find(command->commands, *word, &CommandSummary::name);
        if (found == command->commands.end()) {
            break;
        }
        command = &*found;
        path += " " + *word;
    }
    return command;
}

/// The first word that looks like an option which the command does not have; empty for none.
std::string unknownOption(const CommandSummary& command, const std::vector<std::string>& arguments,
                          std::vector<std::string>& known) {
    for (const OptionSummary& each : command.options) {
        known.insert(known.end(), each.names.begin(), each.names.end());
    }
    for (const std::string& word : arguments) {
        std::string name = word.substr(0, word.find('='));
        if (name.starts_with("--") && name.size() > 2 &&
            std::ranges::find(known, name) == known.end()) {
            return name;
        }
    }
    return {};
}

}  // namespace

void checkFirstWord(const CLI::App& program, const std::vector<std::string>& arguments) {
    if (arguments.size() < 2 || arguments[1].starts_with('-')) {
        return;
    }
    const std::string& word = arguments[1];
    const std::vector<std::string> names = commandNames(summarize(program));
    if (std::ranges::find(names, word) != names.end()) {
        return;
    }
    if (isFile(word)) {
        refuse("what is to be done with " + word + "? \"" + kProgram + " info " + word +
               "\" prints what it holds, \"" + kProgram + " bom " + word +
               "\" its parts list; see " + kProgram + " --help");
    }
    refuse("no command \"" + word + "\"" + suggestion(nearestWord(word, names)) + kProgram +
           " --help");
}

std::string usageError(const CLI::App& program, const CLI::ParseError& error,
                       const std::vector<std::string>& arguments) {
    const CommandSummary summary = summarize(program);
    std::string path = kProgram;
    const CommandSummary& command = *innermost(summary, arguments, path);
    std::vector<std::string> known;
    const std::string unknown = unknownOption(command, arguments, known);
    const bool isUnknown = dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr;
    const std::string message =
        isUnknown && !unknown.empty()
            ? "no option " + unknown + suggestion(nearestWord(unknown, known))
            : std::string(error.what()) + "; see ";
    return message + path + " --help";
}

}  // namespace workbench
