#include "tarnix/platform/posix/replace_file.h"

#include "tarnix/platform/posix/com_error.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace tarnix::platform {
namespace {

/// Throws what the system's last error is called in COM.
[[noreturn]] void raiseLastError() {
    const bool denied = errno == EACCES || errno == EPERM || errno == EROFS || errno == EISDIR;
    throw _com_error(denied ? E_ACCESSDENIED : E_FAIL);
}

/// A file that is gone again unless it takes the place of another.
class NewFile {
public:
    NewFile(std::string path, mode_t mode) : path_(std::move(path)) {
        // One that a crash of an earlier process of this number left.
        static_cast<void>(::unlink(path_.c_str()));
        descriptor_ = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        if (descriptor_ < 0) {
            raiseLastError();
        }
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile() {
        static_cast<void>(::close(descriptor_));
        static_cast<void>(::unlink(path_.c_str()));
    }

    void write(std::string_view content) const {
        while (!content.empty()) {
            const ssize_t written = ::write(descriptor_, content.data(), content.size());
            if (written < 0 && errno != EINTR) {
                raiseLastError();
            }
            content.remove_prefix(written > 0 ? static_cast<std::size_t>(written) : 0);
        }
        if (::fsync(descriptor_) != 0) {
            raiseLastError();
        }
    }

    void setMode(mode_t mode) const {
        // A file system without modes has none to keep.
        static_cast<void>(::fchmod(descriptor_, mode));
    }

    void takePlaceOf(const std::string& path) const {
        if (::rename(path_.c_str(), path.c_str()) != 0) {
            raiseLastError();
        }
    }

private:
    std::string path_;
    int descriptor_ = -1;
};

/// Where a path leads to: a link stays, and what it points to is replaced.
std::string resolved(const std::string& path) {
    std::error_code error;
    const std::filesystem::path target = std::filesystem::canonical(path, error);
    return error ? path : target.string();
}

}  // namespace

void replaceFile(const std::string& path, std::string_view content) {
    const std::string target = resolved(path);
    struct stat old = {};
    const bool exists = ::stat(target.c_str(), &old) == 0;
    if (exists && ::access(target.c_str(), W_OK) != 0) {
        raiseLastError();
    }
    constexpr mode_t everyone = 0666;
    const NewFile file(target + ".new-" + std::to_string(::getpid()), everyone);
    file.write(content);
    if (exists) {
        file.setMode(old.st_mode & 07777);
    }
    file.takePlaceOf(target);
}

}  // namespace tarnix::platform
