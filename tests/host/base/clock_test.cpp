#include "host/base/clock.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <thread>

namespace host::clock {
namespace {

using namespace std::chrono_literals;

class ClockTest : public testing::Test {
protected:
    ClockTest() { start(ClockMode::Virtual); }
    ~ClockTest() override { start(ClockMode::Virtual); }

    void plan(double seconds, const std::string& what) {
        schedule(seconds, [this, what] { done += what; });
    }

    std::string done;
};

TEST_F(ClockTest, AStandingOneMovesOnlyWhenSomebodyWaits) {
    EXPECT_EQ(now(), 0);

    advance(1500ms);

    EXPECT_EQ(now(), 1.5);
}

TEST_F(ClockTest, ARunningOneIsTheSystems) {
    start(ClockMode::Real);
    const double before = now();

    advance(1h);
    std::this_thread::sleep_for(2ms);

    EXPECT_GE(now(), before + 0.002);
    EXPECT_LT(now(), 3600);
}

TEST_F(ClockTest, DoesWhatIsDueTheEarliestFirst) {
    plan(3, "c");
    plan(1, "a");
    plan(2, "b");
    plan(9, "z");
    advance(3s);

    runDue();

    EXPECT_EQ(done, "abc");
}

TEST_F(ClockTest, DoesNothingOfItself) {
    plan(1, "a");

    advance(5s);

    EXPECT_EQ(done, "");
}

TEST_F(ClockTest, DoesAThingOnce) {
    plan(0, "a");

    runDue();
    runDue();

    EXPECT_EQ(done, "a");
}

TEST_F(ClockTest, WhatIsPlannedMeanwhileForThenIsDoneToo) {
    schedule(1, [this] { plan(now(), "b"); });
    advance(1s);

    runDue();

    EXPECT_EQ(done, "b");
}

TEST_F(ClockTest, ForgetsWhatWasPlannedWhenItBeginsAgain) {
    plan(1, "a");

    start(ClockMode::Virtual);
    advance(2s);
    runDue();

    EXPECT_EQ(done, "");
    EXPECT_EQ(now(), 2);
}

}  // namespace
}  // namespace host::clock
