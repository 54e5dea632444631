#include "host/session/system_overrides.h"

#include "host/base/host_state.h"
#include "host/session/dialog_answers.h"

#include <StandIn/Process.h>

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace overrides = host::system_overrides;
using host::SystemOverrides;

namespace {

class SystemOverridesTest : public testing::Test {
protected:
    std::optional<host::HostState> host{std::in_place};
};

}  // namespace

TEST_F(SystemOverridesTest, WithoutASessionAreTheSystems) {
    host.reset();
    StandInArea area = {};
    std::array<unsigned, 4> registers = {};
    EXPECT_EQ(standin_sleep(1), StandInAnswer::NotHandled);
    EXPECT_EQ(standin_messageBox("text", "title", 64), StandInAnswer::NotHandled);
    EXPECT_EQ(standin_hideConsole(), StandInAnswer::NotHandled);
    EXPECT_EQ(standin_virtualScreen(&area), StandInAnswer::NotHandled);
    EXPECT_EQ(standin_cpuid(0, registers.data()), StandInAnswer::NotHandled);
}

TEST_F(SystemOverridesTest, UntilTheyAreSetAreTheSystems) {
    EXPECT_EQ(standin_sleep(1), StandInAnswer::NotHandled);
    EXPECT_EQ(standin_hideConsole(), StandInAnswer::NotHandled);
    EXPECT_TRUE(overrides::sleeps().empty());
    EXPECT_EQ(overrides::consoleHidings(), 0);
}

TEST_F(SystemOverridesTest, WaitAtOnceByDefault) {
    overrides::set({});
    EXPECT_EQ(standin_sleep(250), StandInAnswer::Done);
    EXPECT_EQ(standin_sleep(1000), StandInAnswer::Done);
    EXPECT_EQ(overrides::sleeps(), (std::vector<int>{250, 1000}));

    SystemOverrides inTime;
    inTime.sleepTakesTime = true;
    overrides::set(inTime);
    EXPECT_EQ(standin_sleep(250), StandInAnswer::NotHandled);
    EXPECT_EQ(overrides::sleeps(), (std::vector<int>{250, 1000, 250}));
}

TEST_F(SystemOverridesTest, KeepAMessageWithItsIcon) {
    overrides::set({});
    EXPECT_EQ(standin_messageBox("one", "first", 64), StandInAnswer::Done);
    EXPECT_EQ(standin_messageBox("two", "second", 16), StandInAnswer::Done);
    ASSERT_EQ(host::messages().size(), 2U);
    EXPECT_EQ(host::messages()[0].text, "one");
    EXPECT_EQ(host::messages()[0].title, "first");
    EXPECT_EQ(host::messages()[0].icon, adsk::core::InformationIconType);
    EXPECT_EQ(host::messages()[1].icon, adsk::core::CriticalIconType);
}

TEST_F(SystemOverridesTest, LeaveTheConsoleAloneByDefault) {
    overrides::set({});
    EXPECT_EQ(standin_hideConsole(), StandInAnswer::Done);
    EXPECT_EQ(overrides::consoleHidings(), 1);

    SystemOverrides hiding;
    hiding.consoleMayHide = true;
    overrides::set(hiding);
    EXPECT_EQ(standin_hideConsole(), StandInAnswer::NotHandled);
    EXPECT_EQ(overrides::consoleHidings(), 2);
}

TEST_F(SystemOverridesTest, NameTheScreen) {
    SystemOverrides screen;
    screen.screen = host::ScreenRectangle{.left = -640, .top = 0, .right = 800, .bottom = 600};
    overrides::set(screen);
    StandInArea area = {};
    EXPECT_EQ(standin_virtualScreen(&area), StandInAnswer::Done);
    EXPECT_EQ(area.left, -640);
    EXPECT_EQ(area.bottom, 600);
}

namespace {

/// Notes the titles and left edges; two windows are enough.
int lookAtTwo(void* context, const char* title, const StandInArea* inside) {
    auto& seen = *static_cast<std::vector<std::string>*>(context);
    seen.push_back(title + std::to_string(inside->left));
    return seen.size() < 2 ? 1 : 0;
}

}  // namespace

TEST_F(SystemOverridesTest, ShowTheWindowsFromTheForemostOnUntilItIsEnough) {
    std::vector<std::string> seen;
    EXPECT_EQ(standin_visitWindows(&lookAtTwo, &seen), StandInAnswer::NotHandled);
    SystemOverrides screen;
    screen.windows = std::vector<host::WindowShown>{{"b", {5, 0, 9, 9}}, {"a", {6, 0, 9, 9}}, {}};
    overrides::set(screen);
    EXPECT_EQ(standin_visitWindows(&lookAtTwo, &seen), StandInAnswer::Done);
    EXPECT_EQ(seen, (std::vector<std::string>{"b5", "a6"}));
}

TEST_F(SystemOverridesTest, SpeakForAnotherProcessor) {
    SystemOverrides other;
    other.processor = [](unsigned leaf) { return std::array<unsigned, 4>{leaf, 1, 2, 3}; };
    overrides::set(other);
    std::array<unsigned, 4> registers = {};
    EXPECT_EQ(standin_cpuid(0x80000000U, registers.data()), StandInAnswer::Done);
    EXPECT_EQ(registers, (std::array<unsigned, 4>{0x80000000U, 1, 2, 3}));
}
