#include "workbench/commands/bom_command.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/bom_run.h"
#include "workbench/dialogs/uncaught.h"
#include "workbench/output/display_text.h"
#include "workbench/output/output_file.h"
#include "workbench/output/save_target.h"
#include "workbench/output/written_files.h"

#include "host/base/utf8_path.h"
#include "host/design/design_file.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

namespace workbench {
namespace {

namespace fs = std::filesystem;

void saveDesign(const BomResult& result, const fs::path& file) {
    if (!result.saved) {
        return;
    }
    try {
        host::saveDesignFile(file, *result.saved);
    } catch (const host::DesignError& error) {
        throw Failure(ExitCode::OutputFailed, error.what());
    }
}

/// Tells what the add-in said, and ends the program when it failed.
void reportThrown(const BomResult& result, const BomOptions& options) {
    bool failed = false;
    for (const host::UncaughtException& thrown : result.thrown) {
        const bool ordinary = isOrdinary(thrown);
        failed = failed || !ordinary;
        if (options.verbose && ordinary) {
            std::cerr << printable(describe(thrown)) << "\n";
        }
    }
    for (const std::string& message : result.messages) {
        std::cerr << "the add-in says: " << printable(message) << "\n";
    }
    if (failed) {
        const auto first = std::find_if_not(result.thrown.begin(), result.thrown.end(), isOrdinary);
        throw Failure(ExitCode::AddinFailed, describe(*first));
    }
}

/// The exported file where the user wants it; where the add-in put it, if they want it nowhere.
fs::path deliver(const BomResult& result, const BomOptions& options, WrittenFiles& written) {
    if (options.out.empty()) {
        return result.exportFile;
    }
    if (result.exportFile.empty()) {
        throw Failure(ExitCode::OutputFailed, "the add-in exported nothing: the table has no rows");
    }
    fs::path file = host::fromUtf8(options.out) / kExportFile;
    written.watch(file);
    writeWhole(file, result.exported);
    return file;
}

std::string shownList(const BomResult& result, const BomOptions& options) {
    if (options.format == "csv") {
        return result.exported;
    }
    return options.format == "json" ? asJson(result.list) : asTable(result.list);
}

void tellWhereThingsAre(std::ostream& stream, const BomResult& result, const BomOptions& options,
                        const fs::path& file) {
    if (file.empty()) {
        stream << kExportFile << ": not written, the table has no rows\n";
    } else {
        stream << kExportFile << ": " << printable(host::toUtf8(file)) << "\n";
    }
    for (const std::string& target : result.shell) {
        stream << "The add-in asked to open " << printable(target)
               << (options.open ? "\n" : "; use --open to let it\n");
    }
}

}  // namespace

void runBom(const BomOptions& options) {
    const BomWishes wishes = readWishes(options);
    const fs::path design = options.save ? saveTarget(options.file, options.saveFile) : fs::path();
    const BomTab& tab = options.tab == kModelTab.name ? kModelTab : kStructureTab;
    WrittenFiles written;
    const BomResult result =
        makeBom(readDesign(options.file, options.limits), tab, options, wishes, written);
    reportThrown(result, options);
    const fs::path file = deliver(result, options, written);
    saveDesign(result, design);
    written.keep();
    std::cout << shownList(result, options) << std::flush;
    // What other programs read stays free of remarks.
    std::ostream& remarks = options.format == "table" ? std::cout : std::cerr;
    remarks << (options.format == "table" ? "\n" : "");
    if (!design.empty()) {
        remarks << "Saved: " << printable(host::toUtf8(design)) << "\n";
    }
    tellWhereThingsAre(remarks, result, options, file);
    if (!std::cout.flush()) {
        throw Failure(ExitCode::OutputFailed, "cannot write to stdout");
    }
}

}  // namespace workbench
