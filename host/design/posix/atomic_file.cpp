#include "host/design/atomic_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

namespace host {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void throwSystemError(int error, const std::string& what) {
    throw std::system_error(error, std::generic_category(), what);
}

/// A file descriptor that is open for as long as this lives.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { close(); }

    [[nodiscard]] int number() const { return number_; }
    int release() { return std::exchange(number_, -1); }

    void close() {
        const int number = std::exchange(number_, -1);
        if (number >= 0) {
            (void)::close(number);
        }
    }

private:
    int number_;
};

fs::path folderOf(const fs::path& file) {
    return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

/// The file that a link leads to; the path itself where there is none yet.
fs::path target(const fs::path& path) {
    std::error_code error;
    const fs::path real = fs::canonical(path, error);
    return error ? path : real;
}

constexpr std::string_view kNewMark = ".new-";

/// Whether a name is that of a new file beside `path`: its own, the mark, and two numbers.
bool isNewFileOf(const fs::path& path, const std::string& name) {
    const std::string begin = path.filename().string() + std::string(kNewMark);
    return name.size() > begin.size() && name.starts_with(begin) &&
           name.find_first_not_of("0123456789-", begin.size()) == std::string::npos;
}

/// Whether an opened file is still the one of this name.
bool isStill(int number, const fs::path& name) {
    struct ::stat opened = {};
    struct ::stat named = {};
    return ::fstat(number, &opened) == 0 && ::stat(name.c_str(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

/// Locks an opened file unless another process needs it, or has removed it.
bool hold(int number, const fs::path& name) {
    return ::flock(number, LOCK_EX | LOCK_NB) == 0 && isStill(number, name);
}

/// Removes the new files beside `path` that processes left which were killed: the others hold a
/// lock on theirs. Each stays locked until its name is gone, so that no other
/// process begins to use it.
void removeAbandoned(const fs::path& path) {
    std::error_code ignored;
    for (const fs::directory_entry& entry : fs::directory_iterator(folderOf(path), ignored)) {
        const fs::path& name = entry.path();
        if (!isNewFileOf(path, name.filename().string())) {
            continue;
        }
        const Descriptor opened(::open(name.c_str(), O_RDONLY | O_CLOEXEC));
        if (opened.number() >= 0 && hold(opened.number(), name)) {
            (void)::unlink(name.c_str());
        }
    }
}

int createBeside(const fs::path& path, fs::path& created) {
    for (int attempt = 0; attempt < 100; ++attempt) {
        created = path;
        created +=
            std::string(kNewMark) + std::to_string(::getpid()) + "-" + std::to_string(attempt);
        Descriptor file(::open(created.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
        if (file.number() < 0 && errno != EEXIST) {
            return -1;
        }
        if (file.number() >= 0 && hold(file.number(), created)) {
            return file.release();
        }
    }
    return -1;
}

/// The error of the first step that fails, 0 when the content has come down to the disk.
int fill(const Descriptor& file, const fs::path& replaced, std::string_view content) {
    struct ::stat before = {};
    const bool isThere = ::stat(replaced.c_str(), &before) == 0;
    // A device that is replaced is lost to every program.
    if (isThere && !S_ISREG(before.st_mode)) {
        return S_ISDIR(before.st_mode) ? EISDIR : ENOTSUP;
    }
    if (isThere && ::fchmod(file.number(), before.st_mode & 07777) != 0) {
        return errno;
    }
    while (!content.empty()) {
        const ssize_t written = ::write(file.number(), content.data(), content.size());
        if (written < 0 && errno != EINTR) {
            return errno;
        }
        content.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
    return ::fsync(file.number()) == 0 ? 0 : errno;
}

/// Makes the new name last. The content is safe already, so a folder that cannot be synced is no
/// failure.
void syncFolder(const fs::path& file) {
    const Descriptor opened(::open(folderOf(file).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.number() >= 0) {
        (void)::fsync(opened.number());
    }
}

}  // namespace

AtomicFile::AtomicFile(const fs::path& path, std::string_view content) : path_(target(path)) {
    removeAbandoned(path_);
    Descriptor file(createBeside(path_, created_));
    if (file.number() < 0) {
        throwSystemError(errno, "cannot be created");
    }
    if (const int error = fill(file, path_, content); error != 0) {
        (void)::unlink(created_.c_str());
        throwSystemError(error, "cannot be written");
    }
    hold_ = file.release();
}

AtomicFile::AtomicFile(AtomicFile&& other) noexcept
    : path_(std::move(other.path_)),
      created_(std::exchange(other.created_, {})),
      hold_(std::exchange(other.hold_, -1)) {}

AtomicFile::~AtomicFile() {
    if (!created_.empty()) {
        (void)::unlink(created_.c_str());
    }
    const Descriptor closed(static_cast<int>(hold_));
}

void AtomicFile::commit() {
    if (::rename(created_.c_str(), path_.c_str()) != 0) {
        throwSystemError(errno, "cannot be written");
    }
    created_.clear();
    syncFolder(path_);
}

void writeFileAtomically(const fs::path& path, std::string_view content) {
    AtomicFile(path, content).commit();
}

}  // namespace host
