#include "host/import/reader/process_limits.h"

#include <poll.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <iostream>
#include <thread>

namespace step {
namespace {

constexpr rlim_t kMegabyte = rlim_t{1024} * 1024;

void bound(__rlimit_resource resource, rlim_t value) {
    const rlimit limits = {value, value};
    // A limit that the system does not grant is one limit less, no reason to stop.
    static_cast<void>(::setrlimit(resource, &limits));
}

/// The address space that the program has taken, in bytes.
rlim_t addressSpace() {
    rlim_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    return pages * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE));
}

}  // namespace

void boundProcess(const host::ReadingLimits& limits) {
    // The starter recognises a crash by its signal; a sanitizer would turn it into an exit.
    for (const int crash : {SIGSEGV, SIGBUS, SIGFPE, SIGILL}) {
        static_cast<void>(std::signal(crash, SIG_DFL));
    }
    bound(RLIMIT_CORE, 0);
    bound(RLIMIT_CPU, static_cast<rlim_t>(limits.seconds));
    const rlim_t space = 2 * limits.megabytes * kMegabyte;
    // A sanitizer reserves terabytes that it never touches; there the starter's watch has to do.
    if (addressSpace() < space) {
        bound(RLIMIT_AS, space);
    }
}

void endWithStarter() {
    int kind = 0;
    socklen_t size = sizeof kind;
    if (::getsockopt(STDIN_FILENO, SOL_SOCKET, SO_TYPE, &kind, &size) != 0) {
        return;
    }
    std::thread([] {
        pollfd input = {STDIN_FILENO, 0, 0};  // no events asked for: a hang-up is always reported
        while (::poll(&input, 1, -1) < 0 || (input.revents & (POLLHUP | POLLERR)) == 0) {
        }
        ::_exit(0);
    }).detach();
}

void endProcess(int status) {
    std::cout.flush();
    ::_exit(status);
}

}  // namespace step
