#include "tests/conformance/idioms.h"
#include "tests/host/ui/host_test.h"

#include "host/session/environment.h"
#include "host/session/session.h"

namespace host {
namespace {

/// Sources written for the vendor's host, compiled against the headers of this one.
class Conformance : public HostWithDesign {
protected:
    Conformance() : HostWithDesign("Bolt\nNut") {}
};

// CPPSpecific_UM: handles are used like pointers, and collections in range-based loops.
TEST_F(Conformance, HandlesAreUsedLikePointersInCpp17) {
    EXPECT_EQ(idioms_cpp17::wrongIdioms(Application::get()), std::vector<std::string>());
}

TEST_F(Conformance, HandlesAreUsedLikePointersInCpp20) {
    EXPECT_EQ(idioms_cpp20::wrongIdioms(Application::get()), std::vector<std::string>());
}

/// A module of its own, in a session.
class ConformanceModule : public testing::Test {
protected:
    static SessionOptions options() {
        SessionOptions options;
        options.addin = environment::programFolder() / CONFORMANCE_FOLDER;
        return options;
    }
};

TEST_F(ConformanceModule, RunsInASession) {
    Session session(options());
    session.openOutline("Bolt\nNut");

    EXPECT_TRUE(session.run());

    EXPECT_EQ(session.log(), (std::vector<LogLine>{{.text = "no idiom came out wrong"}}));
    EXPECT_TRUE(session.uncaughtExceptions().empty());
}

// Threading_UM, adsk.terminate: the script ends once the notification has returned.
TEST_F(ConformanceModule, StopsAfterTheNotificationThatTerminatesIt) {
    Session session(options());
    session.openOutline("Bolt\nNut");
    session.run();

    session.press("ConformanceTerminate");

    const std::vector<LogLine> log = session.log();
    ASSERT_EQ(log.size(), 3U);
    EXPECT_EQ(log[1].text, "asked to terminate");
    EXPECT_EQ(log[2],
              (LogLine{.text = "stopped", .level = WarningLogLevel, .type = ConsoleLogType}));
}

constexpr const char* kPalette = "ConformancePalette";
constexpr const char* kAllOperations =
    "turned, 1 point, 2 cm, 26.000 mm, /target, visible, Untitled, Extrude, Component2:1";

TEST_F(ConformanceModule, CallsWhatAddInsAskMost) {
    Session session(options());
    session.openOutline("Bolt\nNut");
    session.run();
    session.press("ConformanceOperations");
    session.type("value", "1 in");
    answerNextFileDialog({{"/list.csv"}});
    answerNextFileDialog({{"/target"}});

    session.ok();

    const std::vector<LogLine> log = session.log();
    ASSERT_EQ(log.size(), 3U);
    EXPECT_EQ(log[1].text, kAllOperations);
    EXPECT_EQ(log[2].text, "worked");
    EXPECT_EQ(session.designsOpenedByModule().back().components.size(), 3U);
    answerAsPage(kPalette, [](const ui::PageMessage& sent) { return sent.action + sent.data; });
    EXPECT_EQ(sendFromPage(kPalette, "ask", "!"), "echo!");
    EXPECT_TRUE(session.stop());
    EXPECT_TRUE(session.uncaughtExceptions().empty());
}

bool hasPalette() { return Application::get()->userInterface()->palettes()->itemById(kPalette); }

// Whichever call returns nothing: the module may throw for a null handle, and the host goes on.
TEST_F(ConformanceModule, SurvivesANullAtEveryHostCall) {
    std::uint64_t call = 1;
    for (bool refused = true; refused; ++call) {
        Session session(options());
        session.openOutline("Bolt\nNut");
        session.run();
        gate::reset();
        gate::refuseAny(call);
        answerNextFileDialog({{"/list.csv"}});
        answerNextFileDialog({{"/target"}});
        session.press("ConformanceOperations");
        if (session.dialogOpen()) {
            acceptAnyway();
        }
        if (hasPalette()) {
            sendFromPage(kPalette, "ask", "!");
        }
        session.stop();
        refused = gate::refusedCall().has_value();
        for (const UncaughtException& each : session.uncaughtExceptions()) {
            EXPECT_EQ(each.type, "std::exception") << gate::refusedCall().value_or("");
        }
        EXPECT_FALSE(openDialog()) << gate::refusedCall().value_or("");
    }
    EXPECT_GT(call, 50U);
}

}  // namespace
}  // namespace host
