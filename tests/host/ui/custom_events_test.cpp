#include "tests/host/ui/host_test.h"

#include "host/base/gate.h"
#include "host/base/last_error.h"
#include "host/session/main_thread.h"

#include <thread>

namespace host {
namespace {

using namespace adsk::core;

using OnCustom = Calling<CustomEventHandler, CustomEventArgs>;

class CustomEventTest : public HostTest {
protected:
    CustomEventTest() : application(adsk::core::Application::get()) {}
    ~CustomEventTest() override { application = nullptr; }

    /// Registers an event whose notifications are noted.
    Ptr<CustomEvent> add(const std::string& id) {
        const Ptr<CustomEvent> event = application->registerCustomEvent(id);
        on<OnCustom>(event, [this](const Ptr<CustomEventArgs>& args) {
            note(args->firingEvent()->name() + ":" + args->additionalInfo());
            EXPECT_EQ(std::this_thread::get_id(), mainThread);
        });
        return event;
    }

    Ptr<adsk::core::Application> application;
    const std::thread::id mainThread = std::this_thread::get_id();
};

// Application_fireCustomEvent: from a thread; handled on the main one.
TEST_F(CustomEventTest, AreHandledOnTheThreadOfTheHost) {
    const Ptr<CustomEvent> event = add("progress");

    std::thread worker([this] {
        EXPECT_TRUE(application->fireCustomEvent("progress", "50"));
        EXPECT_TRUE(application->fireCustomEvent("progress"));
        EXPECT_FALSE(application->fireCustomEvent("unknown"));
    });
    worker.join();
    EXPECT_EQ(noted(), "");
    runPostedWork();

    EXPECT_EQ(noted(), "progress:50 progress:");
    EXPECT_EQ(event->sender(), application);
    EXPECT_EQ(lastError().code, Ok);
}

TEST_F(CustomEventTest, AreHandledWhileAModuleWaits) {
    add("progress");
    define("Wait", [this](const Ptr<Command>& command) {
        on<OnCommand>(command->execute(), [this](const auto&) {
            std::thread([this] { application->fireCustomEvent("progress", "100"); }).join();
            note("waits");
            adsk::doEvents();
            note("goes_on");
        });
    });

    pressCommand("Wait");

    EXPECT_EQ(noted(), "waits progress:100 goes_on");
}

// Threading_UM: a handler runs once the notification that fired the event has returned, and may
// start commands.
TEST_F(CustomEventTest, AreHandledAfterTheNotificationThatFiresThem) {
    add("later");
    define("Second", [this](const Ptr<Command>&) { note("second"); });
    on<OnCustom>(application->registerCustomEvent("start"),
                 [](const auto&) { ui()->commandDefinitions()->itemById("Second")->execute(); });
    define("First", [this](const Ptr<Command>& command) {
        on<OnCommand>(command->execute(), [this](const auto&) {
            EXPECT_TRUE(application->fireCustomEvent("later", "now"));
            EXPECT_TRUE(application->fireCustomEvent("start"));
            note("fired");
        });
    });

    pressCommand("First");

    EXPECT_EQ(noted(), "fired later:now second");
}

// Application_registerCustomEvent, Application_unregisterCustomEvent.
TEST_F(CustomEventTest, HaveIdsOfTheirOwnUntilTheyEnd) {
    const Ptr<CustomEvent> event = add("mine");
    EXPECT_FALSE(application->registerCustomEvent("mine"));
    EXPECT_EQ(lastError().description,
              "Application::registerCustomEvent: the id \"mine\" is in use");
    EXPECT_FALSE(application->registerCustomEvent(""));
    EXPECT_TRUE(application->fireCustomEvent("mine", "dropped"));

    EXPECT_TRUE(application->unregisterCustomEvent("mine"));

    EXPECT_FALSE(event->isValid());
    EXPECT_FALSE(application->unregisterCustomEvent("mine"));
    EXPECT_FALSE(application->fireCustomEvent("mine"));
    EXPECT_EQ(lastError().description, "Application::fireCustomEvent: \"mine\" is not registered");
    add("mine");
    runPostedWork();
    EXPECT_EQ(noted(), "");
}

TEST_F(CustomEventTest, WhatAHandlerThrowsIsRecordedUnderTheId) {
    on<OnCustom>(application->registerCustomEvent("bad"),
                 [](const auto&) { throw std::runtime_error("no"); });
    application->fireCustomEvent("bad");

    runPostedWork();

    EXPECT_EQ(uncaughtExceptions(),
              (std::vector<UncaughtException>{
                  {.event = "bad", .inputId = "", .type = "std::runtime_error", .text = "no"}}));
}

TEST_F(CustomEventTest, AHostThatEndsHandlesNothingMore) {
    const Ptr<CustomEvent> event = add("late");
    application->fireCustomEvent("late");

    endHost();

    EXPECT_FALSE(event->isValid());
    std::thread([this] { EXPECT_FALSE(application->fireCustomEvent("late")); }).join();
    EXPECT_EQ(noted(), "");
}

// The gate counts calls of the host's thread alone: others may not touch it.
TEST_F(CustomEventTest, CallsOfOtherThreadsPassNoGate) {
    add("mine");
    gate::reset();

    enterModule("run", "", [this] {
        application->fireCustomEvent("mine");
        std::thread([this] { application->fireCustomEvent("mine"); }).join();
    });

    EXPECT_EQ(gate::count("Application::fireCustomEvent"), 1U);
    runPostedWork();
    EXPECT_EQ(noted(), "mine: mine:");
}

}  // namespace
}  // namespace host
