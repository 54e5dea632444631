#include "workbench/cli/console.h"
#include "workbench/cli/exit_code.h"
#include "workbench/commands/commands.h"
#include "workbench/output/display_text.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <iostream>
#include <string>
#include <vector>

namespace workbench {
namespace {

constexpr const char* kFooter =
    "Exit status: 0 success, 1 the file cannot be read as a design or not be measured, 2 wrong\n"
    "usage, 3 the add-in is missing or in use, 4 the add-in failed, 5 a result cannot be written.\n"
    "On failure one line on stderr says why, and no file is written except those that open-local\n"
    "reports.";

/// The line on stderr that goes with an exit status.
int complain(ExitCode code, const std::string& line) {
    std::cerr << "tarnix-workbench: " << printable(line) << "\n";
    return static_cast<int>(code);
}

std::vector<const char*> pointersTo(const std::vector<std::string>& arguments) {
    std::vector<const char*> pointers;
    pointers.reserve(arguments.size());
    for (const std::string& argument : arguments) {
        pointers.push_back(argument.c_str());
    }
    return pointers;
}

/// Parses the command line, which runs the subcommand in it.
int runProgram(const std::vector<std::string>& arguments) {
    CLI::App program(
        "Opens a 3D assembly in a stand-in for the CAD host and runs the add-in on it.",
        "tarnix-workbench");
    for (const auto& addCommand : kAddCommand) {
        addCommand(program);
    }
    program.set_version_flag("--version", "tarnix-workbench " TARNIX_VERSION);
    program.require_subcommand(1);
    program.footer(kFooter);
    try {
        program.parse(static_cast<int>(arguments.size()), pointersTo(arguments).data());
    } catch (const CLI::ParseError& end) {
        // Asking for help or for the version ends parsing as well.
        return end.get_exit_code() == 0 ? program.exit(end)
                                        : complain(ExitCode::BadUsage, end.what());
    }
    if (!std::cout.flush()) {
        throw Failure(ExitCode::OutputFailed, "cannot write to stdout");
    }
    return static_cast<int>(ExitCode::Success);
}

}  // namespace
}  // namespace workbench

int main(int count, char** values) {
    using workbench::ExitCode;
    try {
        workbench::console::prepare();
        return workbench::runProgram(workbench::console::arguments(count, values));
    } catch (const workbench::Failure& failure) {
        return workbench::complain(failure.code(), failure.what());
    } catch (const std::exception& error) {
        return workbench::complain(ExitCode::AddinFailed, error.what());
    }
}
