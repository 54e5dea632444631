#include "host/base/events.h"

#include "host/base/host_state.h"
#include "tests/support/fault_watch.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace host {
namespace {

using namespace adsk::core;

/// An event of the tests' own, as the public API would declare it.
class PingArgs : public adsk::core::EventArgs {};

class PingHandler : public adsk::core::EventHandlerOf<PingArgs> {};
class Ping : public adsk::core::EventOf<PingHandler> {};

using PingEvent = TypedEvent<Ping>;

class Counting final : public PingHandler {
public:
    void notify(const Ptr<PingArgs>& eventArgs) override {
        (void)eventArgs;
        ++calls;
    }
    int calls = 0;
};

template <class Exception>
class Throwing final : public PingHandler {
public:
    explicit Throwing(Exception what) : exception_(std::move(what)) {}
    void notify(const Ptr<PingArgs>& eventArgs) override {
        (void)eventArgs;
        throw exception_;
    }

private:
    Exception exception_;
};

class EventDispatch : public ::testing::Test {
protected:
    ~EventDispatch() override { faults.verify(); }

    HostState host;
    test_support::FaultWatch faults;
    Ptr<PingEvent> event = make<PingEvent>("ping", nullptr);
};

TEST_F(EventDispatch, HandlerAddedTwiceIsCalledOnce) {
    Counting handler;

    EXPECT_TRUE(event->add(&handler));
    EXPECT_TRUE(event->add(&handler));
    event->fire(nullptr);

    EXPECT_EQ(handler.calls, 1);
}

TEST_F(EventDispatch, NullHandlerIsRefused) { EXPECT_FALSE(event->add(nullptr)); }

TEST_F(EventDispatch, RemovedHandlerIsNotCalled) {
    Counting handler;
    event->add(&handler);

    EXPECT_TRUE(event->remove(&handler));
    EXPECT_FALSE(event->remove(&handler));
    event->fire(nullptr);

    EXPECT_EQ(handler.calls, 0);
}

TEST_F(EventDispatch, DestroyedHandlerLeavesItsEvents) {
    {
        Counting handler;
        event->add(&handler);
    }

    EXPECT_FALSE(event->hasHandlers());
    EXPECT_TRUE(event->fire(nullptr));
}

TEST_F(EventDispatch, HandlerOutlivesItsEvent) {
    const auto other = make<PingEvent>("pong", nullptr);
    {
        Counting handler;
        event->add(&handler);
        other->add(&handler);

        event = nullptr;
        other->fire(nullptr);

        EXPECT_EQ(handler.calls, 1);
    }
    EXPECT_FALSE(other->hasHandlers());
}

TEST_F(EventDispatch, ADeletedEventTakesNoHandlersAndReportsTheCall) {
    Counting handler;

    event->dispose();

    EXPECT_FALSE(event->isValid());
    EXPECT_FALSE(event->add(&handler));
    EXPECT_FALSE(event->remove(&handler));
    EXPECT_EQ(event->name(), "");
    EXPECT_EQ(lastError().code, 4);  // UnderlyingObjectDeletedError
    const std::string text = "called on a deleted " + std::string(event->objectType());
    EXPECT_EQ(faults.misuses(),
              (std::vector<Misuse>{
                  {"Event::add", text}, {"Event::remove", text}, {"Event::name", text}}));
}

TEST_F(EventDispatch, AMisuseNamesTheHandlersThatMadeIt) {
    enterModule("outer", "input", [] {
        enterModule("inner", "", [] { misuse("Test::inner", ""); });
        misuse("Test::outer", "");
    });
    misuse("Test::outside", "");

    const auto named = [](const char* operation, const char* in, const char* input) {
        return Misuse{.operation = operation, .text = "", .event = in, .inputId = input};
    };
    EXPECT_EQ(faults.misuses(), (std::vector<Misuse>{named("Test::inner", "inner", ""),
                                                     named("Test::outer", "outer", "input"),
                                                     named("Test::outside", "", "")}));
}

TEST_F(EventDispatch, ThrowingHandlerIsRecordedAndTheNextIsCalled) {
    Throwing<std::invalid_argument> throwing(std::invalid_argument("invalid stoi argument"));
    Counting counting;
    event->add(&throwing);
    event->add(&counting);

    EXPECT_FALSE(event->fire(nullptr, "button"));

    EXPECT_EQ(counting.calls, 1);
    EXPECT_EQ(faults.exceptions(),
              (std::vector<UncaughtException>{
                  {"ping", "button", "std::invalid_argument", "invalid stoi argument"}}));
}

TEST_F(EventDispatch, PlainExceptionIsRecordedWithoutText) {
    Throwing<std::exception> throwing{std::exception()};
    event->add(&throwing);

    event->fire(nullptr);

    EXPECT_EQ(faults.exceptions(),
              (std::vector<UncaughtException>{{"ping", "", "std::exception", ""}}));
}

TEST_F(EventDispatch, WhatIsNoExceptionClassIsRecordedByItsType) {
    Throwing<int> throwing(7);
    event->add(&throwing);

    event->fire(nullptr);

    EXPECT_EQ(faults.exceptions(), (std::vector<UncaughtException>{{"ping", "", "int", ""}}));
}

}  // namespace
}  // namespace host
