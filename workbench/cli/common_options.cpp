#include "workbench/cli/common_options.h"

namespace workbench {
namespace {

/// An option that takes a whole number, whatever `limit` counts in.
template <class T>
CLI::Option* addNumber(CLI::App& command, const std::string& name, T& limit,
                       const std::string& description) {
    return command
        .add_option_function<int>(
            name, [&limit](int value) { limit = static_cast<T>(value); }, description)
        ->default_str(std::to_string(static_cast<int>(limit)));
}

}  // namespace

void addFile(CLI::App& command, std::string& file) {
    command
        .add_option("FILE", file, "A STEP file (.step, .stp, .p21), an IGES file, or a design file")
        ->required();
}

void addLimits(CLI::App& command, host::ReadingLimits& limits) {
    addNumber(command, "--max-seconds", limits.seconds, "Time limit for reading")
        ->type_name("SECONDS")
        ->check(CLI::Range(1, 86400));
    addNumber(command, "--max-memory", limits.megabytes, "Memory limit for reading")
        ->type_name("MB")
        ->check(CLI::Range(16, 1 << 20));
    addNumber(command, "--max-occurrences", limits.occurrences,
              "Refuse a design with more occurrences; those in a sub-assembly count each\n"
              "time it is used")
        ->type_name("COUNT")
        ->check(CLI::Range(1, static_cast<int>(host::kMaximumOccurrences)));
}

void addAddin(CLI::App& command, std::string& folder) {
    command.add_option("--addin", folder, "Use the add-in in this folder")->type_name("DIR");
}

void addFormat(CLI::App& command, std::string& format, const std::vector<std::string>& names) {
    command.add_option("--format", format, "How to print it")
        ->check(CLI::IsMember(names))
        ->capture_default_str();
}

void addSave(CLI::App& command, std::optional<std::string>& file, const std::string& description) {
    command
        .add_option_function<std::string>(
            "--save", [&file](const std::string& named) { file = named; }, description)
        ->type_name("[FILE]")
        ->expected(0, 1)
        ->run_callback_for_default()
        ->default_str("");
}

}  // namespace workbench
