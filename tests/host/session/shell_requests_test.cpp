#include "host/session/shell_requests.h"

#include <StandIn/Process.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace requests = host::shell_requests;
using requests::Policy;

namespace {

class ShellRequests : public testing::Test {
protected:
    void TearDown() override { requests::start(Policy::PassOn); }
};

}  // namespace

TEST_F(ShellRequests, WithoutASessionTheyAreTheSystems) {
    EXPECT_EQ(standin_openWithShell("a.txt"), StandInAnswer::NotHandled);
    EXPECT_TRUE(requests::recorded().empty());
}

TEST_F(ShellRequests, AreRecordedInOrderAndDone) {
    requests::start(Policy::Record);

    EXPECT_EQ(standin_openWithShell("C:\\a.xlsm"), StandInAnswer::Done);
    EXPECT_EQ(standin_openWithShell("http://b.example"), StandInAnswer::Done);
    EXPECT_EQ(requests::recorded(), (std::vector<std::string>{"C:\\a.xlsm", "http://b.example"}));
}

TEST_F(ShellRequests, AreRecordedWhenTheSystemIsToOpenThem) {
    requests::start(Policy::RecordOpen);

    EXPECT_EQ(standin_openWithShell("a.txt"), StandInAnswer::NotHandled);
    EXPECT_EQ(requests::recorded(), (std::vector<std::string>{"a.txt"}));
}

TEST_F(ShellRequests, CanBeMadeToFail) {
    requests::start(Policy::RecordFail);

    EXPECT_EQ(standin_openWithShell("a.txt"), StandInAnswer::Failed);
    EXPECT_EQ(requests::recorded(), (std::vector<std::string>{"a.txt"}));
}

TEST_F(ShellRequests, AnotherStartForgetsThem) {
    requests::start(Policy::Record);
    standin_openWithShell("a.txt");

    requests::start(Policy::Record);

    EXPECT_TRUE(requests::recorded().empty());
}
