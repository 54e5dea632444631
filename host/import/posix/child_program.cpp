#include "host/import/child_program.h"

#include "host/import/reader_connection.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <system_error>

namespace host {
namespace {

constexpr std::size_t kBytesPerMegabyte = std::size_t{1024} * 1024;

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

}  // namespace

struct ChildProgram::System {
    pid_t process = -1;
    int socket = -1;
    std::string crash;
};

// The program bounds its own memory (boundProcess in reader/process_limits.h): a sanitizer's cannot
// be.
ChildProgram::ChildProgram(const std::filesystem::path& program,
                           const std::vector<std::string>& arguments, std::size_t /*megabytes*/)
    : system_(std::make_unique<System>()) {
    std::array<int, 2> ends = {};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        throw ReaderFailure("the reader cannot be started (" + systemReason(errno) + ")");
    }
    std::vector<std::string> words = {program.string()};
    words.insert(words.end(), arguments.begin(), arguments.end());
    const SpawnSettings settings(ends[1]);
    const int error = ::posix_spawn(&system_->process, words.front().c_str(), &settings.files,
                                    &settings.attributes, pointersTo(words).data(), environ);
    ::close(ends[1]);
    if (error != 0) {
        ::close(ends[0]);
        throw ReaderFailure("the reader " + program.string() + " cannot be started (" +
                            systemReason(error) + ")");
    }
    system_->socket = ends[0];
}

ChildProgram::~ChildProgram() { end(); }

void ChildProgram::send(std::string_view bytes) {
    std::size_t sent = 0;
    while (system_->socket >= 0 && sent < bytes.size()) {
        // MSG_NOSIGNAL: a reader that has ended must not end this process by a signal.
        const ssize_t count =
            ::send(system_->socket, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
        if (count < 0 && errno != EINTR) {
            return;
        }
        sent += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
}

bool ChildProgram::receive(std::string& bytes, std::chrono::milliseconds atMost) {
    pollfd socket = {system_->socket, POLLIN, 0};
    if (::poll(&socket, 1, static_cast<int>(atMost.count())) <= 0) {
        return true;
    }
    std::array<char, 65536> block = {};
    const ssize_t count = ::recv(system_->socket, block.data(), block.size(), 0);
    if (count > 0) {
        bytes.append(block.data(), static_cast<std::size_t>(count));
    }
    return count > 0 || (count < 0 && errno == EINTR);
}

std::size_t ChildProgram::megabytes() const {
    std::size_t size = 0;
    std::size_t resident = 0;
    std::ifstream("/proc/" + std::to_string(system_->process) + "/statm") >> size >> resident;
    return resident * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE)) / kBytesPerMegabyte;
}

std::string ChildProgram::end() {
    if (system_->process < 0) {
        return system_->crash;
    }
    ::close(system_->socket);
    system_->socket = -1;
    // A program that closed its output has ended or is about to.
    ::kill(system_->process, SIGKILL);
    int status = 0;
    while (::waitpid(system_->process, &status, 0) < 0 && errno == EINTR) {
    }
    system_->process = -1;
    if (WIFSIGNALED(status) && WTERMSIG(status) != SIGKILL) {
        system_->crash = ::strsignal(WTERMSIG(status));
    }
    return system_->crash;
}

}  // namespace host
