#include "host/session/session_folder.h"

#include "host/base/utf8_path.h"
#include "host/session/environment.h"
#include "host/session/process_state.h"
#include "host/session/session_error.h"

#include <random>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr const char* kPrefix = "standin-";
constexpr std::size_t kDigits = 9;

/// Whether a name is one that `makeProcessFolder` gives: folders of others are not touched.
bool isOfAProcess(const std::string& name) {
    const std::string prefix = kPrefix;
    return name.size() == prefix.size() + kDigits && name.starts_with(prefix) &&
           name.find_first_not_of("0123456789", prefix.size()) == std::string::npos;
}

/// Removes the folder of a process that no longer lives. One that was killed early left no lock.
void removeIfAbandoned(const fs::path& folder) {
    std::error_code ignored;
    std::unique_ptr<FolderLock> lock = FolderLock::take(folder);
    if (lock) {
        // While the lock is held: its owner could be about to take it.
        fs::remove_all(folder, ignored);
        lock.reset();
        // Some systems do not remove a locked file.
        fs::remove(folder / "lock", ignored);
        fs::remove(folder, ignored);
    }
}

void removeLeftovers(const fs::path& parent) {
    std::error_code ignored;
    std::vector<fs::path> folders;
    for (const fs::directory_entry& entry : fs::directory_iterator(parent, ignored)) {
        if (isOfAProcess(toUtf8(entry.path().filename())) && entry.is_directory(ignored)) {
            folders.push_back(entry.path());
        }
    }
    for (const fs::path& folder : folders) {
        removeIfAbandoned(folder);
    }
}

/// Digits alone: the name is part of a module's path, whose letters the module may examine.
std::string randomDigits() {
    std::random_device device;
    return std::to_string(100'000'000 + device() % 900'000'000);
}

ProcessFolder makeProcessFolder(const fs::path& parent) {
    fs::create_directories(parent);
    removeLeftovers(parent);
    constexpr int kAttempts = 20;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        const fs::path folder = parent / (kPrefix + randomDigits());
        if (environment::makePrivateFolder(folder)) {
            // Another process that cleans up may have been quicker than this lock.
            std::unique_ptr<FolderLock> lock = FolderLock::take(folder);
            if (lock && fs::exists(folder / "lock")) {
                return {folder, std::move(lock)};
            }
        }
    }
    throw SessionError("cannot make a private folder in " + toUtf8(parent));
}

/// This process's folder in `parent`.
ProcessFolder& processFolder(const fs::path& parent) {
    auto& folders = processState().folders;
    const auto known = folders.find(parent);
    if (known != folders.end()) {
        return known->second;
    }
    return folders.emplace(parent, makeProcessFolder(parent)).first->second;
}

/// Removes the process's folder once nothing is left in it.
void sessionFolderIsGone(const fs::path& folder) {
    auto& folders = processState().folders;
    const auto found = folders.find(folder.parent_path().parent_path());
    if (found != folders.end() && --found->second.present == 0) {
        folders.erase(found);
        std::error_code ignored;
        fs::remove_all(folder.parent_path(), ignored);
    }
}

}  // namespace

SessionFolder::SessionFolder(fs::path path, std::unique_ptr<FolderLock> lock)
    : path_(std::move(path)), lock_(std::move(lock)) {}

SessionFolder SessionFolder::makeFresh(const fs::path& parent) {
    fs::path place = fs::absolute(parent.empty() ? fs::temp_directory_path() : parent);
    place = (place / "").lexically_normal().parent_path();
    ProcessFolder& process = processFolder(place);
    const fs::path folder = process.path / std::to_string(++process.made);
    fs::create_directories(folder);
    ++process.present;
    return {folder, nullptr};
}

SessionFolder SessionFolder::keep(const fs::path& home, std::chrono::milliseconds lockTimeout) {
    const fs::path folder = fs::absolute(home);
    std::error_code failure;
    fs::create_directories(folder, failure);
    if (failure) {
        throw SessionError("cannot make the folder " + toUtf8(folder) + ": " + failure.message());
    }
    const auto end = std::chrono::steady_clock::now() + lockTimeout;
    constexpr std::chrono::milliseconds kPause(20);
    for (;;) {
        if (std::unique_ptr<FolderLock> lock = FolderLock::take(folder)) {
            return {folder, std::move(lock)};
        }
        if (std::chrono::steady_clock::now() >= end) {
            throw SessionError("another process is using " + toUtf8(folder));
        }
        std::this_thread::sleep_for(kPause);
    }
}

void SessionFolder::discard(const fs::path& spared) const {
    if (lock_ != nullptr) {
        return;
    }
    std::error_code ignored;
    if (spared.empty()) {
        fs::remove_all(path_, ignored);
        sessionFolderIsGone(path_);
        return;
    }
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(path_, ignored)) {
        if (!entry.is_directory(ignored) && entry.path() != spared) {
            files.push_back(entry.path());
        }
    }
    for (const fs::path& file : files) {
        fs::remove(file, ignored);
    }
}

}  // namespace host
