#pragma once

#include "workbench/cli/addin_choice.h"

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

/// How to read the design.
struct ReadingOptions {
    host::ReadingLimits limits;
    bool strict = false;                         ///< a warning is a failure
    bool noCache = false;                        ///< neither use nor keep what reading found
    std::optional<host::MaterialData> material;  ///< of parts for which one would be assumed
};

/// What reading the design may take, and what its warnings mean.
void addReading(CLI::App& command, ReadingOptions& reading);

/// Which add-in to use, and the folder with its settings.
void addAddin(CLI::App& command, AddinChoice& choice);

/// "--format", one of these names.
void addFormat(CLI::App& command, std::string& format, const std::vector<std::string>& names);

/// "--save [FILE]": without FILE an empty string is set.
void addSave(CLI::App& command, std::optional<std::string>& file, const std::string& description);

}  // namespace workbench
