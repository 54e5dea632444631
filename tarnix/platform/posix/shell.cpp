#include "tarnix/platform/native.h"
#include "tarnix/platform/posix/paths.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <string>
#include <utility>

namespace tarnix::platform::native {
namespace {

/// How long the opener has to report a failure.
constexpr std::chrono::seconds kAnswerTime(2);

/// What one process writes into one end and another reads from the other.
class Pipe {
public:
    Pipe() { static_cast<void>(::pipe2(ends_.data(), O_CLOEXEC)); }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    ~Pipe() {
        closeEnd(ends_[0]);
        closeEnd(ends_[1]);
    }

    /// False where none could be made.
    explicit operator bool() const { return ends_[0] >= 0; }

    [[nodiscard]] int readEnd() const { return ends_[0]; }
    [[nodiscard]] int writeEnd() const { return ends_[1]; }

    /// After that the other process is the only one that can write.
    void closeWriteEnd() { closeEnd(ends_[1]); }

private:
    static void closeEnd(int& end) {
        if (end >= 0) {
            ::close(end);
        }
        end = -1;
    }

    std::array<int, 2> ends_ = {-1, -1};
};

/// What a spawned program starts with: its output goes to a descriptor, nothing else of this
/// process is left open, and signals are as usual.
class ProcessSandbox {
public:
    explicit ProcessSandbox(int output) {
        ::posix_spawn_file_actions_init(&files);
        ::posix_spawn_file_actions_adddup2(&files, output, STDOUT_FILENO);
        for (const int descriptor : {STDIN_FILENO, STDERR_FILENO}) {
            ::posix_spawn_file_actions_addopen(&files, descriptor, "/dev/null", O_RDWR, 0);
        }
        ::posix_spawn_file_actions_addclosefrom_np(&files, STDERR_FILENO + 1);
        ::posix_spawnattr_init(&attributes);
        sigset_t none;
        ::sigemptyset(&none);
        ::posix_spawnattr_setsigmask(&attributes, &none);
        ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
    }
    ProcessSandbox(const ProcessSandbox&) = delete;
    ProcessSandbox& operator=(const ProcessSandbox&) = delete;
    ~ProcessSandbox() {
        ::posix_spawn_file_actions_destroy(&files);
        ::posix_spawnattr_destroy(&attributes);
    }

    posix_spawn_file_actions_t files = {};
    posix_spawnattr_t attributes = {};
};

/// The argument for `xdg-open`: a path in this system's terms, an address unchanged.
std::string argumentFor(const std::string& target) {
    return target.starts_with('\\') ? nativePath(target) : target;
}

/// Starts the opener, whose exit status comes out of the pipe. False if nothing could be started.
bool startOpener(std::string argument, Pipe& answer) {
    // `setsid --fork` leaves at once and its child to the system, so nothing is left to collect,
    // and what the user opened does not end with this process.
    std::array<std::string, 5> words = {"setsid", "--fork", "sh", "-c",
                                        "xdg-open \"$1\" >/dev/null; echo $?"};
    std::array<char*, 8> arguments = {words[0].data(), words[1].data(), words[2].data(),
                                      words[3].data(), words[4].data(), words[2].data(),
                                      argument.data(), nullptr};
    const ProcessSandbox surroundings(answer.writeEnd());
    pid_t child = 0;
    const bool isStarted = ::posix_spawnp(&child, "setsid", &surroundings.files,
                                          &surroundings.attributes, arguments.data(), environ) == 0;
    answer.closeWriteEnd();
    while (isStarted && ::waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
    return isStarted;
}

/// Waits until there is something to read, or the other end is closed; false when time is up.
bool waitForAnswer(const Pipe& answer) {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point end = Clock::now() + kAnswerTime;
    pollfd awaited = {.fd = answer.readEnd(), .events = POLLIN, .revents = 0};
    int ready = -1;
    do {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
        ready = ::poll(&awaited, 1, static_cast<int>(std::max<long>(left.count(), 0)));
    } while (ready < 0 && errno == EINTR);
    return ready > 0;
}

/// Whether the opener has succeeded: one that goes on running has, and is not waited for.
bool isOpened(const Pipe& answer) {
    char first = '\0';
    return !waitForAnswer(answer) ||
           (::read(answer.readEnd(), &first, sizeof(first)) == sizeof(first) && first == '0');
}

}  // namespace

bool openWithShell(const std::string& target, ShellTarget /*kind*/) {
    std::string argument = argumentFor(target);
    // `xdg-open` would take it for one of its options.
    if (argument.empty() || argument.starts_with('-')) {
        return false;
    }
    Pipe answer;
    return answer && startOpener(std::move(argument), answer) && isOpened(answer);
}

}  // namespace tarnix::platform::native
