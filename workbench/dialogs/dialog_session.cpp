#include "workbench/dialogs/dialog_session.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/addin_session.h"
#include "workbench/output/display_text.h"

#include "host/design/design_file.h"

#include <cstddef>
#include <iostream>
#include <stdexcept>

namespace workbench {
namespace {

/// Ends the program where the add-in threw what it does not as a matter of course.
void refuseFailedAddin(const host::Session& session) {
    const std::string thrown = explain(session, "");
    if (!thrown.empty()) {
        throw Failure(ExitCode::AddinFailed, thrown);
    }
}

void tellMessages(const host::Session& session, std::size_t since) {
    for (std::size_t i = since; i < session.messages().size(); ++i) {
        std::cerr << "the add-in says: " << printable(session.messages()[i].text) << "\n";
    }
}

}  // namespace

DialogRun::DialogRun(const std::string& addin) : DialogRun(userSession(addin)) {}

DialogRun::DialogRun(const host::SessionOptions& options) : session_(startSession(options)) {
    if (!session_->run()) {
        throw Failure(ExitCode::AddinFailed, explain(*session_, "the add-in did not start"));
    }
}

void DialogRun::act(const std::function<void(host::Session&)>& steps) {
    const std::size_t before = session_->messages().size();
    try {
        steps(*session_);
    } catch (const Failure&) {
        throw;
    } catch (const std::runtime_error& obstacle) {
        refuseFailedAddin(*session_);
        throw Failure(ExitCode::BadUsage, obstacle.what());
    }
    tellMessages(*session_, before);
    refuseFailedAddin(*session_);
}

void DialogRun::open(const std::string& command) {
    act([&](host::Session& session) { session.press(command); });
    if (!session_->dialogOpen()) {
        throw Failure(ExitCode::AddinFailed, "the add-in opened no dialog for " + command);
    }
}

void DialogRun::save(const std::filesystem::path& file) {
    try {
        session_->save(file);
    } catch (const host::DesignError& error) {
        throw Failure(ExitCode::OutputFailed, error.what());
    }
}

}  // namespace workbench
