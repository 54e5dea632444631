#include "host/session/session_folder.h"

#include "host/base/utf8_path.h"
#include "host/session/process_state.h"
#include "host/session/session_error.h"

#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace host {
namespace {

namespace fs = std::filesystem;

const FolderKind kProcessFolders = {.prefix = "standin-", .suffix = ""};

ProcessFolder makeProcessFolder(const fs::path& parent) {
    fs::create_directories(parent);
    std::error_code error;
    std::unique_ptr<OwnedFolder> folder = OwnedFolder::make(parent, kProcessFolders, error);
    if (!folder) {
        throw SessionError("cannot make a private folder in " + toUtf8(parent));
    }
    return {std::move(folder)};
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
    }
}

}  // namespace

SessionFolder::SessionFolder(fs::path path, std::unique_ptr<FolderLock> lock)
    : path_(std::move(path)), lock_(std::move(lock)) {}

SessionFolder SessionFolder::makeFresh(const fs::path& parent) {
    fs::path place = fs::absolute(parent.empty() ? fs::temp_directory_path() : parent);
    place = (place / "").lexically_normal().parent_path();
    ProcessFolder& process = processFolder(place);
    const fs::path folder = process.folder->path() / std::to_string(++process.made);
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
