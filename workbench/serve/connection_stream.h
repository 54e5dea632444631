#pragma once

#include "workbench/serve/open_connections.h"

#include <httplib.h>

#include <array>
#include <chrono>
#include <cstddef>
#include <string>

namespace workbench::serve {

/// One connection as the HTTP library reads and writes it. A request has to be there as a whole
/// after some seconds, however few bytes come at a time.
class ConnectionStream final : public httplib::Stream {
public:
    /// Closes the socket in the end.
    ConnectionStream(socket_t socket, OpenConnections& connections);
    ConnectionStream(const ConnectionStream&) = delete;
    ConnectionStream& operator=(const ConnectionStream&) = delete;
    ~ConnectionStream() override;

    /// Waits for the first byte of a request; false where none came.
    bool waitForRequest();

    /// The head of the request is read.
    void beginWork() { connections_.work(socket_); }

    [[nodiscard]] bool is_readable() const override;
    [[nodiscard]] bool is_writable() const override;

    /// -1 where nothing came in time.
    ssize_t read(char* bytes, std::size_t count) override;

    /// All or nothing: -1 where the other end takes nothing for some seconds.
    ssize_t write(const char* bytes, std::size_t count) override;

    void get_remote_ip_and_port(std::string& ip, int& port) const override;
    void get_local_ip_and_port(std::string& ip, int& port) const override;
    [[nodiscard]] socket_t socket() const override { return socket_; }

private:
    using Clock = std::chrono::steady_clock;

    [[nodiscard]] bool isReady(short event, std::chrono::milliseconds patience) const;

    socket_t socket_;
    OpenConnections& connections_;
    Clock::time_point deadline_;
    std::array<char, 8192> buffer_ = {};
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
};

}  // namespace workbench::serve
