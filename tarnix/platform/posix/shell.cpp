#include "tarnix/platform/native.h"
#include "tarnix/platform/posix/paths.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <sstream>

namespace tarnix::platform::native {
namespace {

/// Whether a program of this name is in one of the folders of PATH.
bool isInstalled(const std::string& program) {
    const char* const folders = std::getenv("PATH");
    std::istringstream path(folders != nullptr ? folders : "");
    for (std::string file; std::getline(path, file, ':');) {
        file.append("/").append(program);
        if (::access(file.c_str(), X_OK) == 0) {
            return true;
        }
    }
    return false;
}

/// What a spawned program starts with: silent, with nothing of this process left open, and with
/// signals as usual.
class Surroundings {
public:
    Surroundings() {
        ::posix_spawn_file_actions_init(&files);
        constexpr std::array<int, 3> standard = {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO};
        for (const int descriptor : standard) {
            ::posix_spawn_file_actions_addopen(&files, descriptor, "/dev/null", O_RDWR, 0);
        }
        ::posix_spawn_file_actions_addclosefrom_np(&files, STDERR_FILENO + 1);
        ::posix_spawnattr_init(&attributes);
        sigset_t none;
        ::sigemptyset(&none);
        ::posix_spawnattr_setsigmask(&attributes, &none);
        ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
    }
    Surroundings(const Surroundings&) = delete;
    Surroundings& operator=(const Surroundings&) = delete;
    ~Surroundings() {
        ::posix_spawn_file_actions_destroy(&files);
        ::posix_spawnattr_destroy(&attributes);
    }

    posix_spawn_file_actions_t files = {};
    posix_spawnattr_t attributes = {};
};

/// The argument for `xdg-open`: a path in this system's terms, an address as it stands.
std::string argumentFor(const std::string& target) {
    return target.starts_with('\\') ? nativePath(target) : target;
}

/// Waits for a child; true if it went well.
bool succeeded(pid_t child) {
    int status = 0;
    while (::waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) {
            // Someone else collects all children here, so the program was started.
            return errno == ECHILD;
        }
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace

bool openWithShell(const std::string& target, ShellTarget /*kind*/) {
    std::string argument = argumentFor(target);
    // `xdg-open` would take it for one of its options.
    if (argument.empty() || argument.starts_with('-') || !isInstalled("xdg-open")) {
        return false;
    }
    // `setsid --fork` leaves at once and its child to the system, so nothing is left to collect,
    // and what the user opened does not end with this process.
    std::array<std::string, 3> words = {"setsid", "--fork", "xdg-open"};
    std::array<char*, 5> arguments = {words[0].data(), words[1].data(), words[2].data(),
                                      argument.data(), nullptr};
    const Surroundings surroundings;
    pid_t child = 0;
    return ::posix_spawnp(&child, "setsid", &surroundings.files, &surroundings.attributes,
                          arguments.data(), environ) == 0 &&
           succeeded(child);
}

}  // namespace tarnix::platform::native
