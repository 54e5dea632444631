#include "tests/support/addin_test.h"
#include "tests/support/files.h"
#include "tests/tarnix/refusal/known_exceptions.h"
#include "tests/tarnix/refusal/refused_flow.h"
#include "tests/tarnix/refusal/session_steps.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace refusal {
namespace {

using host::Session;
using test_support::RefusalSweep;

constexpr const char* kStored = "<www>http://old.example/</www>";

/// What the category of the provider holds, an empty element in its short form; the whole file
/// where there is no such category.
std::string stored(const Session& session) {
    const std::string bytes = test_support::readFile(settingsFileOf(session));
    const std::string before =
        "<configuration nameOfApplication=\"Tarnix\"><category name=\"httpHelpdesk\">";
    const std::string after = "</category></configuration>";
    const std::size_t from = bytes.find(before);
    const std::size_t to = bytes.find(after);
    const bool isWhole = from != std::string::npos && to != std::string::npos;
    if (!isWhole) {
        return bytes;
    }
    const std::string found = bytes.substr(from + before.size(), to - from - before.size());
    return found == "<www></www>" ? "<www/>" : found;
}

void checkFlow(Session& session, const std::string& /*call*/) {
    expectOnlyPlainThrown(session);
    EXPECT_EQ(stored(session), kStored);
    endSession(session);
}

/// The address as it was where something was thrown, else the new one, or what a box that returns
/// nothing leads to: its text is empty, or it is not visible.
void checkAccepted(Session& session, const std::string& call) {
    const std::string now = stored(session);
    if (!session.uncaughtExceptions().empty()) {
        EXPECT_EQ(now, kStored) << call;
    } else if (call == "TextBoxCommandInput::text") {
        EXPECT_EQ(now, "<www/>");
    } else if (call == "CommandInput::isVisible") {
        EXPECT_EQ(now, "<www>http://helpdesk.tarnix.example/</www>");
    } else {
        EXPECT_EQ(now, "<www>http://new.example/</www>") << call;
    }
    expectOnlyPlainThrown(session);
}

void storeSettings(const Session& session) {
    test_support::writeFile(
        settingsFileOf(session),
        std::string(
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"
            "<configuration nameOfApplication=\"Tarnix\"><category name=\"httpHelpdesk\">") +
            kStored + "</category></configuration>\r\n");
}

void load(Session& session) {
    storeSettings(session);
    ASSERT_TRUE(session.run());
}

void openDialog(Session& session) {
    load(session);
    session.press("QM_TX_configuration");
    ASSERT_TRUE(session.uncaughtExceptions().empty());
}

RefusalSweep opening() {
    return {.prepare = load,
            .flow = [](Session& session) { session.press("QM_TX_configuration"); },
            .check = checkFlow};
}

RefusalSweep switchedProvider() {
    return {.prepare = openDialog,
            .flow =
                [](Session& session) {
                    session.choose("choiceProvider", "Set Ostrel Works as your support provider");
                    session.choose("choiceProvider", "Set other support provider");
                },
            .check = checkFlow};
}

RefusalSweep acceptance() {
    return {.prepare =
                [](Session& session) {
                    openDialog(session);
                    session.paste("helpdeskOther", "http://new.example/");
                },
            .flow =
                [](Session& session) {
                    storeSettings(session);
                    session.ok();
                },
            .check = checkAccepted};
}

}  // namespace

RefusedFlows configurationFlows() {
    return {{.name = "WhileTheConfigurationOpens", .sweep = opening, .leastCalls = 13},
            {.name = "InSwitchingTheProvider", .sweep = switchedProvider, .leastCalls = 13},
            {.name = "InAcceptingTheConfiguration", .sweep = acceptance, .leastCalls = 5}};
}

}  // namespace refusal
