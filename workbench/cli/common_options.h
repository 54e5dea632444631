#pragma once

#include "host/import/read_design.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <optional>
#include <string>
#include <vector>

/// What the subcommands have in common on the command line. Each option is spelt in one place.
namespace workbench {

/// The options of a subcommand, for `run`, which is called with them once the whole command line
/// has been parsed. They live as long as the subcommand.
template <class Options>
Options& optionsFor(CLI::App& command, void (*run)(const Options&)) {
    const auto options = std::make_shared<Options>();
    command.final_callback([options, run] { run(*options); });
    return *options;
}

/// The design to open.
void addFile(CLI::App& command, std::string& file);

/// What reading the design may take.
void addLimits(CLI::App& command, host::ReadingLimits& limits);

/// The folder of the add-in; empty unless it is given, for the one beside the program.
void addAddin(CLI::App& command, std::string& folder);

/// "--format", one of these names.
void addFormat(CLI::App& command, std::string& format, const std::vector<std::string>& names);

/// "--save [FILE]": without FILE an empty string is set.
void addSave(CLI::App& command, std::optional<std::string>& file, const std::string& description);

}  // namespace workbench
