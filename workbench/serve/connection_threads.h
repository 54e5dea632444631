#pragma once

#include <httplib.h>

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace workbench::serve {

/// The threads that serve connections, one each, started when they are needed.
class ConnectionThreads final : public httplib::TaskQueue {
public:
    using Work = std::function<void()>;

    /// So many threads at most, and so many connections that wait for one. While there are any,
    /// `makeRoom` is called again and again: it may end what one of the threads does.
    ConnectionThreads(std::size_t most, std::size_t mostWaiting, std::function<void()> makeRoom)
        : most_(most), mostWaiting_(mostWaiting), makeRoom_(std::move(makeRoom)) {}

    /// Leaves a connection to a thread; one that is refused is done at once, see `isRefusing`.
    void enqueue(Work work) override;

    /// Called between connections.
    void on_idle() override;

    /// Waits until all are served.
    void shutdown() override;

    /// Whether the connection that this thread serves now is one too many.
    static bool isRefusing();

private:
    void serve();
    bool take(Work& work);

    [[nodiscard]] std::size_t countWithoutThread() const;

    std::size_t most_;
    std::size_t mostWaiting_;
    std::function<void()> makeRoom_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Work> waiting_;
    std::size_t idle_ = 0;
    bool ending_ = false;
    std::vector<std::thread> threads_;
};

}  // namespace workbench::serve
