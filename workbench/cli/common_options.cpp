#include "workbench/cli/common_options.h"

#include <CLI/CLI.hpp>

namespace workbench {

void addFile(CLI::App& command, std::string& file) {
    command
        .add_option("FILE", file, "A STEP file (.step, .stp, .p21), an IGES file, or a design file")
        ->required();
}

void addLimits(CLI::App& command, ReadingLimits& limits) {
    command.add_option("--max-seconds", limits.maxSeconds, "Give up reading after this time")
        ->check(CLI::Range(1, 86400))
        ->capture_default_str();
    command.add_option("--max-memory", limits.maxMegabytes, "Give up reading beyond this many MB")
        ->check(CLI::Range(16, 1 << 20))
        ->capture_default_str();
    command
        .add_option("--max-occurrences", limits.maxOccurrences,
                    "Refuse a design that has more occurrences, those in a sub-assembly\n"
                    "counted again wherever it is used")
        ->check(CLI::Range(1, static_cast<int>(host::kMaximumOccurrences)))
        ->capture_default_str();
}

void addAddin(CLI::App& command, std::string& folder) {
    command.add_option("--addin", folder, "Another folder with the add-in")->type_name("DIR");
}

void addSave(CLI::App& command, bool& save, std::string& file, const std::string& description) {
    command
        .add_option_function<std::string>(
            "--save",
            [&save, &file](const std::string& named) {
                save = true;
                file = named;
            },
            description)
        ->type_name("[FILE]")
        ->expected(0, 1)
        ->run_callback_for_default()
        ->default_str("");
}

}  // namespace workbench
