#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

/// The command line as plain values, for what is generated from it: the man page and completions.
namespace workbench {

/// An option, a flag or an argument.
struct OptionSummary {
    std::vector<std::string> names;  ///< "--help" and "-h"; of an argument: what stands for it
    std::string value;               ///< what stands for its value; empty for a flag
    std::vector<std::string> choices;
    std::string description;  ///< without line ends
    std::string byDefault;
    bool required = false;
    bool repeated = false;
};

struct CommandSummary {
    std::string name;
    std::string description;
    std::string footer;  ///< with the line ends of `--help`
    std::vector<OptionSummary> options;
    std::vector<OptionSummary> arguments;
    std::vector<CommandSummary> commands;
};

CommandSummary summarize(const CLI::App& command);

}  // namespace workbench
