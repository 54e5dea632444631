#include "workbench/cli/common_options.h"
#include "workbench/cli/exit_code.h"
#include "workbench/commands/commands.h"
#include "workbench/dialogs/addin_ids.h"
#include "workbench/dialogs/dialog_session.h"
#include "workbench/dialogs/properties_dialog.h"
#include "workbench/output/display_text.h"
#include "workbench/output/reports.h"
#include "workbench/output/staged_files.h"

#include "host/session/input_actions.h"

#include <algorithm>
#include <iostream>
#include <vector>

namespace workbench {
namespace {

using namespace adsk::core;

struct UserPropertiesOptions {
    std::string name;  ///< of the property to add or to remove
    AddinChoice addin;
};

void showList(DialogSession& dialog) {
    dialog.open(kPropertiesCommand);
    dialog.act([](host::Session& session) { session.activateTab(kUserPropertyTab); });
}

std::vector<std::string> namesIn(const host::Session& session) {
    const Ptr<TableCommandInput> table = session.table(kUserPropertyTable);
    std::vector<std::string> names;
    for (int row = 0; row < table->rowCount(); ++row) {
        const Ptr<StringValueCommandInput> cell = table->getInputAtPosition(row, 0);
        names.push_back(cell ? cell->value() : "");
    }
    return names;
}

/// Presses the button that saves; where it is disabled, the dialog's message is the error.
void save(host::Session& session) {
    if (!session.input(kSaveUserProperties)->isEnabled()) {
        const Ptr<TextBoxCommandInput> message = session.input(kUserPropertyMessage);
        refuse(message->text());
    }
    session.click(kSaveUserProperties);
}

/// The settings keep no spaces at the ends of a name.
void refuseUnusableName(const std::string& name) {
    if (name.empty()) {
        refuse("a custom property needs a name");
    }
    if (name.front() == ' ' || name.back() == ' ') {
        refuse("\"" + name + "\": a name must not begin or end with a space");
    }
}

/// Of two lines with the same id the dialog writes both, and the second would undo what is typed
/// into the first.
void refuseTakenName(const host::Session& session, const std::string& name) {
    for (const PropertyLine& each : readProperties(session)) {
        if (each.id == kPropertyPrefix + name) {
            refuse("property \"" + each.name + "\" exists already");
        }
    }
}

void add(host::Session& session, const std::string& name) {
    refuseUnusableName(name);
    refuseTakenName(session, name);
    session.click(kAddUserProperty);
    const Ptr<TableCommandInput> table = session.table(kUserPropertyTable);
    host::pasteText(table->getInputAtPosition(table->rowCount() - 1, 0), name);
    save(session);
}

void remove(host::Session& session, const std::string& name) {
    const std::vector<std::string> names = namesIn(session);
    const auto found = std::ranges::find(names, name);
    if (found == names.end()) {
        refuse("there is no custom property \"" + name + "\"");
    }
    session.selectRow(kUserPropertyTable, static_cast<int>(found - names.begin()));
    session.click(kRemoveUserProperty);
    save(session);
}

/// The names without the empty ones, which are not saved.
std::vector<std::string> namesToKeep(const host::Session& session) {
    std::vector<std::string> names = namesIn(session);
    std::erase(names, "");
    return names;
}

void printList(DialogSession& dialog) {
    for (const std::string& name : namesIn(dialog.session())) {
        std::cout << printable(name) << "\n";
    }
    dialog.act([](host::Session& session) { session.cancel(); });
}

/// Makes one edit of the list and saves it, which is checked as the dialog opens again: the add-in
/// does not report a list that its settings do not take, such as those that have no place for one.
void edit(const UserPropertiesOptions& options,
          void (*change)(host::Session&, const std::string&)) {
    std::vector<std::string> names;
    DialogSession dialog(options.addin, DataUse::Change);
    showList(dialog);
    dialog.act([&](host::Session& session) {
        change(session, options.name);
        names = namesToKeep(session);
        session.cancel();
    });
    showList(dialog);
    if (namesToKeep(dialog.session()) != names) {
        throw Failure(ExitCode::AddinFailed,
                      "\"" + options.name + "\": the add-in's settings did not take the list");
    }
    printList(dialog);
    StagedFiles files;
    dialog.folder().stageSettings(files);
    flushOutput();
    files.commit();
}

void runList(const UserPropertiesOptions& options) {
    DialogSession dialog(options.addin);
    showList(dialog);
    printList(dialog);
}

void runAdd(const UserPropertiesOptions& options) { edit(options, add); }

void runRemove(const UserPropertiesOptions& options) { edit(options, remove); }

void addAction(CLI::App& command, const std::string& name, const std::string& description,
               void (*run)(const UserPropertiesOptions&)) {
    CLI::App& action = *command.add_subcommand(name, description);
    UserPropertiesOptions& options = optionsFor(action, run);
    if (run != runList) {
        action.add_option("NAME", options.name, "The property's name")->required();
    }
    addAddin(action, options.addin);
}

}  // namespace

void addUserPropertiesCommand(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "user-properties", "Print or edit the list of custom properties that the add-in offers");
    command.require_subcommand(1);
    addAction(command, "list", "Print the list", runList);
    addAction(command, "add", "Add a property, and print the list", runAdd);
    addAction(command, "remove", "Remove a property, and print the list", runRemove);
}

}  // namespace workbench
