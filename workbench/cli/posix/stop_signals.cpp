#include "workbench/cli/stop_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <system_error>
#include <thread>
#include <utility>

namespace workbench {
namespace {

constexpr std::time_t kGrace = 3;  // seconds

// The handler may do little more than write.
volatile std::sig_atomic_t wakeEnd = -1;
volatile std::time_t firstStop = 0;

extern "C" void noteStop(int signal) {
    const int before = errno;
    const std::time_t now = ::time(nullptr);
    if (firstStop == 0) {
        firstStop = now;
        const char stop = 's';
        static_cast<void>(::write(wakeEnd, &stop, 1));
    } else if (now - firstStop >= kGrace) {
        static_cast<void>(std::signal(signal, SIG_DFL));
        static_cast<void>(::raise(signal));
    }
    errno = before;
}

char nextByte(int end) {
    char byte = 0;
    ssize_t count = 0;
    do {
        count = ::read(end, &byte, 1);
    } while (count < 0 && errno == EINTR);
    return count == 1 ? byte : '\0';
}

}  // namespace

struct StopSignals::Watch {
    std::array<int, 2> pipe = {-1, -1};
    std::thread thread;
    void (*interruptBefore)(int) = SIG_DFL;
    void (*terminateBefore)(int) = SIG_DFL;
};

StopSignals::StopSignals(std::function<void()> stop) : watch_(std::make_unique<Watch>()) {
    if (::pipe2(watch_->pipe.data(), O_CLOEXEC) != 0) {
        throw std::system_error(errno, std::generic_category(), "cannot watch for signals");
    }
    firstStop = 0;
    wakeEnd = watch_->pipe[1];
    watch_->thread = std::thread([end = watch_->pipe[0], stop = std::move(stop)] {
        while (nextByte(end) == 's') {
            stop();
        }
    });
    watch_->interruptBefore = std::signal(SIGINT, noteStop);
    watch_->terminateBefore = std::signal(SIGTERM, noteStop);
}

StopSignals::~StopSignals() {
    static_cast<void>(std::signal(SIGINT, watch_->interruptBefore));
    static_cast<void>(std::signal(SIGTERM, watch_->terminateBefore));
    const char end = 'e';
    static_cast<void>(::write(watch_->pipe[1], &end, 1));
    watch_->thread.join();
    for (const int each : watch_->pipe) {
        ::close(each);
    }
}

}  // namespace workbench
