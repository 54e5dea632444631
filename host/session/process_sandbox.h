#pragma once

#include "host/session/environment.h"

#include <filesystem>
#include <map>
#include <optional>

namespace host {

/// Where a module makes its temporary files.
enum class TemporaryFiles { Private, UserTempDir };

/// The place a module runs in.
///
/// While it lives, the process stands in a private empty working directory and makes its temporary
/// files in a private folder, unless it is told to leave those where the person has them. What a
/// module deletes in either is nobody else's. At the end the process stands where it stood, with
/// the environment it had, and the working directory is gone.
class ProcessSandbox {
public:
    /// Makes both folders below `folder`, as "work" and "temp". A working directory that a run
    /// before left is emptied; temporary files of that run stay.
    explicit ProcessSandbox(const std::filesystem::path& folder,
                            TemporaryFiles temporaryFiles = TemporaryFiles::Private);
    ProcessSandbox(const ProcessSandbox&) = delete;
    ProcessSandbox& operator=(const ProcessSandbox&) = delete;
    ~ProcessSandbox();

    /// Where the process stood before: what a person's relative paths refer to.
    [[nodiscard]] const std::filesystem::path& startedIn() const { return startedIn_; }

private:
    std::filesystem::path startedIn_;
    std::filesystem::path work_;
    std::map<environment::Text, std::optional<environment::Text>> variables_;
};

}  // namespace host
