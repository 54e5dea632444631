#include "tests/tarnix/platform/test_system.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <utility>

namespace tarnix::test {
namespace {

constexpr time_t kLongAgo = 978'307'200;  // 2001-01-01

}  // namespace

std::shared_ptr<void> loadModule(const std::filesystem::path& path) {
    void* const module = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    return {module, [](void* handle) {
                if (handle != nullptr) {
                    ::dlclose(handle);
                }
            }};
}

void* functionOf(const std::shared_ptr<void>& module, const char* name) {
    return ::dlsym(module.get(), name);
}

std::filesystem::path longPath(const std::filesystem::path& path) { return path; }

long processNumber() { return ::getpid(); }

ReadWatch::ReadWatch(std::filesystem::path file) : file_(std::move(file)) {
    // Long ago, so that file systems which are sparing with this time note the next access.
    const std::array<timespec, 2> times = {
        {{.tv_sec = kLongAgo, .tv_nsec = 0}, {.tv_sec = 0, .tv_nsec = UTIME_OMIT}}};
    ::utimensat(AT_FDCWD, file_.c_str(), times.data(), 0);
}

bool ReadWatch::wasRead() const {
    struct stat state = {};
    return ::stat(file_.c_str(), &state) != 0 || state.st_atim.tv_sec != kLongAgo;
}

namespace {

/// Takes from a folder the right to delete what it holds. The superuser has it anyway, and becomes
/// another user meanwhile.
struct ForbiddenFolder {
    explicit ForbiddenFolder(std::filesystem::path folder) : path(std::move(folder)) {
        ::chmod(path.c_str(), 0555);
        if (user == 0) {
            constexpr uid_t nobody = 65534;
            static_cast<void>(::seteuid(nobody));
        }
    }
    ForbiddenFolder(const ForbiddenFolder&) = delete;
    ForbiddenFolder& operator=(const ForbiddenFolder&) = delete;
    ~ForbiddenFolder() {
        static_cast<void>(::seteuid(user));
        ::chmod(path.c_str(), 0755);
    }

    std::filesystem::path path;
    uid_t user = ::geteuid();
};

}  // namespace

std::shared_ptr<void> holdUndeletable(const std::filesystem::path& file) {
    ::chmod(file.c_str(), 0666);
    auto folder = std::make_shared<ForbiddenFolder>(file.parent_path());
    const bool isHeld = ::access(file.c_str(), F_OK) == 0 &&
                        ::faccessat(AT_FDCWD, folder->path.c_str(), W_OK, AT_EACCESS) != 0;
    return isHeld ? std::move(folder) : nullptr;
}

}  // namespace tarnix::test
