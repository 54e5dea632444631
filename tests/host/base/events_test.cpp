#include "host/base/events.h"

#include "host/base/host_state.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace host {
namespace {

using adsk::core::Ptr;

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
    HostState host;
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
    Counting handler;
    event->add(&handler);

    event = nullptr;

    EXPECT_EQ(handler.calls, 0);
}

TEST_F(EventDispatch, ADeletedEventTakesNoHandlersAndSaysSo) {
    Counting handler;

    event->dispose();

    EXPECT_FALSE(event->isValid());
    EXPECT_FALSE(event->add(&handler));
    EXPECT_FALSE(event->remove(&handler));
    EXPECT_EQ(event->name(), "");
    EXPECT_EQ(lastError().code, 4);  // UnderlyingObjectDeletedError
    EXPECT_EQ(misuses().size(), 3U);
}

TEST_F(EventDispatch, ThrowingHandlerIsRecordedAndTheNextIsCalled) {
    Throwing<std::invalid_argument> throwing(std::invalid_argument("invalid stoi argument"));
    Counting counting;
    event->add(&throwing);
    event->add(&counting);

    EXPECT_FALSE(event->fire(nullptr, "button"));

    EXPECT_EQ(counting.calls, 1);
    EXPECT_EQ(uncaughtExceptions(),
              (std::vector<UncaughtException>{
                  {"ping", "button", "std::invalid_argument", "invalid stoi argument"}}));
}

TEST_F(EventDispatch, PlainExceptionIsRecordedWithoutText) {
    Throwing<std::exception> throwing{std::exception()};
    event->add(&throwing);

    event->fire(nullptr);

    EXPECT_EQ(uncaughtExceptions(),
              (std::vector<UncaughtException>{{"ping", "", "std::exception", ""}}));
}

TEST_F(EventDispatch, WhatIsNoExceptionClassIsRecordedByItsType) {
    Throwing<int> throwing(7);
    event->add(&throwing);

    event->fire(nullptr);

    EXPECT_EQ(uncaughtExceptions(), (std::vector<UncaughtException>{{"ping", "", "int", ""}}));
}

}  // namespace
}  // namespace host
