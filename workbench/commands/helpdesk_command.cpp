#include "workbench/cli/common_options.h"
#include "workbench/commands/commands.h"
#include "workbench/dialogs/addin_ids.h"
#include "workbench/dialogs/addin_session.h"
#include "workbench/dialogs/uncaught.h"
#include "workbench/output/display_text.h"
#include "workbench/output/reports.h"

#include "host/base/utf8_path.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <map>
#include <memory>
#include <system_error>
#include <vector>

namespace workbench {
namespace {

namespace fs = std::filesystem;

constexpr const char* kActionsHelp =
    "Actions:\n"
    "  open            make the support folder, and ask to open it\n"
    "  capture-screen  save a picture of the screen in it\n"
    "  capture-host    save a picture of the window titled \"Autodesk Fusion 360\" in it\n"
    "  system-info     write SystemInfo.txt in it\n"
    "  zip             pack its files into helpdesk.zip in it\n"
    "  clear           delete it; only after open or zip, which let the add-in remember it\n"
    "  guide           ask to open the user guide\n"
    "  go              ask to open the support provider's address\n"
    "What was done before an action that fails stays. Without a display there are no pictures.";

struct HelpdeskOptions {
    std::vector<std::string> actions;  ///< names of `kHelpdeskActions`, in the order of the presses
    AddinChoice addin;
    bool here = false;            ///< uses the user's own support folder, not that of the workbench
    bool open = false;            ///< lets the shell open what the add-in asks it to
    std::string language = "en";  ///< a key of `kLanguages`
};

/// The languages of the host that a user guide is chosen by.
const std::map<std::string, adsk::core::UserLanguages> kLanguages = {
    {"en", adsk::core::EnglishLanguage}, {"cs", adsk::core::CzechLanguage}};

host::SessionOptions sessionOptions(const HelpdeskOptions& options) {
    host::SessionOptions session = userSession(options.addin);
    session.language = kLanguages.at(options.language);
    session.shell = options.open ? host::shell_requests::Policy::RecordOpen
                                 : host::shell_requests::Policy::Record;
    session.useUserTempDir = options.here;
    session.system.sleepTakesTime = true;
    session.system.consoleMayHide = true;
    return session;
}

std::vector<std::string> actionNames() {
    std::vector<std::string> names;
    for (const HelpdeskAction& action : kHelpdeskActions) {
        names.emplace_back(action.name);
    }
    return names;
}

std::string commandOf(const std::string& action) {
    return std::ranges::find(kHelpdeskActions, action, &HelpdeskAction::name)->command;
}

/// What pressing the buttons left.
struct Outcome {
    fs::path supportFolder;  ///< empty where there is no folder for temporary files
    std::vector<std::string> opened;
    std::vector<host::Message> messages;
    std::vector<host::UncaughtException> thrown;
};

Outcome pressButtons(const HelpdeskOptions& options) {
    const std::unique_ptr<host::Session> session = startSession(sessionOptions(options));
    runAddin(*session);
    for (const std::string& action : options.actions) {
        session->press(commandOf(action));
    }
    std::error_code failure;
    // While the session lives: it decides about the folder for temporary files.
    const fs::path temporary = fs::temp_directory_path(failure);
    session->stop();
    return {.supportFolder = failure ? fs::path() : temporary / kSupportFolder,
            .opened = session->openedByShell(),
            .messages = session->messages(),
            .thrown = session->uncaughtExceptions()};
}

/// The names of what a folder holds, without sizes: the archive may still grow until this process
/// ends.
std::vector<std::string> sortedNames(const fs::path& folder, std::error_code& failure) {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, failure)) {
        names.push_back(printable(host::toUtf8(entry.path().filename())));
    }
    std::ranges::sort(names);
    return names;
}

void listFolder(const fs::path& folder) {
    if (folder.empty()) {
        std::cout << "Support folder: none, the system has no folder for temporary files\n";
        return;
    }
    std::error_code failure;
    const std::vector<std::string> names = sortedNames(folder, failure);
    std::cout << "Support folder: " << printable(host::toUtf8(folder))
              << (failure ? " (does not exist)\n" : "\n");
    for (const std::string& name : names) {
        std::cout << "  " << name << "\n";
    }
}

/// Presses helpdesk buttons of the add-in in one host, and prints the outcome.
void runHelpdesk(const HelpdeskOptions& options) {
    const Outcome outcome = pressButtons(options);
    reportShellRequests(std::cout, outcome.opened, options.open);
    reportMessages(outcome.messages);
    refuseUnexpected(outcome.thrown);
    listFolder(outcome.supportFolder);
}

}  // namespace

void addHelpdeskCommand(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "helpdesk", "Press helpdesk buttons of the add-in, in this order and in one host");
    HelpdeskOptions& options = optionsFor(command, runHelpdesk);
    command.add_option("ACTION", options.actions, "What to press")
        ->required()
        ->check(CLI::IsMember(actionNames()))
        ->type_name("");
    command.add_flag("--here", options.here,
                     "Use your own support folder, not that of the workbench");
    command.add_flag("--open", options.open, "Let the add-in open files and addresses");
    command
        .add_option("--language", options.language,
                    "The host's language, in which the user guide is opened: en or cs")
        ->check(CLI::IsMember({"en", "cs"}))
        ->type_name("LANGUAGE");
    addAddin(command, options.addin);
    command.footer(kActionsHelp);
}

}  // namespace workbench
