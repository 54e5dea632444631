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

    /// So many threads at most. `makeRoom` is called where all are taken: it ends what one of them
    /// does, or returns false, and the next connection is refused.
    ConnectionThreads(std::size_t most, std::function<bool()> makeRoom)
        : most_(most), makeRoom_(std::move(makeRoom)) {}

    /// Leaves a connection to a thread; one that is refused is done at once, see `isRefusing`.
    void enqueue(Work work) override;

    /// Waits until all are served.
    void shutdown() override;

    /// Whether the connection that this thread serves now is one too many.
    static bool isRefusing();

private:
    void serve();
    bool take(Work& work);

    std::size_t most_;
    std::function<bool()> makeRoom_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Work> waiting_;
    std::size_t idle_ = 0;
    bool ending_ = false;
    std::vector<std::thread> threads_;
};

}  // namespace workbench::serve
