#include "workbench/serve/limited_server.h"

#include "workbench/serve/connection_stream.h"
#include "workbench/serve/connection_threads.h"
#include "workbench/serve/pages.h"

#include <chrono>
#include <string>

namespace workbench::serve {
namespace {

/// Each page keeps a connection for its events; these are beside those for requests.
constexpr std::size_t kMostRequests = 64;
constexpr std::size_t kMostWaiting = 256;
constexpr int kMostOfAConnection = 1000;

constexpr const char* kRefusal =
    "HTTP/1.1 503 Service Unavailable\r\nContent-Type: application/json; charset=utf-8\r\n"
    "Content-Length: 34\r\nConnection: close\r\n\r\n{\"error\": \"too many connections\"}\n";

}  // namespace

LimitedServer::LimitedServer() {
    new_task_queue = [this] {
        return new ConnectionThreads(kMostRequests + kMostPages, kMostWaiting,
                                     [this] { return connections_.dropLongestSilent(); });
    };
    set_idle_interval(std::chrono::milliseconds(50));
}

void LimitedServer::acceptMany() { static_cast<void>(::listen(svr_sock_, SOMAXCONN)); }

void LimitedServer::stopSoon() {
    stop();
    connections_.dropSilent();
}

bool LimitedServer::process_and_close_socket(socket_t socket) {
    ConnectionStream stream(socket, connections_);
    if (ConnectionThreads::isRefusing()) {
        return stream.write(kRefusal, std::char_traits<char>::length(kRefusal)) > 0;
    }
    bool isFine = true;
    bool isClosed = false;
    for (int left = kMostOfAConnection;
         isFine && !isClosed && left > 0 && svr_sock_ != INVALID_SOCKET && stream.waitForRequest();
         --left) {
        isFine = process_request(stream, /*close_connection=*/left == 1, isClosed,
                                 [&stream](httplib::Request& /*request*/) { stream.beginWork(); });
    }
    return isFine;
}

}  // namespace workbench::serve
