#include "host/session/shell_requests.h"

#include "host/base/host_state.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace requests = host::shell_requests;
using requests::Policy;

namespace {

class ShellRequests : public testing::Test {
protected:
    std::optional<host::HostState> host{std::in_place};
};

}  // namespace

TEST_F(ShellRequests, WithoutASessionTheyAreTheSystems) {
    EXPECT_EQ(standin_openWithShell("a.txt", StandInTarget::File), StandInAnswer::NotHandled);
    EXPECT_TRUE(requests::recorded().empty());

    host.reset();
    EXPECT_EQ(standin_openWithShell("a.txt", StandInTarget::File), StandInAnswer::NotHandled);
}

TEST_F(ShellRequests, AreRecordedInOrderAndDone) {
    requests::setPolicy(Policy::Record);

    EXPECT_EQ(standin_openWithShell("C:\\a.xlsm", StandInTarget::File), StandInAnswer::Done);
    EXPECT_EQ(standin_openWithShell("http://b.example", StandInTarget::File), StandInAnswer::Done);
    EXPECT_EQ(requests::recorded(), (std::vector<std::string>{"C:\\a.xlsm", "http://b.example"}));
}

TEST_F(ShellRequests, AreRecordedWithWhatTheyAre) {
    requests::setPolicy(Policy::Record);

    standin_openWithShell("C:\\Helpdesk\\", StandInTarget::Folder);
    standin_openWithShell("http://b.example", StandInTarget::Address);
    standin_openWithShell("C:\\a.xlsm", StandInTarget::File);
    EXPECT_EQ(requests::recordedKinds(),
              (std::vector<StandInTarget>{StandInTarget::Folder, StandInTarget::Address,
                                          StandInTarget::File}));
}

TEST_F(ShellRequests, AreRecordedWhenTheSystemIsToOpenThem) {
    requests::setPolicy(Policy::RecordOpen);

    EXPECT_EQ(standin_openWithShell("a.txt", StandInTarget::File), StandInAnswer::NotHandled);
    EXPECT_EQ(requests::recorded(), (std::vector<std::string>{"a.txt"}));
}

TEST_F(ShellRequests, CanBeMadeToFail) {
    requests::setPolicy(Policy::RecordFail);

    EXPECT_EQ(standin_openWithShell("a.txt", StandInTarget::File), StandInAnswer::Failed);
    EXPECT_EQ(requests::recorded(), (std::vector<std::string>{"a.txt"}));
}

TEST_F(ShellRequests, AreThoseOfOneHost) {
    requests::setPolicy(Policy::Record);
    standin_openWithShell("a.txt", StandInTarget::File);

    host.reset();
    host.emplace();

    EXPECT_TRUE(requests::recorded().empty());
    EXPECT_TRUE(requests::recordedKinds().empty());
}
