#include "workbench/cli/common_options.h"
#include "workbench/cli/console.h"
#include "workbench/cli/exit_code.h"
#include "workbench/commands/bom_request.h"
#include "workbench/commands/commands.h"
#include "workbench/commands/design_reading.h"
#include "workbench/dialogs/uncaught.h"
#include "workbench/output/design_files.h"
#include "workbench/output/display_text.h"
#include "workbench/output/fault_lines.h"
#include "workbench/output/reports.h"
#include "workbench/output/result_stream.h"

#include "host/base/utf8_path.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <iostream>
#include <utility>

namespace workbench {
namespace {

namespace fs = std::filesystem;

struct BomOptions {
    std::string file;
    ReadingOptions reading;
    BomRequest request;
    std::optional<std::string> saveFile;  ///< see `saveTarget`
    std::string editedList;               ///< file of a list that was edited; empty: none
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

/// The name for the export of a design in a folder with those of others.
fs::path copyName(const std::string& design) {
    fs::path name = host::fromUtf8(design).filename();
    for (const char* const ending : {".gz", ".json"}) {
        name = name.extension() == ending ? name.stem() : name;
    }
    name = design == "-" ? fs::path() : name.stem();
    return host::fromUtf8(host::toUtf8(name) + (name.empty() ? "" : "-") + kExportFile);
}

/// The exported file where the user wants it, by default where the add-in put it; none where it
/// does not stay.
fs::path deliver(const BomResult& result, const std::string& design, const std::string& folder,
                 StagedFiles& files) {
    if (folder.empty() || result.exported.empty()) {
        return result.exportFile;
    }
    fs::path file = host::fromUtf8(folder) / copyName(design);
    files.add(file, result.exported);
    return file;
}

constexpr const char* kLonePart = "is one part; the list shows what is below the root";

/// With a warning for programs, which read no remarks.
std::string bomJson(const BomResult& result, const std::string& file,
                    std::vector<host::ReadingWarning> warnings) {
    if (result.isLonePart) {
        host::ReadingWarning lone;
        lone.code = "lone-part";
        lone.file = file;
        lone.text = kLonePart;
        warnings.push_back(std::move(lone));
    }
    return asJson(result.list, warnings);
}

std::string formatted(const BomResult& result, const std::string& file, const std::string& format,
                      const std::vector<host::ReadingWarning>& warnings) {
    if (format == "csv") {
        return result.exported;
    }
    return format == "json" ? bomJson(result, file, warnings)
                            : asTable(result.list, console::charset(), resultWidth());
}

void reportExport(std::ostream& stream, const BomResult& result, const fs::path& file) {
    if (result.exported.empty()) {
        stream << kExportFile << ": not written, the table has no rows\n";
    } else if (!file.empty()) {
        stream << kExportFile << ": " << printable(host::toUtf8(file)) << "\n";
    }
}

/// Prints the list, and then where everything is.
void print(const BomResult& result, const BomOptions& options,
           const std::vector<host::ReadingWarning>& warnings, const fs::path& exported,
           const fs::path& design) {
    std::cout << formatted(result, options.file, options.format, warnings) << std::flush;
    // What other programs read stays free of remarks.
    const bool isForPeople = options.format == "table";
    std::ostream& remarks = isForPeople ? std::cout : std::cerr;
    remarks << (isForPeople ? "\n" : "");
    if (!design.empty()) {
        reportSaved(remarks, design);
    }
    if (result.isLonePart) {
        remarks << "the file " << kLonePart << "\n";
    }
    reportExport(remarks, result, exported);
    reportShellRequests(remarks, result.shell, options.request.open);
    flushOutput();
}

/// Opens a design, has the add-in make its parts list and export it, and prints the list. With
/// "--save" what is printed is the saved design opened again. All is printed before the first file
/// is written: where that fails, and where anything did before, no file is.
void runBom(const BomOptions& options) {
    BomRequest request = options.request;
    request.save = options.saveFile.has_value();
    if (!options.editedList.empty()) {
        request.edits.list = readEditedList(options.editedList);
    }
    checkRequest(request);
    request.addin.lockTimeout =
        std::chrono::seconds(static_cast<long>(options.reading.limits.seconds));
    const SaveTarget design =
        request.save ? saveTarget(options.file, *options.saveFile) : SaveTarget();
    checkAddin(request.addin);
    std::vector<host::ReadingWarning> warnings;
    host::DesignData opened = readDesign(options.file, options.reading, &warnings);
    // Not before: other runs wait for a data home that this one is to change.
    BomRun run(request);
    const BomResult result = run.make(std::move(opened));
    reportThrown(result, options.verbose);
    StagedFiles files;
    const fs::path exported = deliver(result, options.file, options.out, files);
    if (result.saved) {
        files.addDesign(design.path, *result.saved, design.before);
    }
    run.stageSettings(files);
    files.check();
    print(result, options, warnings, exported, design.name);
    files.commit();
}

void addEditedList(CLI::App& command, BomOptions& options) {
    command
        .add_option(
            "--set-from", options.editedList,
            "Edit the cells in which this list differs from the one of the tab: an export\n"
            "that was edited in a spreadsheet. Its lines are found by their column Path, if\n"
            "it has one, else by their part numbers; of rows with equal ones all lines are\n"
            "needed, in their order. Nothing is saved unless all of it can be applied.\n"
            "Requires --save")
        ->type_name("FILE.csv");
}

/// What to print, and where to put the export.
void addOutput(CLI::App& command, BomOptions& options) {
    command
        .add_option(
            "--out", options.out,
            "Copy TarnixBOM.csv into this folder, as NAME-TarnixBOM.csv for the NAME of FILE\n"
            "without its ending")
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
            "A column to show in this run: up to six, in this order. CAPTION is the caption over\n"
            "the column, by default the name of the property. Without this option the stored\n"
            "columns show, else Quantity, Part Name, Mass and Physical Material")
        ->type_name("PROPERTY[=CAPTION]")
        ->allow_extra_args(false);
    command.add_flag("--keep-columns", request.keepColumns,
                     "Store the columns of this run for later ones");
    command.add_flag("--no-columns", request.noColumns,
                     "Show no free columns, and remove the stored ones");
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
            "--set",
            [&request](const Values& values) {
                checkCellNames(values);
                request.edits.cells = values;
            },
            "Edit a cell of the tab; may be repeated. CELL is ROW:COLUMN: ROW counts the\n"
            "printed lines from 1, as they are before any --set, or is the path of an\n"
            "occurrence, or a part number, which names all rows that have it. A number that\n"
            "is a line is that line, even where it is a part number too. COLUMN is a printed\n"
            "caption, or the property of a column. Example:\n"
            "--set '2:Part Number=P-7' --set 'P-9:BOM Structure=Buy'. An edit that the design\n"
            "does not take is an error, and nothing is saved then. Requires --save")
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
    addEditedList(command, options);
    addSave(command, options.saveFile,
            "Press \"Save Changes and Close\", which writes the tab into the design, and save\n"
            "that as a design file: by default the one that was opened, else a new one beside\n"
            "FILE");
    command.add_flag("--open", options.request.open, "Let the add-in open its workbook");
    command.add_flag("--verbose", options.verbose,
                     "Also report the exceptions that the add-in always throws");
    addAddin(command, options.request.addin);
    addReading(command, options.reading);
}

}  // namespace workbench
