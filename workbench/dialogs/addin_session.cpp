#include "workbench/dialogs/addin_session.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/uncaught.h"

#include "host/base/utf8_path.h"
#include "host/session/environment.h"

#include <algorithm>

namespace workbench {

namespace fs = std::filesystem;

fs::path userFolder() {
    const fs::path data = host::environment::userDataFolder();
    if (data.empty()) {
        throw Failure(ExitCode::NoAddin,
                      "the system names no folder for a user's data: set XDG_DATA_HOME or HOME");
    }
    return data / "tarnix-workbench";
}

host::SessionOptions userSession(const std::string& addin) {
    host::SessionOptions session;
    session.addin = addin.empty() ? host::environment::programFolder().parent_path() / "Tarnix"
                                  : host::fromUtf8(addin);
    session.home = userFolder();
    return session;
}

std::unique_ptr<host::Session> startSession(const host::SessionOptions& options) {
    try {
        return std::make_unique<host::Session>(options);
    } catch (const host::SessionError& error) {
        throw Failure(ExitCode::NoAddin, error.what());
    }
}

std::string explain(const host::Session& session, const std::string& obstacle) {
    const auto first = std::find_if_not(session.uncaughtExceptions().begin(),
                                        session.uncaughtExceptions().end(), isOrdinary);
    return first != session.uncaughtExceptions().end() ? describe(*first) : obstacle;
}

}  // namespace workbench
