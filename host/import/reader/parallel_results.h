#pragma once

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace step {

/// How many threads work out results beside those that ask for them; 0: one for each processor. To
/// be set before anything is worked out.
inline std::atomic<std::size_t> threadSetting = 0;

inline void useThreads(std::size_t count) { threadSetting = count; }

inline std::size_t threadCount() {
    const std::size_t chosen = threadSetting;
    return chosen > 0 ? chosen : std::max<std::size_t>(std::thread::hardware_concurrency(), 1);
}

/// Results by number, each worked out once and by `threadCount` threads.
///
/// The first question starts the work on the others: who asks for one usually asks for all. Each
/// result is worked out whole by one thread, so it is that of working in sequence.
template <class Result>
class ParallelResults {
public:
    /// `work` is called by several threads at once and must not throw.
    ParallelResults(std::size_t count, std::function<Result(std::size_t)> work)
        : work_(std::move(work)), claimed_(count), taken_(count), results_(count) {}
    ParallelResults(const ParallelResults&) = delete;
    ParallelResults& operator=(const ParallelResults&) = delete;

    /// Waits for the results that are being worked out.
    ~ParallelResults() {
        {
            const std::scoped_lock lock(mutex_);
            stopping_ = true;
        }
        for (std::thread& other : others_) {
            other.join();
        }
    }

    [[nodiscard]] std::size_t size() const { return results_.size(); }

    /// The result of that number, which has to be below `size`. It lives as long as this.
    const Result& of(std::size_t number) {
        if (!std::exchange(started_, true)) {
            startOthers();
        }
        if (claim(number) || claimAgain(number)) {
            run(number);
        }
        std::unique_lock lock(mutex_);
        done_.wait(lock, [&] { return results_[number].has_value(); });
        return *results_[number];
    }

    /// The result of that number, which is worked out again when it is asked for again.
    Result take(std::size_t number) {
        static_cast<void>(of(number));
        const std::scoped_lock lock(mutex_);
        taken_[number] = true;
        return *std::exchange(results_[number], std::nullopt);
    }

private:
    /// Who asks mostly waits for them.
    void startOthers() {
        const std::size_t helpers = std::min(threadCount(), results_.size());
        try {
            for (std::size_t helper = 0; helper < helpers; ++helper) {
                others_.emplace_back([this] { runAll(); });
            }
        } catch (const std::system_error&) {
            // No further threads: the one that asks does everything.
        }
    }

    void runAll() {
        for (std::size_t number = 0; number < results_.size(); ++number) {
            if (claim(number)) {
                run(number);
            }
        }
    }

    bool claim(std::size_t number) {
        const std::scoped_lock lock(mutex_);
        if (stopping_ || claimed_[number]) {
            return false;
        }
        claimed_[number] = true;
        return true;
    }

    bool claimAgain(std::size_t number) {
        const std::scoped_lock lock(mutex_);
        const bool wasTaken = taken_[number];
        taken_[number] = false;
        return wasTaken;
    }

    void run(std::size_t number) {
        Result result = work_(number);
        const std::scoped_lock lock(mutex_);
        results_[number] = std::move(result);
        done_.notify_all();
    }

    std::function<Result(std::size_t)> work_;
    bool started_ = false;
    std::vector<std::thread> others_;
    std::mutex mutex_;  ///< guards what follows
    std::condition_variable done_;
    bool stopping_ = false;
    std::vector<bool> claimed_;
    std::vector<bool> taken_;
    std::vector<std::optional<Result>> results_;
};

}  // namespace step
