#include "workbench/commands/user_properties_command.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/dialog_session.h"
#include "workbench/dialogs/properties_dialog.h"
#include "workbench/output/display_text.h"

#include "host/session/user_actions.h"

#include <algorithm>
#include <iostream>
#include <vector>

namespace workbench {
namespace {

using namespace adsk::core;

constexpr const char* kTable = "userProperty";
constexpr const char* kSave = "QEMA_btnSaveUserIProperty";

void showList(DialogRun& run) {
    run.open(kPropertiesCommand);
    run.act([](host::Session& session) { session.activateTab("QEMA_tab_Settings"); });
}

std::vector<std::string> namesIn(const host::Session& session) {
    const Ptr<TableCommandInput> table = session.table(kTable);
    std::vector<std::string> names;
    for (int row = 0; row < table->rowCount(); ++row) {
        const Ptr<StringValueCommandInput> cell = table->getInputAtPosition(row, 0);
        names.push_back(cell ? cell->value() : "");
    }
    return names;
}

/// Presses the button that saves; where it is off, what the dialog says is the error.
void save(host::Session& session) {
    if (!session.input(kSave)->isEnabled()) {
        const Ptr<TextBoxCommandInput> message = session.input("messageSave");
        throw Failure(ExitCode::BadUsage, message->text());
    }
    session.click(kSave);
}

/// A name that is none to the settings, which keep no spaces at the ends of a text.
void refuseUnusableName(const std::string& name) {
    if (name.empty()) {
        throw Failure(ExitCode::BadUsage, "a custom property needs a name");
    }
    if (name.front() == ' ' || name.back() == ' ') {
        throw Failure(ExitCode::BadUsage,
                      "\"" + name + "\": the settings keep no blank at the ends of a name");
    }
}

/// Of two lines with one id the dialog writes both, and the second would undo what is typed into
/// the first.
void refuseTakenName(const host::Session& session, const std::string& name) {
    for (const ShownProperty& each : readProperties(session)) {
        if (each.id == "QEMA_" + name) {
            throw Failure(ExitCode::BadUsage, "there is a property \"" + each.name + "\" already");
        }
    }
}

void add(host::Session& session, const std::string& name) {
    refuseUnusableName(name);
    refuseTakenName(session, name);
    session.click("propertyAdd");
    const Ptr<TableCommandInput> table = session.table(kTable);
    host::pasteText(table->getInputAtPosition(table->rowCount() - 1, 0), name);
    save(session);
}

void remove(host::Session& session, const std::string& name) {
    const std::vector<std::string> names = namesIn(session);
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end()) {
        throw Failure(ExitCode::BadUsage, "there is no custom property \"" + name + "\"");
    }
    session.selectRow(kTable, static_cast<int>(found - names.begin()));
    session.click("propertyDelete");
    save(session);
}

/// What the rows say that have a name: the others are not saved.
std::vector<std::string> namesToKeep(const host::Session& session) {
    std::vector<std::string> names = namesIn(session);
    names.erase(std::remove(names.begin(), names.end(), ""), names.end());
    return names;
}

/// Edits the list and saves it; returns the names that it then has to have.
std::vector<std::string> change(DialogRun& run, const UserPropertiesOptions& options) {
    std::vector<std::string> names;
    showList(run);
    run.act([&](host::Session& session) {
        if (options.action == UserPropertiesOptions::Action::Add) {
            add(session, options.name);
        } else {
            remove(session, options.name);
        }
        names = namesToKeep(session);
        session.cancel();
    });
    return names;
}

/// The add-in tells nobody of a list that its settings do not take, such as those that have no
/// place for one.
void refuseUntaken(const std::vector<std::string>& names, const host::Session& session,
                   const std::string& name) {
    if (namesToKeep(session) != names) {
        throw Failure(ExitCode::AddinFailed,
                      "\"" + name + "\": the add-in's settings did not take the list");
    }
}

}  // namespace

void runUserProperties(const UserPropertiesOptions& options) {
    DialogRun run(options.addin);
    if (options.action == UserPropertiesOptions::Action::List) {
        showList(run);
    } else {
        const std::vector<std::string> names = change(run, options);
        showList(run);
        refuseUntaken(names, run.session(), options.name);
    }
    for (const std::string& name : namesIn(run.session())) {
        std::cout << printable(name) << "\n";
    }
    run.act([](host::Session& session) { session.cancel(); });
    if (!std::cout.flush()) {
        throw Failure(ExitCode::OutputFailed, "cannot write to stdout");
    }
}

}  // namespace workbench
