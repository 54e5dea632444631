#include "workbench/serve/open_connections.h"

#include <sys/socket.h>

#include <algorithm>

namespace workbench::serve {
namespace {

/// Its thread finds the end of the connection, and closes it.
void hangUp(int socket) { static_cast<void>(::shutdown(socket, SHUT_RDWR)); }

}  // namespace

void OpenConnections::add(int socket) { wait(socket); }

void OpenConnections::wait(int socket) {
    const std::lock_guard lock(mutex_);
    since_[socket] = Clock::now();
}

void OpenConnections::work(int socket) {
    const std::lock_guard lock(mutex_);
    since_[socket] = Clock::time_point::max();
}

void OpenConnections::remove(int socket) {
    const std::lock_guard lock(mutex_);
    since_.erase(socket);
}

void OpenConnections::dropLongestSilent() {
    constexpr std::chrono::milliseconds kPatience(250);
    const std::lock_guard lock(mutex_);
    const auto longest =
        std::ranges::min_element(since_, {}, [](const auto& each) { return each.second; });
    if (longest != since_.end() && longest->second < Clock::now() - kPatience) {
        hangUp(longest->first);
        longest->second = Clock::time_point::max();
    }
}

void OpenConnections::dropSilent() {
    const std::lock_guard lock(mutex_);
    for (auto& [socket, since] : since_) {
        if (since != Clock::time_point::max()) {
            hangUp(socket);
        }
    }
}

}  // namespace workbench::serve
