#include "workbench/dialogs/addin_session.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/uncaught.h"

#include "host/base/utf8_path.h"
#include "host/session/environment.h"

namespace workbench {

namespace fs = std::filesystem;

fs::path userFolder() {
    const fs::path data = host::environment::userDataFolder();
    if (data.empty()) {
        throw Failure(ExitCode::NoAddin, "no folder for user data: set XDG_DATA_HOME or HOME");
    }
    return data / "tarnix-workbench";
}

fs::path addinFolder(const std::string& named) {
    return named.empty() ? host::environment::programFolder().parent_path() / "Tarnix"
                         : host::fromUtf8(named);
}

host::SessionOptions userSession(const AddinChoice& choice) {
    host::SessionOptions session;
    session.addin = addinFolder(choice.addin);
    session.home =
        choice.dataHome.empty() ? userFolder() : fs::absolute(host::fromUtf8(choice.dataHome));
    session.lockTimeout = choice.lockTimeout;
    return session;
}

std::unique_ptr<host::Session> startSession(const host::SessionOptions& options) {
    try {
        return std::make_unique<host::Session>(options);
    } catch (const host::SessionError& error) {
        throw Failure(ExitCode::NoAddin, error.what());
    }
}

void runAddin(host::Session& session) {
    if (!session.run()) {
        throw Failure(ExitCode::AddinFailed, explain(session, "the add-in did not start"));
    }
}

std::string explain(const host::Session& session, const std::string& obstacle) {
    const std::string thrown = describeUnexpected(session.uncaughtExceptions());
    return thrown.empty() ? obstacle : thrown;
}

}  // namespace workbench
