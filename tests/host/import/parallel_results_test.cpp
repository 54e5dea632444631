#include "host/import/reader/parallel_results.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstddef>
#include <numeric>
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

TEST(ParallelResults, EndWithWorkUnderWay) {
    std::atomic<int> calls = 0;
    {
        step::ParallelResults<int> results(1000, [&calls](std::size_t) { return ++calls; });
        static_cast<void>(results.of(0));
    }

    EXPECT_GE(calls.load(), 1);
}

}  // namespace
