#pragma once

#include "workbench/serve/main_queue.h"
#include "workbench/serve/pages.h"
#include "workbench/serve/served_host.h"

#include <memory>
#include <string>

namespace workbench::serve {

/// The server: it checks who asks, and leaves to the main thread what the host has to do.
class HttpServer {
public:
    /// Binds a port of 127.0.0.1, any free one for 0. Throws a `Failure` where it is in use.
    HttpServer(int port, MainQueue& queue, Pages& pages);
    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;

    /// Ends all requests, and waits for the threads.
    ~HttpServer();

    /// Begins to answer, on threads of its own. The host has to live as long as this.
    void start(ServedHost& host);

    /// The address for the browser, with the token.
    [[nodiscard]] std::string address() const;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

}  // namespace workbench::serve
