#include "host/design/atomic_file.h"

#include <fcntl.h>
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

    bool close() {
        const int number = std::exchange(number_, -1);
        return number < 0 || ::close(number) == 0;
    }

private:
    int number_;
};

/// The file that a link leads to; the path itself where there is none yet.
fs::path target(const fs::path& path) {
    std::error_code error;
    const fs::path real = fs::canonical(path, error);
    return error ? path : real;
}

int createBeside(const fs::path& path, fs::path& created) {
    for (int attempt = 0; attempt < 100; ++attempt) {
        created = path;
        created += ".new-" + std::to_string(::getpid()) + "-" + std::to_string(attempt);
        const int number = ::open(created.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (number >= 0 || errno != EEXIST) {
            return number;
        }
    }
    return -1;
}

/// The error of the first step that fails, 0 when the content has come down to the disk.
int fill(Descriptor& file, const fs::path& replaced, std::string_view content) {
    struct ::stat before = {};
    if (::stat(replaced.c_str(), &before) == 0 &&
        ::fchmod(file.number(), before.st_mode & 07777) != 0) {
        return errno;
    }
    while (!content.empty()) {
        const ssize_t written = ::write(file.number(), content.data(), content.size());
        if (written < 0 && errno != EINTR) {
            return errno;
        }
        content.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
    return ::fsync(file.number()) == 0 && file.close() ? 0 : errno;
}

/// Makes the new name last. The content is safe already, so a folder that cannot be synced is no
/// failure.
void syncFolder(const fs::path& file) {
    const fs::path folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
    const Descriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.number() >= 0) {
        (void)::fsync(opened.number());
    }
}

}  // namespace

void writeFileAtomically(const fs::path& path, std::string_view content) {
    const fs::path real = target(path);
    fs::path created;
    Descriptor file(createBeside(real, created));
    if (file.number() < 0) {
        throwSystemError(errno, "cannot be created");
    }
    int error = fill(file, real, content);
    if (error == 0 && ::rename(created.c_str(), real.c_str()) != 0) {
        error = errno;
    }
    if (error != 0) {
        (void)::unlink(created.c_str());
        throwSystemError(error, "cannot be written");
    }
    syncFolder(real);
}

}  // namespace host
