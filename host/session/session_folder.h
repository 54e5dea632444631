#pragma once

#include "host/base/folder_lock.h"

#include <chrono>
#include <filesystem>
#include <memory>

namespace host {

/// The folder a session keeps everything in: a fresh one that is deleted with the session, or a
/// given one that stays and is locked while it is used.
///
/// Fresh folders of one process lie together in one that is locked for as long as the process
/// lives. What a process left, because a loaded module's file cannot be deleted before the process
/// ends or because it crashed, is removed by the next one that makes a fresh folder in that place.
class SessionFolder {
public:
    /// A fresh folder below `parent`, which is made if missing; an empty parent means the system's
    /// folder for temporary files.
    static SessionFolder makeFresh(const std::filesystem::path& parent);

    /// The folder `home`, made if missing. Where another process has it, waits as long as
    /// `lockTimeout`, then throws a `SessionError`.
    static SessionFolder keep(const std::filesystem::path& home,
                              std::chrono::milliseconds lockTimeout);

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    /// Deletes a fresh folder as far as the system lets it, sparing one file; leaves a kept one.
    ///
    /// The module's file is spared while it is loaded: some systems refuse to delete it, and on the
    /// others a report of leaks at the end of the process reads the names of functions in it.
    void discard(const std::filesystem::path& spared) const;

private:
    SessionFolder(std::filesystem::path path, std::unique_ptr<FolderLock> lock);

    std::filesystem::path path_;
    std::unique_ptr<FolderLock> lock_;  ///< null for a fresh folder
};

}  // namespace host
