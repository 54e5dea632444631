#include "workbench/serve/open_connections.h"

#include <sys/socket.h>

namespace workbench::serve {
namespace {

/// Its thread finds the end of the connection, and closes it.
void end(int socket) { static_cast<void>(::shutdown(socket, SHUT_RDWR)); }

}  // namespace

void OpenConnections::add(int socket) { wait(socket); }

void OpenConnections::wait(int socket) {
    const std::lock_guard lock(mutex_);
    turns_[socket] = ++newest_;
}

void OpenConnections::work(int socket) {
    const std::lock_guard lock(mutex_);
    turns_[socket] = 0;
}

void OpenConnections::remove(int socket) {
    const std::lock_guard lock(mutex_);
    turns_.erase(socket);
}

bool OpenConnections::dropLongestSilent() {
    const std::lock_guard lock(mutex_);
    auto longest = turns_.end();
    for (auto each = turns_.begin(); each != turns_.end(); ++each) {
        if (each->second != 0 && (longest == turns_.end() || each->second < longest->second)) {
            longest = each;
        }
    }
    if (longest == turns_.end()) {
        return false;
    }
    end(longest->first);
    longest->second = 0;
    return true;
}

void OpenConnections::dropSilent() {
    while (dropLongestSilent()) {
    }
}

}  // namespace workbench::serve
