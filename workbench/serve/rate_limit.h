#pragma once

#include <chrono>
#include <mutex>

namespace workbench::serve {

/// How many requests are taken: `burst` at once, and `perSecond` in the long run.
class RateLimit {
public:
    using Clock = std::chrono::steady_clock;

    RateLimit(double perSecond, double burst)
        : perSecond_(perSecond), burst_(burst), left_(burst) {}

    /// Whether one more is taken at this time. For any thread.
    bool take(Clock::time_point now = Clock::now()) {
        const std::lock_guard lock(mutex_);
        const double passed = std::chrono::duration<double>(now - last_).count();
        if (last_ != Clock::time_point() && passed > 0) {
            left_ = left_ + passed * perSecond_ < burst_ ? left_ + passed * perSecond_ : burst_;
        }
        last_ = now;
        if (left_ < 1) {
            return false;
        }
        left_ -= 1;
        return true;
    }

private:
    std::mutex mutex_;
    double perSecond_;
    double burst_;
    double left_;
    Clock::time_point last_;
};

}  // namespace workbench::serve
