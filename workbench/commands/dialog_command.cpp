#include "workbench/cli/common_options.h"
#include "workbench/cli/exit_code.h"
#include "workbench/cli/nearest_word.h"
#include "workbench/commands/commands.h"
#include "workbench/commands/design_reading.h"
#include "workbench/dialogs/addin_session.h"
#include "workbench/dialogs/dialog_session.h"
#include "workbench/dialogs/input_edits.h"
#include "workbench/dialogs/uncaught.h"
#include "workbench/output/dialog_json.h"
#include "workbench/output/dialog_text.h"
#include "workbench/output/reports.h"

#include "host/base/utf8_path.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <utility>

#include <iostream>

namespace workbench {
namespace {

constexpr const char* kInputsHelp =
    "--set takes a text for a text field, an item for a list, true or false for a check box,\n"
    "click for a button, the path of a component for a selection, a row number for a table,\n"
    "expanded or collapsed for a group, and active for a tab. INPUT is an id, or\n"
    "TABLE[ROW,COLUMN] for a cell.\n"
    "The dialog is closed without accepting it, and the design is not saved.";

struct DialogOptions {
    std::string command;
    std::string file;  ///< the design to open; empty: a new one
    std::string tab;   ///< id or caption; empty: the one that the dialog opens with
    std::vector<std::string> edits;
    std::string format = "text";
    AddinChoice addin;
    ReadingOptions reading;
};

std::vector<InputEdit> parseEdits(const std::vector<std::string>& values) {
    std::vector<InputEdit> edits(values.size());
    std::ranges::transform(values, edits.begin(), parseInputEdit);
    return edits;
}

void refuseUnknown(const std::string& command) {
    const std::vector<std::string> known = host::commandIds();
    if (std::ranges::find(known, command) == known.end()) {
        const std::string nearest = nearestWord(command, known);
        refuse("dialog " + command + ": no such command" +
               (nearest.empty() ? ";" : "; did you mean " + nearest + "?") +
               " \"tarnix-workbench commands\" lists them");
    }
}

void makeEdit(host::Session& session, const InputEdit& edit) {
    try {
        editInput(session, edit);
    } catch (const Failure&) {
        throw;
    } catch (const std::runtime_error& obstacle) {
        refuse("--set " + edit.input + "=" + edit.value + ": " + obstacle.what());
    }
}

/// Opens the dialog and uses it. What the add-in throws meanwhile does not end it: the dialog as it
/// is then is what the user wants to see.
void useDialog(host::Session& session, const DialogOptions& options,
               const std::vector<InputEdit>& edits) {
    session.press(options.command);
    if (!session.dialogOpen()) {
        throw Failure(ExitCode::AddinFailed,
                      explain(session, options.command + " opened no dialog"));
    }
    if (!options.tab.empty()) {
        showTab(session, options.tab);
    }
    for (const InputEdit& edit : edits) {
        if (!session.dialogOpen()) {
            throw Failure(ExitCode::AddinFailed,
                          explain(session, "the dialog closed before --set " + edit.input));
        }
        makeEdit(session, edit);
    }
}

std::string dialogText(const host::Session& session, const std::string& format) {
    if (!session.dialogOpen()) {
        return format == "json" ? "null\n" : "The dialog is closed.\n";
    }
    const host::DialogView view = host::readDialog();
    return format == "json" ? asJson(view) : asText(view);
}

/// Shows a dialog of the add-in as it is after some steps of its user.
void runDialog(const DialogOptions& options) {
    const std::vector<InputEdit> edits = parseEdits(options.edits);
    std::optional<host::DesignData> design;
    if (!options.file.empty()) {
        design = readDesign(options.file, options.reading);
    }
    DialogSession dialog(options.addin);
    host::Session& session = dialog.session();
    refuseUnknown(options.command);
    if (design) {
        session.openDesign(std::move(*design), host::fromUtf8(options.file));
    }
    useDialog(session, options, edits);
    std::cout << dialogText(session, options.format);
    reportMessages(session.messages());
    refuseUnexpected(session.uncaughtExceptions());
}

}  // namespace

void addDialogCommand(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "dialog", "Show a dialog of the add-in: tabs, inputs, tables with their hidden rows");
    DialogOptions& options = optionsFor(command, runDialog);
    command.add_option("COMMAND", options.command, "The id of a command, see \"commands\"")
        ->required();
    command.add_option("FILE", options.file, "The design to open, by default a new one");
    command.add_option("--tab", options.tab, "Show this tab, by its id or caption");
    command
        .add_option("--set", options.edits,
                    "Use an input of the dialog; several are used in this order")
        ->type_name("INPUT=VALUE")
        ->allow_extra_args(false);
    addFormat(command, options.format, {"text", "json"});
    addAddin(command, options.addin);
    addReading(command, options.reading);
    command.footer(kInputsHelp);
}

}  // namespace workbench
