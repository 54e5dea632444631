#include "tarnix/addin/helpdesk_commands.h"

#include "host/base/gate.h"
#include "tests/tarnix/addin/registration_fixture.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace test_support {
namespace {

class HelpdeskCommands : public AddinUiTest {};

TEST_F(HelpdeskCommands, RunWithoutADialog) {
    session->press("QM_HD_systemInfo");

    EXPECT_FALSE(session->dialogOpen());
    EXPECT_EQ(uncaughtExceptions(), "");
}

class RefusedHelpdeskCommand : public RegistrationTest {};

TEST_F(RefusedHelpdeskCommand, ShowsTheUserWhyTheHostRefusedIt) {
    faults.expectMisuse("CommandDefinitions::addButtonDefinition",
                        "the id \"QM_HD_captureScreen\" is in use");
    ui()->commandDefinitions()->addButtonDefinition("QM_HD_captureScreen", "Another's", "");
    const host::gate::Module asModule;
    // It does not find the other one, and may not add its own.
    host::gate::refuse("CommandDefinitions::itemById", 2);

    EXPECT_FALSE(tarnix::createHelpdeskCommands());

    std::string reason;
    adsk::core::Application::get()->getLastError(&reason);
    EXPECT_NE(reason, "");
    host::Message shown;  // no title, no picture, one button
    shown.text = reason;
    EXPECT_EQ(session->messages(), std::vector{shown});
    EXPECT_EQ(present(), text(R"(
        QM_HD_openHelpdesk
        QM_HD_captureScreen)"));
}

class DefinedHelpdeskCommand : public UnstartedAddinTest {};

TEST_F(DefinedHelpdeskCommand, IsTakenAsItIs) {
    ASSERT_TRUE(ui()->commandDefinitions()->addButtonDefinition("QM_HD_openHelp", "Mine", ""));

    EXPECT_TRUE(run());

    EXPECT_EQ(definition("QM_HD_openHelp")->name(), "Mine");
}

}  // namespace
}  // namespace test_support
