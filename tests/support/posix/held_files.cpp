#include "tests/support/held_files.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>

namespace test_support {
namespace {

/// The file's attribute "append only", which binds the superuser as well.
class AppendOnly {
public:
    explicit AppendOnly(const std::filesystem::path& path)
        : file_(::open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
        if (file_ < 0 || ::ioctl(file_, FS_IOC_GETFLAGS, &before_) != 0) {
            return;
        }
        const int kept = before_ | FS_APPEND_FL;
        isSet_ = ::ioctl(file_, FS_IOC_SETFLAGS, &kept) == 0;
    }
    AppendOnly(const AppendOnly&) = delete;
    AppendOnly& operator=(const AppendOnly&) = delete;
    ~AppendOnly() {
        if (isSet_) {
            ::ioctl(file_, FS_IOC_SETFLAGS, &before_);
        }
        if (file_ >= 0) {
            ::close(file_);
        }
    }

    [[nodiscard]] bool isSet() const { return isSet_; }

private:
    int file_;
    int before_ = 0;
    bool isSet_ = false;
};

/// A limit to what this process may write into any file: no mode of a file binds the superuser.
struct WritesNothing {
    WritesNothing() {
        // Ignored, the signal leaves the failing call to its caller.
        onTooLarge = std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &before);
        const rlimit none = {.rlim_cur = 0, .rlim_max = before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &none);
    }
    WritesNothing(const WritesNothing&) = delete;
    WritesNothing& operator=(const WritesNothing&) = delete;
    ~WritesNothing() {
        ::setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, onTooLarge);
    }

    rlimit before = {};
    void (*onTooLarge)(int) = SIG_DFL;
};

}  // namespace

std::shared_ptr<void> holdUndeletable(const std::filesystem::path& file) {
    const auto hold = std::make_shared<AppendOnly>(file);
    return hold->isSet() ? hold : nullptr;
}

std::shared_ptr<void> holdUnwritable(const std::filesystem::path& /*file*/) {
    return std::make_shared<WritesNothing>();
}

}  // namespace test_support
