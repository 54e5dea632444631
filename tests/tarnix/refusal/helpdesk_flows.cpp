#include "tests/tarnix/refusal/known_exceptions.h"
#include "tests/tarnix/refusal/refused_flow.h"

#include <gtest/gtest.h>

#include <string>

namespace refusal {
namespace {

using host::Session;
using test_support::RefusalSweep;

/// Nothing is shown, and the shell opens one thing at most.
void checkQuiet(Session& session, const std::string& call) {
    expectOnlyPlainThrown(session);
    EXPECT_TRUE(session.messages().empty()) << call;
    EXPECT_LE(session.openedByShell().size(), 1U) << call;
}

template <const char* kCommand>
RefusalSweep press() {
    return {.prepare = [](Session& session) { ASSERT_TRUE(session.run()); },
            .flow = [](Session& session) { session.press(kCommand); },
            .check = checkQuiet};
}

constexpr char kOpenHelpdesk[] = "QM_HD_openHelpdesk";
constexpr char kOpenHelp[] = "QM_HD_openHelp";
constexpr char kOpenFolder[] = "QM_HD_openFolder";

}  // namespace

// Of each command the host is at least asked for the command, its definition and its id.
RefusedFlows helpdeskFlows() {
    return {{.name = "InOpenHelpdesk", .sweep = press<kOpenHelpdesk>, .leastCalls = 4},
            {.name = "InOpenHelp", .sweep = press<kOpenHelp>, .leastCalls = 4},
            {.name = "InOpenFolder", .sweep = press<kOpenFolder>, .leastCalls = 4}};
}

}  // namespace refusal
