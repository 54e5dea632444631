#include "workbench/serve/connection_threads.h"

#include <algorithm>
#include <utility>

namespace workbench::serve {
namespace {

thread_local bool refusing = false;

}  // namespace

bool ConnectionThreads::isRefusing() { return refusing; }

// Called by one thread alone, the one that accepts connections.
void ConnectionThreads::enqueue(Work work) {
    {
        const std::lock_guard lock(mutex_);
        if (countWithoutThread() < mostWaiting_) {
            waiting_.push_back(std::move(work));
            if (countWithoutThread() > 0 && threads_.size() < most_) {
                threads_.emplace_back([this] { serve(); });
            } else if (countWithoutThread() > 0) {
                makeRoom_();
            }
            changed_.notify_one();
            return;
        }
    }
    refusing = true;
    work();
    refusing = false;
}

void ConnectionThreads::on_idle() {
    std::size_t count = 0;
    {
        const std::lock_guard lock(mutex_);
        count = countWithoutThread();
    }
    for (; count > 0; --count) {
        makeRoom_();
    }
}

std::size_t ConnectionThreads::countWithoutThread() const {
    return waiting_.size() - std::min(waiting_.size(), idle_);
}

void ConnectionThreads::shutdown() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    changed_.notify_all();
    for (std::thread& each : threads_) {
        each.join();
    }
}

void ConnectionThreads::serve() {
    for (Work work; take(work);) {
        work();
        work = nullptr;
    }
}

bool ConnectionThreads::take(Work& work) {
    std::unique_lock lock(mutex_);
    ++idle_;
    changed_.wait(lock, [this] { return ending_ || !waiting_.empty(); });
    --idle_;
    if (waiting_.empty()) {
        return false;
    }
    work = std::move(waiting_.front());
    waiting_.pop_front();
    return true;
}

}  // namespace workbench::serve
