#include "host/base/events.h"

#include "host/base/last_error.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace host {
namespace {

using adsk::core::EventHandler;
using adsk::core::Ptr;

/// An event of the tests' own, as the public API would declare it.
class PingArgs : public adsk::core::EventArgs {};

class PingHandler : public EventHandler {
public:
    virtual void notify(const Ptr<PingArgs>& eventArgs) = 0;
};

class Ping : public adsk::core::Event {
public:
    virtual bool add(PingHandler* handler) = 0;
    virtual bool remove(PingHandler* handler) = 0;
};

using PingEvent = TypedEvent<Ping, PingHandler, PingArgs>;

class Counting final : public PingHandler {
public:
    void notify(const Ptr<PingArgs>& eventArgs) override {
        (void)eventArgs;
        ++calls;
    }
    int calls = 0;
};

template <class Exception>
class Raising final : public PingHandler {
public:
    explicit Raising(Exception what) : exception_(std::move(what)) {}
    void notify(const Ptr<PingArgs>& eventArgs) override {
        (void)eventArgs;
        throw exception_;
    }

private:
    Exception exception_;
};

class EventDispatch : public ::testing::Test {
protected:
    void SetUp() override { clearRaised(); }

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
    clearMisuses();

    event->dispose();

    EXPECT_FALSE(event->isValid());
    EXPECT_FALSE(event->add(&handler));
    EXPECT_FALSE(event->remove(&handler));
    EXPECT_EQ(event->name(), "");
    EXPECT_EQ(lastError().code, 4);  // UnderlyingObjectDeletedError
    EXPECT_EQ(misuses().size(), 3U);
}

TEST_F(EventDispatch, RaisingHandlerIsRecordedAndTheNextIsCalled) {
    Raising<std::invalid_argument> raising(std::invalid_argument("invalid stoi argument"));
    Counting counting;
    event->add(&raising);
    event->add(&counting);

    EXPECT_FALSE(event->fire(nullptr, "button"));

    EXPECT_EQ(counting.calls, 1);
    EXPECT_EQ(raised(), (std::vector<Raised>{
                            {"ping", "button", "std::invalid_argument", "invalid stoi argument"}}));
}

TEST_F(EventDispatch, PlainExceptionIsRecordedWithoutText) {
    Raising<std::exception> raising{std::exception()};
    event->add(&raising);

    event->fire(nullptr);

    EXPECT_EQ(raised(), (std::vector<Raised>{{"ping", "", "std::exception", ""}}));
}

TEST_F(EventDispatch, WhatIsNoExceptionClassIsRecordedByItsType) {
    Raising<int> raising(7);
    event->add(&raising);

    event->fire(nullptr);

    EXPECT_EQ(raised(), (std::vector<Raised>{{"ping", "", "int", ""}}));
}

}  // namespace
}  // namespace host
