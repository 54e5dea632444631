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
    ClockTest() { start(Pace::Standing); }
    ~ClockTest() override { start(Pace::Standing); }

    void plan(double seconds, const std::string& what) {
        at(seconds, [this, what] { done += what; });
    }

    std::string done;
};

TEST_F(ClockTest, AStandingOneMovesOnlyWhenSomebodyWaits) {
    EXPECT_EQ(now(), 0);

    pass(1500ms);

    EXPECT_EQ(now(), 1.5);
}

TEST_F(ClockTest, ARunningOneIsTheSystems) {
    start(Pace::Running);
    const double before = now();

    pass(1h);
    std::this_thread::sleep_for(2ms);

    EXPECT_GE(now(), before + 0.002);
    EXPECT_LT(now(), 3600);
}

TEST_F(ClockTest, DoesWhatIsDueTheEarliestFirst) {
    plan(3, "c");
    plan(1, "a");
    plan(2, "b");
    plan(9, "z");
    pass(3s);

    runDue();

    EXPECT_EQ(done, "abc");
}

TEST_F(ClockTest, DoesNothingOfItself) {
    plan(1, "a");

    pass(5s);

    EXPECT_EQ(done, "");
}

TEST_F(ClockTest, DoesAThingOnce) {
    plan(0, "a");

    runDue();
    runDue();

    EXPECT_EQ(done, "a");
}

TEST_F(ClockTest, WhatIsPlannedMeanwhileForThenIsDoneToo) {
    at(1, [this] { plan(now(), "b"); });
    pass(1s);

    runDue();

    EXPECT_EQ(done, "b");
}

TEST_F(ClockTest, ForgetsWhatWasPlannedWhenItBeginsAnew) {
    plan(1, "a");

    start(Pace::Standing);
    pass(2s);
    runDue();

    EXPECT_EQ(done, "");
    EXPECT_EQ(now(), 2);
}

}  // namespace
}  // namespace host::clock
