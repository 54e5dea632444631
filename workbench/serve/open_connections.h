#pragma once

#include <chrono>
#include <map>
#include <mutex>

namespace workbench::serve {

/// The connections of a server, and which of them wait for a request or the rest of one. Those can
/// be dropped: whoever is at the other end says nothing, and others want to be served. For any
/// thread.
class OpenConnections {
public:
    /// A connection that waits from now on.
    void add(int socket);

    /// It waits for the next request.
    void wait(int socket);

    /// Its request is here: it is not dropped until it waits again.
    void work(int socket);

    /// Before the socket is closed.
    void remove(int socket);

    /// Ends the connection that has waited longest, a quarter of a second at least: so long a
    /// request may take to come.
    void dropLongestSilent();

    /// Ends all that wait.
    void dropSilent();

private:
    using Clock = std::chrono::steady_clock;

    std::mutex mutex_;
    std::map<int, Clock::time_point> since_;  ///< by socket; the latest where it does not wait
};

}  // namespace workbench::serve
