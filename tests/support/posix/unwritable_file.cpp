#include "tests/support/unwritable_file.h"

#include <sys/resource.h>

#include <csignal>

namespace test_support {

/// A limit to what this process may write into any file: no mode of a file binds the superuser.
struct UnwritableFile::Hold {
    rlimit before = {};
    void (*onTooLarge)(int) = SIG_DFL;
};

UnwritableFile::UnwritableFile(const std::filesystem::path& /*file*/)
    : hold_(std::make_unique<Hold>()) {
    // Ignored, the signal leaves the failing call to its caller.
    hold_->onTooLarge = std::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &hold_->before);
    const rlimit none = {.rlim_cur = 0, .rlim_max = hold_->before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &none);
}

UnwritableFile::~UnwritableFile() {
    ::setrlimit(RLIMIT_FSIZE, &hold_->before);
    std::signal(SIGXFSZ, hold_->onTooLarge);
}

}  // namespace test_support
