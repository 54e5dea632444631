#include "host/session/shell_requests.h"

#include "host/base/host_state.h"

#include <StandIn/Process.h>

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
    EXPECT_EQ(standin_openWithShell("a.txt"), StandInAnswer::NotHandled);
    EXPECT_TRUE(requests::recorded().empty());

    host.reset();
    EXPECT_EQ(standin_openWithShell("a.txt"), StandInAnswer::NotHandled);
}

TEST_F(ShellRequests, AreRecordedInOrderAndDone) {
    requests::setPolicy(Policy::Record);

    EXPECT_EQ(standin_openWithShell("C:\\a.xlsm"), StandInAnswer::Done);
    EXPECT_EQ(standin_openWithShell("http://b.example"), StandInAnswer::Done);
    EXPECT_EQ(requests::recorded(), (std::vector<std::string>{"C:\\a.xlsm", "http://b.example"}));
}

TEST_F(ShellRequests, AreRecordedWhenTheSystemIsToOpenThem) {
    requests::setPolicy(Policy::RecordOpen);

    EXPECT_EQ(standin_openWithShell("a.txt"), StandInAnswer::NotHandled);
    EXPECT_EQ(requests::recorded(), (std::vector<std::string>{"a.txt"}));
}

TEST_F(ShellRequests, CanBeMadeToFail) {
    requests::setPolicy(Policy::RecordFail);

    EXPECT_EQ(standin_openWithShell("a.txt"), StandInAnswer::Failed);
    EXPECT_EQ(requests::recorded(), (std::vector<std::string>{"a.txt"}));
}

TEST_F(ShellRequests, AreThoseOfOneHost) {
    requests::setPolicy(Policy::Record);
    standin_openWithShell("a.txt");

    host.reset();
    host.emplace();

    EXPECT_TRUE(requests::recorded().empty());
}
