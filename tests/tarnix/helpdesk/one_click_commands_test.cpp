#include "tarnix/helpdesk/one_click_commands.h"

#include "tests/tarnix/helpdesk/helpdesk_fixture.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace fs = std::filesystem;

namespace test_support {
namespace {

using namespace adsk::core;

/// Has the handler of the helpdesk commands execute a command that is none of them.
class Created final : public CommandCreatedEventHandler {
public:
    void notify(const Ptr<CommandCreatedEventArgs>& args) override {
        args->command()->execute()->add(&handler_);
        ++count;
    }

    int count = 0;

private:
    tarnix::OnExecuteEventHandler handler_;
};

using HelpdeskHandler = HelpdeskTest;

TEST_F(HelpdeskHandler, DoesNothingForAnUnknownId) {
    Created created;
    const Ptr<UserInterface> userInterface = Application::get()->userInterface();
    const Ptr<CommandDefinition> unknown =
        userInterface->commandDefinitions()->addButtonDefinition("QM_HD_unknown", "Unknown", "");
    unknown->commandCreated()->add(&created);
    press("unknown");
    unknown->deleteMe();

    EXPECT_EQ(created.count, 1);
    EXPECT_FALSE(fs::exists(supportFolder()));
    EXPECT_TRUE(session->openedByShell().empty());
    EXPECT_EQ(shownMessages(), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

}  // namespace
}  // namespace test_support
