#pragma once

#include "workbench/serve/open_connections.h"

#include <httplib.h>

namespace workbench::serve {

/// An HTTP server that many connections cannot keep from answering: those that say nothing make
/// room for others, and where too many wait the next one is refused.
class LimitedServer final : public httplib::Server {
public:
    LimitedServer();

    /// Once a port is bound: lets so many wait to be accepted as the system allows, where the
    /// library lets five.
    void acceptMany();

    /// Stops, and waits for no request any more.
    void stopSoon();

private:
    bool process_and_close_socket(socket_t socket) override;

    OpenConnections connections_;
};

}  // namespace workbench::serve
