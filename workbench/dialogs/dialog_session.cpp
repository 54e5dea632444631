#include "workbench/dialogs/dialog_session.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/addin_session.h"
#include "workbench/dialogs/uncaught.h"
#include "workbench/output/reports.h"

#include <cstddef>
#include <stdexcept>

namespace workbench {

DialogSession::DialogSession(const AddinChoice& choice, DataUse use,
                             const std::function<void(host::SessionOptions&)>& adjust)
    : folder_(choice, use) {
    host::SessionOptions options = folder_.session();
    if (adjust) {
        adjust(options);
    }
    session_ = startSession(options);
    runAddin(*session_);
}

void DialogSession::act(const std::function<void(host::Session&)>& steps) {
    const std::size_t before = session_->messages().size();
    try {
        take(steps);
        reportMessages(session_->messages(), before);
        refuseUnexpected(session_->uncaughtExceptions());
    } catch (const Failure& failure) {
        throw folder_.explained(failure, *session_);
    }
}

void DialogSession::take(const std::function<void(host::Session&)>& steps) {
    try {
        steps(*session_);
    } catch (const Failure&) {
        throw;
    } catch (const std::runtime_error& obstacle) {
        refuseUnexpected(session_->uncaughtExceptions());
        throw Failure(ExitCode::BadUsage, obstacle.what());
    }
}

void DialogSession::open(const std::string& command) {
    act([&](host::Session& session) { session.press(command); });
    if (!session_->dialogOpen()) {
        throw Failure(ExitCode::AddinFailed, "the add-in did not open the dialog of " + command);
    }
}

}  // namespace workbench
