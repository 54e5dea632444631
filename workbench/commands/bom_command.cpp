#include "workbench/cli/common_options.h"
#include "workbench/cli/exit_code.h"
#include "workbench/commands/bom_request.h"
#include "workbench/commands/commands.h"
#include "workbench/commands/design_reading.h"
#include "workbench/dialogs/uncaught.h"
#include "workbench/output/design_files.h"
#include "workbench/output/display_text.h"
#include "workbench/output/output_file.h"
#include "workbench/output/reports.h"

#include "host/base/utf8_path.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

namespace workbench {
namespace {

namespace fs = std::filesystem;

struct BomOptions {
    std::string file;
    host::ReadingLimits limits;
    BomRequest request;
    std::optional<std::string> saveFile;  ///< see `saveTarget`
    std::string out;               ///< folder for the exported file; empty: it stays where it is
    std::string format = "table";  ///< "table", "csv" or "json"
    bool verbose = false;          ///< also reports what the add-in always throws
};

/// Reports what the add-in said, and ends the program when it failed.
void reportThrown(const BomResult& result, bool verbose) {
    for (const host::UncaughtException& thrown : result.thrown) {
        if (verbose && isExpected(thrown)) {
            std::cerr << printable(describe(thrown)) << "\n";
        }
    }
    reportMessages(result.messages);
    refuseUnexpected(result.thrown);
}

/// The exported file where the user wants it, by default where the add-in put it.
fs::path deliver(const BomResult& result, const std::string& folder, WrittenFiles& written) {
    if (folder.empty()) {
        return result.exportFile;
    }
    if (result.exportFile.empty()) {
        throw Failure(ExitCode::OutputFailed, "the add-in exported nothing: the table has no rows");
    }
    fs::path file = host::fromUtf8(folder) / kExportFile;
    written.watch(file);
    writeWhole(file, result.exported);
    return file;
}

std::string formatted(const BomResult& result, const std::string& format) {
    if (format == "csv") {
        return result.exported;
    }
    return format == "json" ? asJson(result.list) : asTable(result.list);
}

void reportExport(std::ostream& stream, const fs::path& file) {
    if (file.empty()) {
        stream << kExportFile << ": not written, the table has no rows\n";
    } else {
        stream << kExportFile << ": " << printable(host::toUtf8(file)) << "\n";
    }
}

/// Prints the list, and then where everything is.
void print(const BomResult& result, const BomOptions& options, const fs::path& exported,
           const fs::path& design) {
    std::cout << formatted(result, options.format) << std::flush;
    // What other programs read stays free of remarks.
    const bool isForPeople = options.format == "table";
    std::ostream& remarks = isForPeople ? std::cout : std::cerr;
    remarks << (isForPeople ? "\n" : "");
    if (!design.empty()) {
        reportSaved(remarks, design);
    }
    reportExport(remarks, exported);
    reportShellRequests(remarks, result.shell, options.request.open);
}

/// Opens a design, has the add-in make its parts list and export it, and prints the list. With
/// "--save" what is printed is the saved design opened again. Where any of this fails, nothing is
/// printed and nothing written.
void runBom(const BomOptions& options) {
    BomRequest request = options.request;
    request.save = options.saveFile.has_value();
    checkRequest(request);
    const fs::path design = request.save ? saveTarget(options.file, *options.saveFile) : fs::path();
    WrittenFiles written;
    const BomResult result =
        runBomDialog(readDesign(options.file, options.limits), request, written);
    reportThrown(result, options.verbose);
    const fs::path exported = deliver(result, options.out, written);
    if (result.saved) {
        saveDesign(*result.saved, design);
    }
    written.keep();
    print(result, options, exported, design);
}

/// What to print, and where to put the export.
void addOutput(CLI::App& command, BomOptions& options) {
    command.add_option("--out", options.out, "Copy TarnixBOM.csv into this folder")
        ->type_name("DIR");
    command
        .add_option("--format", options.format,
                    "What to print: a table, the exported file, or JSON")
        ->check(CLI::IsMember({"table", "csv", "json"}))
        ->capture_default_str();
}

void addTab(CLI::App& command, BomRequest& request) {
    command
        .add_option_function<std::string>(
            "--tab",
            [&request](const std::string& name) {
                request.tab = name == kModelTab.name ? &kModelTab : &kStructureTab;
            },
            "The tab of the add-in's dialog to show and export")
        ->check(CLI::IsMember({kStructureTab.name, kModelTab.name}))
        ->default_str(request.tab->name);
}

/// What the user does in the dialog before the list is read.
void addActions(CLI::App& command, BomRequest& request) {
    using Values = std::vector<std::string>;
    command
        .add_option_function<Values>(
            "--column",
            [&request](const Values& values) { request.columns = parseColumns(values); },
            "A column to show: up to six, in this order. The choice is kept. CAPTION is the\n"
            "caption over the column, by default the name of the property")
        ->type_name("PROPERTY[=CAPTION]")
        ->allow_extra_args(false);
    command
        .add_option_function<std::string>(
            "--sort", [&request](const std::string& value) { request.sort = parseSort(value); },
            "Sort the structure tab by a column, given by its caption or its property")
        ->type_name("COLUMN[:desc]");
    command
        .add_option_function<std::string>(
            "--expand",
            [&request](const std::string& value) { request.levels = parseLevels(value); },
            "Expand the tree of the model tab down to this level, or completely")
        ->type_name("all|LEVEL");
    command
        .add_option_function<Values>(
            "--set", [&request](const Values& values) { request.edits = parseEdits(values); },
            "Edit a cell of the tab; may be repeated. CELL is ROW:COLUMN: ROW counts the\n"
            "printed lines from 1, as they are before any --set; COLUMN is a printed caption,\n"
            "or the property of a column. Example:\n"
            "--set '2:Part Number=P-7' --set '2:BOM Structure=Buy'. Requires --save")
        ->type_name("CELL=VALUE")
        ->allow_extra_args(false);
}

}  // namespace

void addBomCommand(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "bom", "Run the add-in on a design: print its parts list, and export it");
    BomOptions& options = optionsFor(command, runBom);
    addFile(command, options.file);
    addTab(command, options.request);
    addOutput(command, options);
    addActions(command, options.request);
    addSave(command, options.saveFile,
            "Press \"Save Changes and Close\", which writes the tab into the design, and save\n"
            "that as a design file: by default the one that was opened, else a new one beside\n"
            "FILE. Of rows with the same component, the last one wins");
    command.add_flag("--open", options.request.open, "Let the add-in open its workbook");
    command.add_flag("--verbose", options.verbose,
                     "Also report the exceptions that the add-in always throws");
    addAddin(command, options.request.addin);
    addLimits(command, options.limits);
}

}  // namespace workbench
