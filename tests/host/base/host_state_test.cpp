#include "host/base/host_state.h"

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace host {
namespace {

using namespace std::chrono_literals;

std::vector<std::string> gone;

struct First {
    First() = default;
    First(const First&) = delete;
    First& operator=(const First&) = delete;
    ~First() { gone.emplace_back("first"); }
    int value = 1;
};

struct Second {
    Second() = default;
    Second(const Second&) = delete;
    Second& operator=(const Second&) = delete;
    ~Second() {
        gone.push_back("second of " + std::to_string(HostState::required().part<First>().value));
    }
};

TEST(HostStateTest, IsTheCurrentOneAsLongAsItLives) {
    EXPECT_EQ(HostState::current(), nullptr);
    {
        HostState state;
        EXPECT_EQ(HostState::current(), &state);
        EXPECT_EQ(&HostState::required(), &state);
    }
    EXPECT_EQ(HostState::current(), nullptr);
    EXPECT_THROW(HostState::required(), MisuseError);
}

TEST(HostStateTest, IsTheOnlyOne) {
    const HostState state;

    EXPECT_THROW(HostState(), std::logic_error);

    EXPECT_EQ(HostState::current(), &state);
}

TEST(HostStateTest, MakesAPartOnFirstUse) {
    HostState state;

    state.part<First>().value = 2;

    EXPECT_EQ(HostState::currentPart<First>()->value, 2);
}

TEST(HostStateTest, BeginsWithPartsOfItsOwn) {
    {
        HostState state;
        state.part<First>().value = 2;
    }
    EXPECT_EQ(HostState::currentPart<First>(), nullptr);

    HostState next;

    EXPECT_EQ(next.part<First>().value, 1);
}

TEST(HostStateTest, DestroysTheNewestPartFirst) {
    gone.clear();
    {
        HostState state;
        state.part<First>().value = 7;
        state.part<Second>();
    }
    EXPECT_EQ(gone, (std::vector<std::string>{"second of 7", "first"}));
}

TEST(HostStateTest, HasNothingOfTheOneBefore) {
    {
        const HostState state;
        const gate::Module running;
        gate::refuseAny(1);
        EXPECT_TRUE(refused<"Test::refused">());
        misuse("Test::misuse", "why");
        enterModule("event", "", [] { throw std::runtime_error("thrown"); });
        post([] { ADD_FAILURE() << "posted to the host before"; });
    }

    HostState next;

    EXPECT_EQ(gate::total(), 0U);
    EXPECT_EQ(gate::refusedCall(), std::nullopt);
    EXPECT_TRUE(misuses().empty());
    EXPECT_TRUE(uncaughtExceptions().empty());
    EXPECT_EQ(lastError().description, "");
    EXPECT_TRUE(next.posted.take().empty());
}

TEST(HostStateTest, CallsWithoutItDoNoHarm) {
    const gate::Module running;
    EXPECT_FALSE(refused<"Test::refused">());
    EXPECT_FALSE(misuse("Test::misuse", "why"));
    EXPECT_FALSE(enterModule("event", "", [] { throw std::runtime_error("thrown"); }));
    post([] { ADD_FAILURE() << "posted to no host"; });
    clock::schedule(0, [] { ADD_FAILURE() << "scheduled by no host"; });
    clock::advance(1s);
    clock::runDue();
    EXPECT_EQ(clock::now(), 0);
}

TEST(HostStateTest, MayEndWhileAModuleRuns) {
    std::optional<HostState> state(std::in_place);
    {
        const gate::Module running;
        state.reset();
    }
    state.emplace();

    EXPECT_FALSE(gate::isModuleRunning());
}

TEST(HostStateTest, TakesWorkFromOtherThreadsInOrder) {
    HostState state;
    std::string done;

    std::thread([&done] {
        post([&done] { done += "a"; });
        post([&done] { done += "b"; });
    }).join();
    for (const auto& each : state.posted.take()) {
        each();
    }

    EXPECT_EQ(done, "ab");
}

}  // namespace
}  // namespace host
