#include "host/import/reader/parallel_results.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstddef>
#include <numeric>
#include <thread>
#include <vector>

namespace {

TEST(ParallelResults, AreEachWorkedOutOnce) {
    std::vector<std::atomic<int>> calls(100);
    step::ParallelResults<std::size_t> squares(calls.size(), [&calls](std::size_t number) {
        ++calls[number];
        return number * number;
    });

    std::vector<std::size_t> results;
    for (std::size_t number = 0; number < calls.size(); ++number) {
        results.push_back(squares.of(calls.size() - 1 - number));
    }

    EXPECT_EQ(results.front(), 9801U);
    EXPECT_EQ(results.back(), 0U);
    EXPECT_EQ(std::accumulate(calls.begin(), calls.end(), 0), 100);
}

TEST(ParallelResults, AreWorkedOutAgainWhereTheyWereTaken) {
    std::atomic<int> calls = 0;
    step::ParallelResults<int> results(1, [&calls](std::size_t) { return ++calls; });

    EXPECT_EQ(results.take(0), 1);
    EXPECT_EQ(results.take(0), 2);
    EXPECT_EQ(results.of(0), 3);
    EXPECT_EQ(results.of(0), 3);
}

/// How many results were being worked out at the same time, at the most.
int mostAtOnce(std::size_t threads) {
    step::useThreads(threads);
    std::atomic<int> running = 0;
    std::atomic<int> most = 0;
    step::ParallelResults<int> results(100, [&](std::size_t) {
        const int now = ++running;
        for (int seen = most; seen < now && !most.compare_exchange_weak(seen, now);) {
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
        return --running;
    });
    for (std::size_t number = 0; number < results.size(); ++number) {
        static_cast<void>(results.of(number));
    }
    step::useThreads(0);
    return most;
}

TEST(ParallelResults, AreWorkedOutByAsManyThreadsAsAreAllowed) {
    // With the thread that asks.
    EXPECT_LE(mostAtOnce(1), 2);
    EXPECT_GT(mostAtOnce(4), 2);
    EXPECT_LE(mostAtOnce(4), 5);
}

TEST(ParallelResults, EndWithWorkUnderWay) {
    std::atomic<int> calls = 0;
    {
        step::ParallelResults<int> results(1000, [&calls](std::size_t) { return ++calls; });
        static_cast<void>(results.of(0));
    }

    EXPECT_GE(calls.load(), 1);
}

}  // namespace
