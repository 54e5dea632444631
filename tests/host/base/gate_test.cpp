#include "host/base/gate.h"

#include "host/base/host_state.h"

#include <gtest/gtest.h>

namespace host {
namespace {

class Gate : public ::testing::Test {
protected:
    static bool first() { return refused<"Test::first">(); }
    static bool second() { return refused<"Test::second">(); }

    HostState host;
};

TEST_F(Gate, CountsOnlyWhatAModuleCalls) {
    first();
    {
        const gate::Module running;
        first();
        first();
        second();
    }

    EXPECT_EQ(gate::count("Test::first"), 2U);
    EXPECT_EQ(gate::count("Test::second"), 1U);
    EXPECT_EQ(gate::total(), 3U);
}

TEST_F(Gate, RefusesTheNthCallOfANameOnce) {
    const gate::Module running;
    gate::refuse("Test::first", 2);

    EXPECT_FALSE(first());
    EXPECT_FALSE(second());
    EXPECT_TRUE(first());
    EXPECT_FALSE(first());
    EXPECT_EQ(gate::refusedCall(), "Test::first");
}

TEST_F(Gate, RefusesTheNthCallOfAnyName) {
    const gate::Module running;
    gate::refuseAny(2);

    EXPECT_FALSE(first());
    EXPECT_TRUE(second());
    EXPECT_FALSE(first());
    EXPECT_EQ(gate::refusedCall(), "Test::second");
}

TEST_F(Gate, SaysThatARefusalHasNotComeToPass) {
    const gate::Module running;
    gate::refuseAny(2);

    first();

    EXPECT_EQ(gate::refusedCall(), std::nullopt);
}

TEST_F(Gate, RecordsTheOrderOfCalls) {
    const gate::Module running;
    gate::record(true);

    second();
    first();

    EXPECT_EQ(gate::recorded(), (std::vector<std::string>{"Test::second", "Test::first"}));
}

}  // namespace
}  // namespace host
