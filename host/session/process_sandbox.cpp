#include "host/session/process_sandbox.h"

namespace host {

namespace fs = std::filesystem;

ProcessSandbox::ProcessSandbox(const fs::path& folder, TemporaryFiles temporaryFiles)
    : startedIn_(fs::current_path()), work_(folder / "work") {
    const fs::path temporary = folder / "temp";
    fs::remove_all(work_);
    fs::create_directories(work_);
    fs::create_directories(temporary);
    fs::current_path(work_);
    if (temporaryFiles == TemporaryFiles::UserTempDir) {
        return;
    }
    for (const environment::Text& name : environment::temporaryFolderNames()) {
        variables_[name] = environment::variable(name);
        environment::setVariable(name, temporary.native());
    }
}

ProcessSandbox::~ProcessSandbox() {
    for (const auto& [name, value] : variables_) {
        environment::setVariable(name, value);
    }
    // The earlier working directory may have been deleted meanwhile; then the process keeps this
    // one.
    std::error_code ignored;
    fs::current_path(startedIn_, ignored);
    fs::remove_all(work_, ignored);
}

}  // namespace host
