#pragma once

#include <filesystem>
#include <memory>

namespace host {

/// Keeps a folder to one process.
///
/// The lock is held on a file "lock" inside the folder. It ends with its owner, or with the
/// process, however that ends.
class FolderLock {
public:
    /// Takes the lock of an existing folder at once, or returns null: another process has it, or
    /// the folder cannot be written. A second lock in the same process counts as another's.
    static std::unique_ptr<FolderLock> take(const std::filesystem::path& folder);

    FolderLock() = default;
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    virtual ~FolderLock() = default;
};

}  // namespace host
