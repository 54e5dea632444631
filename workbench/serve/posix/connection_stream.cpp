#include "workbench/serve/connection_stream.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace workbench::serve {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kIdle{2000};      // an idle connection keeps a thread, and the end waiting
constexpr milliseconds kRequest{5000};   // for a whole request
constexpr milliseconds kSending{10000};  // without a byte that is taken

}  // namespace

ConnectionStream::ConnectionStream(socket_t socket, OpenConnections& connections)
    : socket_(socket), connections_(connections) {
    connections_.add(socket_);
}

ConnectionStream::~ConnectionStream() {
    connections_.remove(socket_);
    static_cast<void>(::shutdown(socket_, SHUT_RDWR));
    static_cast<void>(::close(socket_));
}

bool ConnectionStream::isReady(short event, milliseconds patience) const {
    pollfd one = {.fd = socket_, .events = event, .revents = 0};
    int count = 0;
    do {
        count = ::poll(&one, 1, static_cast<int>(std::max(patience, milliseconds(0)).count()));
    } while (count < 0 && errno == EINTR);
    return count > 0;
}

bool ConnectionStream::waitForRequest() {
    connections_.wait(socket_);
    const bool isThere = begin_ < end_ || isReady(POLLIN, kIdle);
    deadline_ = Clock::now() + kRequest;
    return isThere;
}

bool ConnectionStream::is_readable() const {
    return begin_ < end_ ||
           isReady(POLLIN, std::chrono::ceil<milliseconds>(deadline_ - Clock::now()));
}

bool ConnectionStream::is_writable() const {
    char next = 0;
    return isReady(POLLOUT, kSending) &&
           ::recv(socket_, &next, 1, MSG_PEEK | MSG_DONTWAIT) != 0;  // 0: the other end is closed
}

ssize_t ConnectionStream::read(char* bytes, std::size_t count) {
    if (begin_ == end_) {
        if (Clock::now() > deadline_ || !is_readable()) {
            return -1;
        }
        const ssize_t came = ::recv(socket_, buffer_.data(), buffer_.size(), 0);
        if (came <= 0) {
            return came;
        }
        begin_ = 0;
        end_ = static_cast<std::size_t>(came);
    }
    const std::size_t taken = std::min(count, end_ - begin_);
    std::copy_n(buffer_.data() + begin_, taken, bytes);
    begin_ += taken;
    return static_cast<ssize_t>(taken);
}

ssize_t ConnectionStream::write(const char* bytes, std::size_t count) {
    for (std::size_t sent = 0; sent < count;) {
        if (!isReady(POLLOUT, kSending)) {
            return -1;
        }
        const ssize_t now =
            ::send(socket_, bytes + sent, count - sent, MSG_NOSIGNAL | MSG_DONTWAIT);
        if (now < 0 && errno != EINTR && errno != EAGAIN) {
            return -1;
        }
        sent += now > 0 ? static_cast<std::size_t>(now) : 0;
    }
    return static_cast<ssize_t>(count);
}

void ConnectionStream::get_remote_ip_and_port(std::string& ip, int& port) const {
    get_local_ip_and_port(ip, port);
}

// Nothing asks for more: it listens on this address alone.
void ConnectionStream::get_local_ip_and_port(std::string& ip, int& port) const {
    ip = "127.0.0.1";
    port = 0;
}

}  // namespace workbench::serve
