#pragma once

#include "host/session/environment.h"

#include <filesystem>
#include <map>
#include <optional>

namespace host {

/// Where a module makes its temporary files.
enum class TemporaryFiles { Private, UserTempDir };

/// The surroundings of a module: the working directory and the temporary folder of the process.
///
/// While it lives, the process has a private empty working directory, and makes its temporary files
/// in a private folder or, with `UserTempDir`, in the user's. A module may delete whatever it finds
/// in the private ones. The destructor restores the working directory and the environment, and
/// deletes the private working directory.
class ProcessSandbox {
public:
    /// Makes both folders below `folder`, as "work" and "temp". A working directory that an
    /// earlier run left is emptied; temporary files of that run are kept.
    explicit ProcessSandbox(const std::filesystem::path& folder,
                            TemporaryFiles temporaryFiles = TemporaryFiles::Private);
    ProcessSandbox(const ProcessSandbox&) = delete;
    ProcessSandbox& operator=(const ProcessSandbox&) = delete;
    ~ProcessSandbox();

    /// The working directory before: what the user's relative paths refer to.
    [[nodiscard]] const std::filesystem::path& startedIn() const { return startedIn_; }

private:
    std::filesystem::path startedIn_;
    std::filesystem::path work_;
    std::map<environment::Text, std::optional<environment::Text>> variables_;
};

}  // namespace host
