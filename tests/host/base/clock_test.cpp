#include "host/base/clock.h"

#include "host/base/host_state.h"

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <string>
#include <thread>

namespace host::clock {
namespace {

using namespace std::chrono_literals;

class ClockTest : public testing::Test {
protected:
    void scheduleNote(double seconds, const std::string& what) {
        schedule(seconds, [this, what] { done += what; });
    }

    std::optional<HostState> host{ClockMode::Virtual};
    std::string done;
};

TEST_F(ClockTest, AVirtualOneMovesOnlyWhenAModuleWaits) {
    EXPECT_EQ(now(), 0);

    advance(1500ms);

    EXPECT_EQ(now(), 1.5);
}

TEST_F(ClockTest, ARealOneIsTheSystems) {
    host.reset();
    host.emplace(ClockMode::Real);
    const double before = now();

    advance(1h);
    std::this_thread::sleep_for(2ms);

    EXPECT_GE(now(), before + 0.002);
    EXPECT_LT(now(), 3600);
}

TEST_F(ClockTest, DoesWhatIsDueTheEarliestFirst) {
    scheduleNote(3, "c");
    scheduleNote(1, "a");
    scheduleNote(2, "b");
    scheduleNote(9, "z");
    advance(3s);

    runDue();

    EXPECT_EQ(done, "abc");
}

TEST_F(ClockTest, DoesNothingOfItself) {
    scheduleNote(1, "a");

    advance(5s);

    EXPECT_EQ(done, "");
}

TEST_F(ClockTest, DoesAThingOnce) {
    scheduleNote(0, "a");

    runDue();
    runDue();

    EXPECT_EQ(done, "a");
}

TEST_F(ClockTest, WhatIsScheduledMeanwhileForThenIsDoneToo) {
    schedule(1, [this] { scheduleNote(now(), "b"); });
    advance(1s);

    runDue();

    EXPECT_EQ(done, "b");
}

TEST_F(ClockTest, BeginsAgainWithEachHost) {
    scheduleNote(1, "a");

    host.reset();
    host.emplace();
    advance(2s);
    runDue();

    EXPECT_EQ(done, "");
    EXPECT_EQ(now(), 2);
}

}  // namespace
}  // namespace host::clock
