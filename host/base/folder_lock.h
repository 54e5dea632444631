#pragma once

#include <filesystem>
#include <memory>

namespace host {

/// A folder that one process has to itself. The lock ends with its owner, or with the process,
/// however that ends.
class FolderLock {
public:
    /// Takes the lock of an existing folder at once, or returns null: another process has it, or
    /// the folder cannot be written. A second lock in the same process counts as another's.
    ///
    /// The lock is held on a file "lock" inside the folder.
    static std::unique_ptr<FolderLock> take(const std::filesystem::path& folder);

    /// Waits until no other process writes into the folder: between looking at a file there and
    /// replacing it, none can come that waits as well. It is no lock for `take`.
    ///
    /// It leaves nothing in the folder. Null where the system has no such lock for that folder.
    static std::unique_ptr<FolderLock> waitToWrite(const std::filesystem::path& folder);

    FolderLock() = default;
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    virtual ~FolderLock() = default;
};

}  // namespace host
