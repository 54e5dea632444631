#include "workbench/cli/common_options.h"
#include "workbench/cli/console.h"
#include "workbench/cli/exit_code.h"
#include "workbench/commands/bom_command.h"
#include "workbench/commands/editing_commands.h"
#include "workbench/commands/helpdesk_options.h"
#include "workbench/commands/info_command.h"
#include "workbench/commands/modelling_commands.h"
#include "workbench/output/display_text.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

namespace workbench {
namespace {

constexpr const char* kFooter =
    "Exit status: 0 done, 1 the file cannot be read as a design or not be measured, 2 wrong "
    "usage,\n"
    "3 the add-in is missing or in use, 4 the add-in failed, 5 a result cannot be written. Unless\n"
    "it is 0, one line on stderr says why, and no file was written but those that open-local\n"
    "tells of.";

/// The options that act in the add-in's dialog.
void addWishes(CLI::App& command, BomOptions& options) {
    command
        .add_option("--column", options.columns,
                    "A column to show, up to six, in this order; they stay chosen. CAPTION is\n"
                    "what stands over it, the property's name by default")
        ->type_name("PROPERTY[=CAPTION]")
        ->allow_extra_args(false);
    command
        .add_option("--sort", options.sort,
                    "Sort the tab structure by a column, by its caption or its property")
        ->type_name("COLUMN[:desc]");
    command
        .add_option("--expand", options.expand,
                    "Show the tree of the tab model down to this level, or all of it")
        ->type_name("all|LEVEL");
    command
        .add_option("--set", options.cells,
                    "Put a text into a cell of the tab shown; may be repeated. CELL is\n"
                    "ROW:COLUMN: ROW counts the printed lines from 1, as they stand before any\n"
                    "--set; COLUMN is a caption as it is printed, or the property of a column.\n"
                    "As in \"--set '2:Part Number=P-7' --set '2:BOM Structure=Buy'\". Needs --save")
        ->type_name("CELL=VALUE")
        ->allow_extra_args(false);
    addSave(command, options.save, options.saveFile,
            "Press \"Save Changes and Close\", which writes the tab shown into the design, and\n"
            "save that as a design file; by default in the one that was opened, else beside\n"
            "FILE. Of rows with the same component, the last one wins");
}

CLI::App* addBom(CLI::App& program, BomOptions& options) {
    CLI::App* command = program.add_subcommand(
        "bom", "Run the add-in on a design: print its parts list, and export it");
    addFile(*command, options.file);
    command->add_option("--tab", options.tab, "The tab of the add-in's dialog to show and export")
        ->check(CLI::IsMember({"structure", "model"}))
        ->capture_default_str();
    command->add_option("--out", options.out, "Copy TarnixBOM.csv into this folder")
        ->type_name("DIR");
    command
        ->add_option("--format", options.format,
                     "What to print: a table, the exported file, or JSON")
        ->check(CLI::IsMember({"table", "csv", "json"}))
        ->capture_default_str();
    addWishes(*command, options);
    command->add_flag("--open", options.open, "Let the add-in open its workbook");
    command->add_flag("--verbose", options.verbose,
                      "Also tell what the add-in throws as a matter of course");
    addAddin(*command, options.addin);
    addLimits(*command, options.limits);
    return command;
}

CLI::App* addInfo(CLI::App& program, InfoOptions& options) {
    CLI::App* command = program.add_subcommand(
        "info", "Print what a file holds: components, occurrences, levels, units, materials");
    addFile(*command, options.file);
    addLimits(*command, options.limits);
    return command;
}

/// The line on stderr that goes with an exit status.
int complain(ExitCode code, const std::string& line) {
    std::cerr << "tarnix-workbench: " << printable(line) << "\n";
    return static_cast<int>(code);
}

int parse(CLI::App& program, const std::vector<std::string>& arguments) {
    std::vector<const char*> values;
    values.reserve(arguments.size());
    for (const std::string& argument : arguments) {
        values.push_back(argument.c_str());
    }
    try {
        program.parse(static_cast<int>(values.size()), values.data());
        return -1;
    } catch (const CLI::ParseError& end) {
        // Asking for help or for the version ends parsing as well.
        return end.get_exit_code() == 0 ? program.exit(end)
                                        : complain(ExitCode::BadUsage, end.what());
    }
}

int runProgram(const std::vector<std::string>& arguments) {
    CLI::App program(
        "Opens a 3D assembly in a stand-in for the CAD host and uses the add-in on it.",
        "tarnix-workbench");
    BomOptions bom;
    InfoOptions info;
    HelpdeskOptions helpdesk;
    std::function<void()> given;
    addBom(program, bom)->final_callback([&] { given = [&bom] { runBom(bom); }; });
    addInfo(program, info)->final_callback([&] { given = [&info] { runInfo(info); }; });
    addHelpdesk(program, helpdesk)->final_callback([&] {
        given = [&helpdesk] { runHelpdesk(helpdesk); };
    });
    const EditingCommands editing(program, given);
    const ModellingCommands modelling(program, given);
    program.set_version_flag("--version", "tarnix-workbench " TARNIX_VERSION);
    program.require_subcommand(1);
    program.footer(kFooter);
    const int parsed = parse(program, arguments);
    if (parsed >= 0) {
        return parsed;
    }
    given();
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
