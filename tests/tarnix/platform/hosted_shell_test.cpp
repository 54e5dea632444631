#include "tests/tarnix/platform/shell_fixture.h"

#include <Core/OSMacros.h>
#include <StandIn/Process.h>

#include <vector>

namespace {

StandInAnswer answer = StandInAnswer::NotHandled;
std::vector<std::string> asked;
std::vector<StandInTarget> kinds;

}  // namespace

// What a stand-in process exports to the modules that it loads.
extern "C" XI_EXPORT StandInAnswer standin_openWithShell(const char* target, StandInTarget kind) {
    asked.emplace_back(target);
    kinds.push_back(kind);
    return answer;
}

namespace tarnix::platform {
namespace {

class HostedShell : public Shell {
protected:
    HostedShell() {
        asked.clear();
        kinds.clear();
    }
    ~HostedShell() override { answer = StandInAnswer::NotHandled; }
};

TEST_F(HostedShell, ProcessIsAskedWithTheStringUnchanged) {
    answer = StandInAnswer::Done;
    EXPECT_TRUE(openWithShell("C:\\a b\\caf\xE9.xlsm"));
    EXPECT_EQ(asked, std::vector<std::string>{"C:\\a b\\caf\xE9.xlsm"});
}

TEST_F(HostedShell, ProcessIsAskedForEachKind) {
    answer = StandInAnswer::Done;
    openWithShell("C:\\a.pdf");
    openWithShell("C:\\Helpdesk\\", ShellTarget::Folder);
    openWithShell("http://a.example/", ShellTarget::Address);
    EXPECT_EQ(kinds, (std::vector<StandInTarget>{StandInTarget::File, StandInTarget::Folder,
                                                 StandInTarget::Address}));
}

TEST_F(HostedShell, SystemIsNotAskedForWhatTheProcessHasDone) {
    answer = StandInAnswer::Done;
    EXPECT_TRUE(openWithShell("http://done.example/"));
    answer = StandInAnswer::Failed;
    EXPECT_FALSE(openWithShell("http://failed.example/"));
    // The next is the first to reach the system.
    answer = StandInAnswer::NotHandled;
    EXPECT_TRUE(openWithShell("http://a.example/"));
    EXPECT_EQ(opened(), "http://a.example/\n");
}

}  // namespace
}  // namespace tarnix::platform
