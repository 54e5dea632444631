#include "tarnix/platform/native.h"
#include "tarnix/platform/sleep.h"

#include <Core/OSMacros.h>
#include <StandIn/Process.h>

#include <gtest/gtest.h>

#include <chrono>
#include <string>

namespace {

/// What the process answers, and what it was asked last.
struct Process {
    StandInAnswer answer = StandInAnswer::NotHandled;
    StandInArea area = {};
    std::string asked;
};

Process process;

StandInAnswer answerTo(const std::string& question) {
    process.asked = question;
    return process.answer;
}

}  // namespace

// What a stand-in process exports to the modules that it loads.
extern "C" XI_EXPORT StandInAnswer standin_sleep(int milliseconds) {
    return answerTo("sleep " + std::to_string(milliseconds));
}

extern "C" XI_EXPORT StandInAnswer standin_messageBox(const char* text, const char* title,
                                                      unsigned style) {
    return answerTo(std::string(title) + " (" + std::to_string(style) + "): " + text);
}

extern "C" XI_EXPORT StandInAnswer standin_hideConsole() { return answerTo("hide"); }

extern "C" XI_EXPORT StandInAnswer standin_virtualScreen(StandInArea* area) {
    *area = process.area;
    return answerTo("screen");
}

extern "C" XI_EXPORT StandInAnswer standin_cpuid(unsigned leaf, unsigned* registers) {
    for (unsigned i = 0; i < 4; ++i) {
        registers[i] = leaf + i;
    }
    return answerTo("leaf " + std::to_string(leaf));
}

namespace tarnix::platform {
namespace {

/// The answers of a process in the place of the system's.
class HostedSystem : public testing::Test {
protected:
    HostedSystem() { process = {}; }
    ~HostedSystem() override { process = {}; }

    static constexpr ScreenArea kNone = {};
};

TEST_F(HostedSystem, WaitsAsLongAsTheProcessWantsIt) {
    process.answer = StandInAnswer::Done;
    const auto start = std::chrono::steady_clock::now();
    sleep(60'000);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(60));
    EXPECT_EQ(process.asked, "sleep 60000");
}

TEST_F(HostedSystem, WaitsItselfWhereTheProcessDoesNot) {
    const auto start = std::chrono::steady_clock::now();
    sleep(100);
    // The two clocks differ by less than a tick of the system.
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(80));
}

TEST_F(HostedSystem, PassesAMessageToTheProcess) {
    process.answer = StandInAnswer::Done;
    showMessageBox("Target directory does not exist.", "Information", MessageStyle::Information);
    EXPECT_EQ(process.asked, "Information (64): Target directory does not exist.");
    showMessageBox("caf\xC3\xA9", "Error message", MessageStyle::Error);
    EXPECT_EQ(process.asked, "Error message (16): caf\xC3\xA9");
}

TEST_F(HostedSystem, LeavesTheConsoleToTheProcess) {
    process.answer = StandInAnswer::Done;
    EXPECT_EQ(hideConsole(), 0U);
    EXPECT_EQ(process.asked, "hide");
}

TEST_F(HostedSystem, HasTheScreenOfTheProcess) {
    process = {StandInAnswer::Done, {-640, -10, 800, 600}, ""};
    EXPECT_EQ(virtualScreen(), (ScreenArea{-640, -10, 800, 600}));
}

TEST_F(HostedSystem, HasNoScreenWhereTheProcessHasNone) {
    process = {StandInAnswer::Failed, {1, 2, 3, 4}, ""};
    EXPECT_EQ(virtualScreen(), kNone);
}

TEST_F(HostedSystem, HasTheMachinesScreenOtherwise) {
    process.area = {1, 2, 3, 4};
    EXPECT_EQ(virtualScreen(), native::virtualScreen());
}

TEST_F(HostedSystem, HasTheProcessorOfTheProcess) {
    process.answer = StandInAnswer::Done;
    EXPECT_EQ(processorInformation(0x80000002U),
              (ProcessorRegisters{0x80000002U, 0x80000003U, 0x80000004U, 0x80000005U}));
    EXPECT_EQ(process.asked, "leaf 2147483650");
}

TEST_F(HostedSystem, HasNoProcessorWhereTheProcessHasNone) {
    process.answer = StandInAnswer::Failed;
    EXPECT_EQ(processorInformation(0x80000000U), ProcessorRegisters());
}

TEST_F(HostedSystem, HasTheMachinesProcessorOtherwise) {
    EXPECT_EQ(processorInformation(0x80000000U), native::processorInformation(0x80000000U));
    EXPECT_NE(processorInformation(0x80000000U)[0], 0x80000000U);
}

}  // namespace
}  // namespace tarnix::platform
