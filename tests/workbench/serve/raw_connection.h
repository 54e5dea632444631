#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdint>
#include <string>

namespace test_support {

/// A connection to a port of this machine, for requests that no client would send.
class RawConnection {
public:
    explicit RawConnection(int port) : socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<std::uint16_t>(port));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        static_cast<void>(
            ::connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address));
    }
    RawConnection(const RawConnection&) = delete;
    RawConnection& operator=(const RawConnection&) = delete;
    ~RawConnection() { ::close(socket_); }

    /// The bytes that were sent; -1 where the other end is closed.
    ssize_t send(const std::string& text) const {
        return ::send(socket_, text.data(), text.size(), MSG_NOSIGNAL);
    }

    /// The first line of what is answered, without its end.
    [[nodiscard]] std::string firstLine() const {
        std::string line;
        for (char each = 0; ::recv(socket_, &each, 1, 0) == 1 && each != '\r';) {
            line += each;
        }
        return line;
    }

private:
    int socket_;
};

}  // namespace test_support
