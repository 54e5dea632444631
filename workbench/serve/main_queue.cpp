#include "workbench/serve/main_queue.h"

#include "host/session/main_thread.h"

#include <utility>

namespace workbench::serve {
namespace {

constexpr std::size_t kMostWaiting = 256;

}  // namespace

bool MainQueue::post(Work work) {
    {
        const std::lock_guard lock(mutex_);
        if (closed_ || waiting_.size() >= kMostWaiting) {
            return false;
        }
        waiting_.push_back(std::move(work));
    }
    changed_.notify_one();
    // A module that waits for the host does what the host was left.
    host::postToMainThread([this] { run(); });
    return true;
}

void MainQueue::close() {
    {
        const std::lock_guard lock(mutex_);
        closed_ = true;
    }
    changed_.notify_all();
    host::postToMainThread([this] { run(); });
}

bool MainQueue::waitAndRun(std::chrono::milliseconds patience) {
    {
        std::unique_lock lock(mutex_);
        changed_.wait_for(lock, patience, [this] { return closed_ || !waiting_.empty(); });
    }
    run();
    return !isClosed();
}

void MainQueue::run() {
    for (;;) {
        Work next;
        {
            const std::lock_guard lock(mutex_);
            if (waiting_.empty()) {
                return;
            }
            next = std::move(waiting_.front());
            waiting_.pop_front();
        }
        try {
            next();
        } catch (...) {
            // The caller who left it has the answer; the program goes on with what the others left.
            continue;
        }
    }
}

bool MainQueue::isClosed() const {
    const std::lock_guard lock(mutex_);
    return closed_;
}

}  // namespace workbench::serve
