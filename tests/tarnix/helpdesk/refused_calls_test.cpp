#include "tests/support/addin_test.h"
#include "tests/support/refusal.h"

#include <gtest/gtest.h>

#include <string>

namespace test_support {
namespace {

using host::Session;

/// Whatever the host refused: nothing but the plain exception of a null handle, and nothing said.
void expectQuiet(Session& session, const std::string& call) {
    for (const host::UncaughtException& thrown : session.uncaughtExceptions()) {
        EXPECT_EQ(thrown.type + ": " + thrown.text, "std::exception: ") << call;
    }
    EXPECT_TRUE(session.messages().empty()) << call;
}

std::uint64_t refuseCallsOf(const std::string& command) {
    RefusalSweep sweep;
    sweep.prepare = [](Session& session) { ASSERT_TRUE(session.run()); };
    sweep.flow = [command](Session& session) { session.press(command); };
    sweep.check = [](Session& session, const std::string& call) {
        expectQuiet(session, call);
        EXPECT_LE(session.openedByShell().size(), 1U) << call;
    };
    return refuseEachCall(sweep);
}

// Of each command the host is at least asked for the command, its definition and its id.
TEST(RefusedCallOfTheHelpdesk, EndsOpenHelpdeskQuietly) {
    EXPECT_GT(refuseCallsOf("QM_HD_openHelpdesk"), 3U);
}

TEST(RefusedCallOfTheHelpdesk, EndsOpenHelpQuietly) {
    EXPECT_GT(refuseCallsOf("QM_HD_openHelp"), 3U);
}

TEST(RefusedCallOfTheHelpdesk, EndsOpenFolderQuietly) {
    EXPECT_GT(refuseCallsOf("QM_HD_openFolder"), 3U);
}

}  // namespace
}  // namespace test_support
