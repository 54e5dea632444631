#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>

namespace workbench::serve {

/// What the server's threads leave to the main thread, on which the host runs.
///
/// The main thread comes to it in its own loop, while a module shows a message or a file dialog,
/// and while a module waits with `adsk::doEvents`.
class MainQueue {
public:
    using Work = std::function<void()>;

    /// Leaves work to the main thread, in order; what it throws is dropped. False, and nothing
    /// left, where too much waits already or the queue is closed. For any thread.
    bool post(Work work);

    /// Ends the waiting: `isClosed` from now on, and nothing is taken any more. What waits is still
    /// done. For any thread.
    void close();

    /// @name For the main thread
    /// @{

    /// Waits until there is work, but so long at most, does what there is, and returns true; false
    /// once the queue is closed.
    bool waitAndRun(std::chrono::milliseconds patience);

    /// Does what waits now.
    void run();

    [[nodiscard]] bool isClosed() const;
    /// @}

private:
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Work> waiting_;
    bool closed_ = false;
};

}  // namespace workbench::serve
