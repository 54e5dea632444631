#pragma once

#include "workbench/commands/design_reading.h"

#include <string>

namespace CLI {
class App;
}

/// Options that several commands of the command line have, each spelt in one place.
namespace workbench {

/// The design to open.
void addFile(CLI::App& command, std::string& file);

/// The bounds of reading it.
void addLimits(CLI::App& command, host::ReadingLimits& limits);

/// Another folder with the add-in than the one beside the program.
void addAddin(CLI::App& command, std::string& folder);

/// "--save [FILE]": sets `save`, and `file` where one is named.
void addSave(CLI::App& command, bool& save, std::string& file, const std::string& description);

}  // namespace workbench
