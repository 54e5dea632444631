#include "workbench/cli/console.h"
#include "workbench/cli/exit_code.h"
#include "workbench/cli/final_status.h"
#include "workbench/cli/quiet.h"
#include "workbench/cli/usage_error.h"
#include "workbench/commands/commands.h"
#include "workbench/output/display_text.h"
#include "workbench/output/output_names.h"
#include "workbench/output/result_stream.h"

#include "host/base/utf8_path.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

namespace workbench {
namespace {

constexpr const char* kFooterEnd =
    "On failure stderr says why, and no file is written except those that open-local\n"
    "reports.";

std::string footer() {
    std::string text = "Exit status:\n";
    for (const ExitMeaning& each : kExitMeanings) {
        text += "  " + std::to_string(static_cast<int>(each.code)) + "  " + each.meaning + "\n";
    }
    return text + kFooterEnd;
}

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

/// Whether two names are those of one file, which need not be there yet.
bool isSameFile(const std::string& one, const std::string& other) {
    namespace fs = std::filesystem;
    std::error_code failure;
    const fs::path left = host::fromUtf8(one);
    const fs::path right = host::fromUtf8(other);
    return fs::equivalent(left, right, failure) ||
           fs::weakly_canonical(left, failure) == fs::weakly_canonical(right, failure);
}

/// A working directory that was deleted makes every relative path fail, with no word about why.
void checkWorkingDirectory() {
    std::error_code failure;
    static_cast<void>(std::filesystem::current_path(failure));
    if (failure) {
        refuse("the working directory does not exist any more; change to another one");
    }
}

/// A file that the command line names otherwise too would be lost, or replaced by another result.
void refuseFileInUse(const CLI::App& command, const std::string& output) {
    for (const char* const name : {"FILE", "OLD", "NEW", "--set-from", "--save"}) {
        const CLI::Option* const option = command.get_option_no_throw(name);
        for (const std::string& each : option == nullptr ? CLI::results_t() : option->results()) {
            if (isSameFile(each, output)) {
                refuse("--output " + output + ": is also " + name +
                       "; the output needs a file of its own");
            }
        }
    }
}

/// Adds "--output" and "--quiet" to each command that has no further ones.
void addOutput(CLI::App& command, ResultStream& results) {
    const auto inner = command.get_subcommands([](CLI::App*) { return true; });
    for (CLI::App* const each : inner) {
        addOutput(*each, results);
    }
    if (!inner.empty()) {
        return;
    }
    // A command that writes several files has an option of its own.
    if (command.get_option_no_throw("--output") == nullptr) {
        command
            .add_option_function<std::string>(
                "--output",
                [&results, &command](const std::string& file) {
                    refuseFileInUse(command, file);
                    refuseToReplaceDesign(file);
                    results.writeTo(file);
                },
                "Write what is printed into this file instead, which is replaced where it\n"
                "exists; its folder is created. - prints it")
            ->type_name("FILE");
    }
    command.add_flag_callback("--quiet", beQuiet,
                              "Print the result and errors alone: no progress, no warnings");
}

/// Parses the command line, which runs the subcommand in it.
int runProgram(const std::vector<std::string>& arguments) {
    CLI::App program("Opens a 3D assembly in a stand-in for the CAD host and runs the add-in on it",
                     "tarnix-workbench");
    // A path from the root of a drive begins with a stroke too.
    program.allow_windows_style_options(false);
    for (const auto& addCommand : kAddCommand) {
        addCommand(program);
    }
    program.set_version_flag("--version", "tarnix-workbench " TARNIX_VERSION);
    program.require_subcommand(1);
    program.footer(footer());
    ResultStream results;
    addOutput(program, results);
    checkFirstWord(program, arguments);
    checkWorkingDirectory();
    try {
        program.parse(static_cast<int>(arguments.size()), pointersTo(arguments).data());
    } catch (const CLI::ParseError& end) {
        // Asking for help or for the version ends parsing as well.
        if (end.get_exit_code() != 0) {
            return complain(ExitCode::BadUsage, usageError(program, end, arguments));
        }
        program.exit(end);
    }
    results.finish();
    return static_cast<int>(finalStatus());
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
