#include "workbench/commands/helpdesk_command.h"

#include "workbench/cli/exit_code.h"
#include "workbench/commands/helpdesk_actions.h"
#include "workbench/dialogs/addin_session.h"
#include "workbench/dialogs/uncaught.h"
#include "workbench/output/display_text.h"

#include "host/base/utf8_path.h"
#include "host/session/session.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <memory>
#include <system_error>

namespace workbench {
namespace {

namespace fs = std::filesystem;

host::SessionOptions sessionOptions(const HelpdeskOptions& options) {
    host::SessionOptions session = userSession(options.addin);
    session.shell = options.open ? host::shell_requests::Policy::RecordOpen
                                 : host::shell_requests::Policy::Record;
    session.useUserTempDir = options.here;
    session.system.sleepTakesTime = true;
    session.system.consoleMayHide = true;
    return session;
}

std::string commandOf(const std::string& action) {
    const auto* const found =
        std::find_if(std::begin(kHelpdeskActions), std::end(kHelpdeskActions),
                     [&](const HelpdeskAction& each) { return action == each.name; });
    return found->command;
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
    if (!session->run()) {
        throw Failure(ExitCode::AddinFailed, "the add-in did not start");
    }
    for (const std::string& action : options.actions) {
        session->press(commandOf(action));
    }
    std::error_code failure;
    // While the session lives: it decides about the folder for temporary files.
    const fs::path temporary = fs::temp_directory_path(failure);
    session->stop();
    return {failure ? fs::path() : temporary / kSupportFolder, session->openedByShell(),
            session->messages(), session->uncaughtExceptions()};
}

/// Tells what the add-in said and asked for; ends the program when it threw something.
void report(const Outcome& outcome, bool mayOpen) {
    for (const std::string& target : outcome.opened) {
        std::cout << "The add-in asked to open " << printable(target)
                  << (mayOpen ? "\n" : "; use --open to let it\n");
    }
    for (const host::Message& message : outcome.messages) {
        std::cerr << "the add-in says: " << printable(message.text) << "\n";
    }
    const auto first = std::find_if_not(outcome.thrown.begin(), outcome.thrown.end(), isOrdinary);
    if (first != outcome.thrown.end()) {
        throw Failure(ExitCode::AddinFailed, describe(*first));
    }
}

/// The names of what the support folder holds. Sizes are not told: the archive may still grow,
/// until this process ends.
void listFolder(const fs::path& folder) {
    std::error_code failure;
    std::vector<std::string> lines;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, failure)) {
        lines.push_back("  " + printable(host::toUtf8(entry.path().filename())) + "\n");
    }
    std::sort(lines.begin(), lines.end());
    std::cout << "Support folder: "
              << (folder.empty() ? "none, there is no folder for temporary files"
                                 : printable(host::toUtf8(folder)))
              << (failure && !folder.empty() ? ", not there\n" : "\n");
    for (const std::string& line : lines) {
        std::cout << line;
    }
}

}  // namespace

std::vector<std::string> helpdeskActions() {
    std::vector<std::string> names;
    for (const HelpdeskAction& action : kHelpdeskActions) {
        names.emplace_back(action.name);
    }
    return names;
}

void runHelpdesk(const HelpdeskOptions& options) {
    const Outcome outcome = pressButtons(options);
    report(outcome, options.open);
    listFolder(outcome.supportFolder);
}

}  // namespace workbench
