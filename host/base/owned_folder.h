#pragma once

#include "host/base/folder_lock.h"

#include <filesystem>
#include <memory>
#include <string>
#include <system_error>

namespace host {

/// Folders that belong together: their names are a prefix, nine digits and a suffix.
struct FolderKind {
    std::string prefix;
    std::string suffix;
};

/// A folder that this process made for itself, and that only this user may enter. Its lock shows
/// that the process lives; it goes with this object.
///
/// What processes left that were killed is removed when another folder of the kind is made in that
/// place, however old it is. What another process has locked stays, and so does what is not of the
/// kind.
class OwnedFolder {
public:
    /// Makes a folder in `parent`, which has to exist; null with an `error` where it cannot be
    /// made. On a file system without locks it has none, and what is left there stays.
    static std::unique_ptr<OwnedFolder> make(const std::filesystem::path& parent,
                                             const FolderKind& kind, std::error_code& error);

    OwnedFolder(const OwnedFolder&) = delete;
    OwnedFolder& operator=(const OwnedFolder&) = delete;
    ~OwnedFolder();

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

private:
    OwnedFolder(std::filesystem::path path, std::unique_ptr<FolderLock> lock);

    std::filesystem::path path_;
    std::unique_ptr<FolderLock> lock_;
};

}  // namespace host
