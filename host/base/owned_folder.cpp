#include "host/base/owned_folder.h"

#include "host/base/private_folder.h"
#include "host/base/utf8_path.h"

#include <cstddef>
#include <random>
#include <utility>
#include <vector>

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kDigits = 9;

bool isOfKind(const std::string& name, const FolderKind& kind) {
    if (name.size() != kind.prefix.size() + kDigits + kind.suffix.size() ||
        !name.starts_with(kind.prefix) || !name.ends_with(kind.suffix)) {
        return false;
    }
    const std::string digits = name.substr(kind.prefix.size(), kDigits);
    return digits.find_first_not_of("0123456789") == std::string::npos;
}

/// While the lock is held: another process could be about to take it. Some systems do not remove a
/// locked file, which goes afterwards.
void removeLocked(const fs::path& folder, std::unique_ptr<FolderLock> lock) {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
    if (lock) {
        lock.reset();
        fs::remove(folder / "lock", ignored);
        fs::remove(folder, ignored);
    }
}

void removeLeftovers(const fs::path& parent, const FolderKind& kind) {
    std::error_code error;
    std::vector<fs::path> folders;
    for (fs::directory_iterator entry(parent, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code unknown;
        const bool isFolder = fs::is_directory(entry->symlink_status(unknown));
        if (isFolder && isOfKind(toUtf8(entry->path().filename()), kind)) {
            folders.push_back(entry->path());
        }
    }
    for (const fs::path& folder : folders) {
        if (std::unique_ptr<FolderLock> lock = FolderLock::take(folder)) {
            removeLocked(folder, std::move(lock));
        }
    }
}

/// Digits alone: where the folder holds a module, they are part of its path, whose letters the
/// module may examine.
std::string randomDigits() {
    std::random_device device;
    return std::to_string(100'000'000 + device() % 900'000'000);
}

/// A lock that holds: another process that removes leftovers may have been quicker.
std::unique_ptr<FolderLock> lockNew(const fs::path& folder) {
    std::unique_ptr<FolderLock> lock = FolderLock::take(folder);
    std::error_code unknown;
    return lock && fs::exists(folder / "lock", unknown) ? std::move(lock) : nullptr;
}

}  // namespace

std::unique_ptr<OwnedFolder> OwnedFolder::make(const fs::path& parent, const FolderKind& kind,
                                               std::error_code& error) {
    removeLeftovers(parent, kind);
    constexpr int kAttempts = 20;
    for (int attempt = 1; attempt <= kAttempts; ++attempt) {
        const fs::path folder = parent / fromUtf8(kind.prefix + randomDigits() + kind.suffix);
        error = makePrivateFolder(folder);
        if (error == std::errc::file_exists) {
            continue;
        }
        if (error) {
            return nullptr;
        }
        std::unique_ptr<FolderLock> lock = lockNew(folder);
        if (lock || attempt == kAttempts) {
            return std::unique_ptr<OwnedFolder>(new OwnedFolder(folder, std::move(lock)));
        }
        removeLocked(folder, nullptr);
    }
    return nullptr;
}

OwnedFolder::OwnedFolder(fs::path path, std::unique_ptr<FolderLock> lock)
    : path_(std::move(path)), lock_(std::move(lock)) {}

OwnedFolder::~OwnedFolder() { removeLocked(path_, std::move(lock_)); }

}  // namespace host
