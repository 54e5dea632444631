#pragma once

#include "host/base/owned_folder.h"
#include "host/session/loaded_module.h"

#include <filesystem>
#include <map>
#include <memory>

namespace host {

/// A folder of this process, in which its sessions have theirs.
struct ProcessFolder {
    std::unique_ptr<OwnedFolder> folder;
    int made = 0;     ///< sessions so far
    int present = 0;  ///< those whose folders still exist
};

/// What belongs to the process and outlives each of its sessions.
struct ProcessState {
    /// By the folder in which they lie.
    std::map<std::filesystem::path, ProcessFolder> folders;

    /// Modules of kept homes that sessions left loaded, by their files.
    std::map<std::filesystem::path, LoadedModule> leftModules;
};

/// It is never destroyed: locks and modules end with the process.
ProcessState& processState();

}  // namespace host
