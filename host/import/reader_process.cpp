#include "host/import/reader_process.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <fstream>
#include <system_error>

namespace host {
namespace {

constexpr int kWatchMilliseconds = 20;
constexpr std::size_t kMegabyte = std::size_t{1024} * 1024;
constexpr std::size_t kLongestLine = 256 * kMegabyte;

std::string systemReason(int error) { return std::generic_category().message(error); }

/// How a child is started: what it inherits, and nothing else.
class SpawnSettings {
public:
    explicit SpawnSettings(int socket) {
        ::posix_spawn_file_actions_init(&files);
        ::posix_spawn_file_actions_adddup2(&files, socket, STDIN_FILENO);
        ::posix_spawn_file_actions_adddup2(&files, socket, STDOUT_FILENO);
        ::posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        ::posix_spawn_file_actions_addclosefrom_np(&files, STDERR_FILENO + 1);
        ::posix_spawnattr_init(&attributes);
        ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
        sigset_t signals;
        ::sigemptyset(&signals);
        ::posix_spawnattr_setsigmask(&attributes, &signals);
        ::sigfillset(&signals);
        ::posix_spawnattr_setsigdefault(&attributes, &signals);
    }
    SpawnSettings(const SpawnSettings&) = delete;
    SpawnSettings& operator=(const SpawnSettings&) = delete;
    ~SpawnSettings() {
        ::posix_spawn_file_actions_destroy(&files);
        ::posix_spawnattr_destroy(&attributes);
    }

    posix_spawn_file_actions_t files = {};
    posix_spawnattr_t attributes = {};
};

std::vector<char*> pointersTo(std::vector<std::string>& words) {
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

/// The memory that a process holds, in megabytes; 0 when it is unknown.
std::size_t residentMegabytes(pid_t process) {
    std::size_t size = 0;
    std::size_t resident = 0;
    std::ifstream("/proc/" + std::to_string(process) + "/statm") >> size >> resident;
    return resident * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE)) / kMegabyte;
}

/// With a point in every locale.
std::string shortNumber(double value) {
    constexpr std::size_t kLongest = 330;  // digits and zeros of the smallest number
    std::array<char, kLongest> digits = {};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                      std::chars_format::fixed);
    return {digits.data(), result.ptr};
}

}  // namespace

ReaderProcess::ReaderProcess(const std::filesystem::path& program,
                             const std::vector<std::string>& arguments, const ReadingLimits& limits)
    : limits_(limits) {
    std::array<int, 2> ends = {};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        throw ReaderFailure("the reader cannot be started (" + systemReason(errno) + ")");
    }
    std::vector<std::string> words = {program.string()};
    words.insert(words.end(), arguments.begin(), arguments.end());
    const SpawnSettings settings(ends[1]);
    const int error = ::posix_spawn(&process_, words.front().c_str(), &settings.files,
                                    &settings.attributes, pointersTo(words).data(), environ);
    ::close(ends[1]);
    if (error != 0) {
        ::close(ends[0]);
        throw ReaderFailure("the reader " + program.string() + " cannot be started (" +
                            systemReason(error) + ")");
    }
    socket_ = ends[0];
    startClock();
}

ReaderProcess::~ReaderProcess() { end(); }

void ReaderProcess::startClock() {
    deadline_ = std::chrono::steady_clock::now() +
                std::chrono::duration_cast<std::chrono::steady_clock::duration>(
                    std::chrono::duration<double>(limits_.seconds));
}

void ReaderProcess::send(const std::string& line) {
    const std::string bytes = line + '\n';
    std::size_t sent = 0;
    while (socket_ >= 0 && sent < bytes.size()) {
        // MSG_NOSIGNAL: a reader that has ended must not end this process by a signal.
        const ssize_t count =
            ::send(socket_, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
        if (count < 0 && errno != EINTR) {
            return;
        }
        sent += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
}

std::string ReaderProcess::receive() {
    std::string line;
    while (!takeLine(line)) {
        if (!failure_.empty()) {
            throw ReaderFailure(failure_);
        }
        checkLimits();
        pollfd socket = {socket_, POLLIN, 0};
        if (::poll(&socket, 1, kWatchMilliseconds) > 0) {
            readMore();
        }
    }
    return line;
}

bool ReaderProcess::takeLine(std::string& line) {
    const std::size_t end = unread_.find('\n', searched_);
    if (end == std::string::npos) {
        searched_ = unread_.size();
        return false;
    }
    line = unread_.substr(0, end);
    unread_.erase(0, end + 1);
    searched_ = 0;
    return true;
}

void ReaderProcess::readMore() {
    std::array<char, 65536> block = {};
    const ssize_t count = ::recv(socket_, block.data(), block.size(), 0);
    if (count > 0) {
        unread_.append(block.data(), static_cast<std::size_t>(count));
    } else if (count == 0 || errno != EINTR) {
        failWith(end());
    }
}

void ReaderProcess::checkLimits() {
    if (std::chrono::steady_clock::now() > deadline_) {
        end();
        failWith("the reader took longer than " + shortNumber(limits_.seconds) + " seconds");
    }
    if (unread_.size() > kLongestLine) {
        end();
        failWith("the reader's answer has no end");
    }
    if (residentMegabytes(process_) > limits_.megabytes) {
        end();
        failWith("the reader needed more than " + std::to_string(limits_.megabytes) +
                 " megabytes of memory");
    }
}

void ReaderProcess::failWith(const std::string& reason) {
    failure_ = reason;
    throw ReaderFailure(reason);
}

/// Ends the program and waits until it has ended; returns how it ended by itself.
std::string ReaderProcess::end() {
    if (process_ < 0) {
        return failure_;
    }
    ::close(socket_);
    socket_ = -1;
    // A program that closed its output has ended or is about to.
    ::kill(process_, SIGKILL);
    int status = 0;
    while (::waitpid(process_, &status, 0) < 0 && errno == EINTR) {
    }
    process_ = -1;
    if (WIFSIGNALED(status) && WTERMSIG(status) != SIGKILL) {
        return std::string("the reader crashed (") + ::strsignal(WTERMSIG(status)) + ")";
    }
    return "the reader ended without an answer";
}

}  // namespace host
