#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
class ParseError;
}  // namespace CLI

/// Wrong usage, in words that help: with the nearest word that there is, and where to read on.
namespace workbench {

/// Throws a `Failure` where the first word is neither a command nor an option: for a file with what
/// can be done with it, else with the nearest command. `arguments` begins with the program's name.
void checkFirstWord(const CLI::App& program, const std::vector<std::string>& arguments);

/// The message for a command line that could not be parsed.
std::string usageError(const CLI::App& program, const CLI::ParseError& error,
                       const std::vector<std::string>& arguments);

}  // namespace workbench
