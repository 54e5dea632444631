#include "host/import/private_copy.h"

#include "host/base/utf8_path.h"
#include "host/import/step_import.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>
#include <vector>

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr const char* kCopyPrefix = "standin-reading-";

/// A lock on a folder, by which its owner shows that it still lives. It ends with the descriptor,
/// and so with the process, in whatever container that is.
struct CopyLock {
    int descriptor = -1;   ///< -1 where the folder cannot be opened
    bool isTaken = false;  ///< by this process
};

CopyLock lockFolder(const fs::path& folder) {
    CopyLock lock;
    lock.descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    lock.isTaken = lock.descriptor >= 0 && ::flock(lock.descriptor, LOCK_EX | LOCK_NB) == 0;
    return lock;
}

void closeLock(const CopyLock& lock) {
    if (lock.descriptor >= 0) {
        ::close(lock.descriptor);
    }
}

void removeIfLeft(const fs::path& folder) {
    const CopyLock lock = lockFolder(folder);
    if (lock.isTaken) {
        // While the lock is held: its owner could be about to take it.
        std::error_code ignored;
        fs::remove_all(folder, ignored);
    }
    closeLock(lock);
}

void removeLeftCopies(const fs::path& parent) {
    std::error_code error;
    std::vector<fs::path> folders;
    for (fs::directory_iterator entry(parent, error), end; !error && entry != end;
         entry.increment(error)) {
        if (entry->path().filename().string().starts_with(kCopyPrefix)) {
            folders.push_back(entry->path());
        }
    }
    for (const fs::path& folder : folders) {
        removeIfLeft(folder);
    }
}

/// Whether a folder that was just made and locked is still there: another process that removes
/// leftovers may have been quicker than the lock.
bool isThere(const CopyLock& lock) {
    struct stat status = {};
    return ::fstat(lock.descriptor, &status) == 0 && status.st_nlink > 0;
}

/// Makes a folder, and locks it where its file system can.
fs::path makeCopyFolder(const std::string& shown, int& descriptor) {
    std::error_code error;
    const fs::path parent = fs::temp_directory_path(error);
    removeLeftCopies(parent);
    constexpr int kAttempts = 20;
    for (int attempt = 0; !error && attempt < kAttempts; ++attempt) {
        std::string name = (parent / (std::string(kCopyPrefix) + "XXXXXX")).string();
        if (::mkdtemp(name.data()) == nullptr) {
            break;
        }
        const CopyLock lock = lockFolder(name);
        const bool isOthers = !lock.isTaken && errno == EWOULDBLOCK;
        if (lock.descriptor >= 0 && !isOthers && isThere(lock)) {
            descriptor = lock.descriptor;
            return name;
        }
        closeLock(lock);
    }
    throw ImportError(shown + ": cannot be copied into " + toUtf8(parent) + " (" +
                      std::generic_category().message(errno) +
                      "); set TMPDIR to a folder that may be written to");
}

}  // namespace

PrivateCopy::PrivateCopy(const std::string& name, std::string shown, std::uintmax_t limit)
    : shown_(std::move(shown)), left_(limit), path_(makeCopyFolder(shown_, lock_) / name) {
    stream_.open(path_, std::ios::binary);
}

PrivateCopy::~PrivateCopy() {
    std::error_code ignored;
    fs::remove_all(path_.parent_path(), ignored);
    ::close(lock_);
}

void PrivateCopy::append(const char* bytes, std::size_t count) {
    if (count > left_) {
        throw ImportError(shown_ +
                              ": is too large for the memory that may be used; open a part of the "
                              "assembly, or increase the limit",
                          ReadingLimit::Megabytes);
    }
    left_ -= count;
    stream_.write(bytes, static_cast<std::streamsize>(count));
}

void PrivateCopy::finish() {
    stream_.close();
    if (!stream_) {
        throw ImportError(shown_ + ": cannot be copied into " + toUtf8(path_.parent_path()) +
                          "; is the disk full?");
    }
}

}  // namespace host
