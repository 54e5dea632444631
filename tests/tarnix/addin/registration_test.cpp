#include "tarnix/addin/addin_command.h"
#include "tarnix/addin/helpdesk_commands.h"
#include "tarnix/addin/main_commands.h"
#include "tarnix/addin/panels.h"
#include "tarnix/addin/state.h"

#include "tests/tarnix/addin/addin_ui_test.h"

#include <gtest/gtest.h>

namespace tarnix {
extern "C" bool stop(const char* context);
}

/// Registration by direct calls, for what `run` does only once. The module stands by unused.
namespace test_support {
namespace {

using adsk::core::Application;
using adsk::core::CommandCreatedEventArgs;
using adsk::core::CommandCreatedEventHandler;
using adsk::core::Ptr;

class CountingHandler final : public CommandCreatedEventHandler {
public:
    explicit CountingHandler(int& count) : count_(count) {}
    void notify(const Ptr<CommandCreatedEventArgs>& /*eventArgs*/) override { ++count_; }

private:
    int& count_;
};

class Registration : public UnstartedAddinTest {
protected:
    void SetUp() override {
        UnstartedAddinTest::SetUp();
        tarnix::app = Application::get();
        tarnix::ui = ui();
    }

    void TearDown() override {
        tarnix::destroyCommands();
        tarnix::helpdeskCommandDefinitions.clear();
        tarnix::ui = nullptr;
        tarnix::app = nullptr;
        UnstartedAddinTest::TearDown();
    }

    std::unique_ptr<tarnix::AddinCommand> makeCommand() {
        return std::make_unique<tarnix::AddinCommand>(
            Application::get(), tarnix::CommandTexts{"OwnCommand", "Own", "Mine", "folder"},
            std::make_unique<CountingHandler>(created));
    }

    int created = 0;
};

TEST_F(Registration, OfACommandLastsAsLongAsItsObject) {
    auto command = makeCommand();
    EXPECT_EQ(texts("OwnCommand"), text(R"(
        Own
        Mine
        folder)"));

    command.reset();

    EXPECT_FALSE(definition("OwnCommand"));
}

TEST_F(Registration, StopWithoutTheUserInterfaceLetsTheApplicationGo) {
    tarnix::ui = nullptr;

    EXPECT_TRUE(tarnix::stop(nullptr));

    EXPECT_FALSE(tarnix::app);
}

TEST_F(Registration, IsDoneOnce) {
    const auto command = makeCommand();
    const Ptr<adsk::core::CommandDefinition> made = command->commandDefinition;

    command->createDefinition();
    session->press("OwnCommand");

    EXPECT_TRUE(command->commandDefinition == made);
    EXPECT_EQ(created, 1);
}

TEST_F(Registration, OfAnIdInUseLeavesTheObjectWithoutADefinition) {
    const auto first = makeCommand();

    const auto second = makeCommand();
    session->press("OwnCommand");

    EXPECT_FALSE(second->commandDefinition);
    EXPECT_EQ(created, 1);
}

TEST_F(Registration, WithoutTheEventThrowsAndLeavesNothing) {
    const host::gate::Module asModule;
    host::gate::refuse("CommandDefinition::commandCreated", 1);

    EXPECT_THROW(makeCommand(), std::exception);

    EXPECT_FALSE(definition("OwnCommand"));
}

TEST_F(Registration, OfControlsTwiceAddsTheConfigurationAgainAndNothingElse) {
    tarnix::createCommands();
    ASSERT_TRUE(tarnix::addToolsPanels());
    const std::string tools = controls("QM_Tarnix_AlfaCAMEnvironment");

    tarnix::addCommandControls(kManufacture);

    EXPECT_EQ(controls("QM_Tarnix_AlfaCAMEnvironment"), tools);
    EXPECT_EQ(controls("QM_HD_panelCAMEnvironment"), text(R"(
        QM_TX_configuration
        QM_TX_configuration)"));
}

TEST_F(Registration, OfControlsInAWorkspaceThatIsNotThereDoesNothing) {
    tarnix::createCommands();

    tarnix::addCommandControls("NoSuchEnvironment");

    EXPECT_FALSE(panel("QM_Tarnix_AlfaNoSuchEnvironment"));
    EXPECT_FALSE(panel("QM_HD_panelNoSuchEnvironment"));
}

TEST_F(Registration, FillsAHelpdeskPanelOnce) {
    tarnix::createCommands();
    ASSERT_TRUE(tarnix::addToolsPanels());
    ASSERT_TRUE(tarnix::createHelpdeskCommands());
    const Ptr<adsk::core::Workspace> workspace = ui()->workspaces()->itemById(kSolid);

    EXPECT_TRUE(tarnix::addHelpdeskPanel(workspace));
    const auto controlsOfPanel = panel("QM_HD_panelFusionSolidEnvironment")->controls();
    EXPECT_EQ(controlsOfPanel->count(), 9U);
    EXPECT_TRUE(tarnix::addHelpdeskPanel(workspace));

    EXPECT_EQ(controlsOfPanel->count(), 9U);
}

TEST_F(Registration, LeavesAHelpdeskPanelWithoutTheConfigurationEmpty) {
    tarnix::createCommands();
    ASSERT_TRUE(tarnix::createHelpdeskCommands());

    EXPECT_TRUE(tarnix::addHelpdeskPanel(ui()->workspaces()->itemById(kRender)));

    EXPECT_EQ(controls("QM_HD_panelFusionRenderEnvironment"), "");
}

TEST_F(Registration, OfAHelpdeskPanelNeedsAWorkspace) {
    EXPECT_FALSE(tarnix::addHelpdeskPanel(nullptr));
}

TEST_F(Registration, ShowsTheUserWhyTheHostRefusedAHelpdeskCommand) {
    ui()->commandDefinitions()->addButtonDefinition("QM_HD_captureScreen", "Another's", "");
    const host::gate::Module asModule;
    // It does not find the other one, and may not add its own.
    host::gate::refuse("CommandDefinitions::itemById", 2);

    EXPECT_FALSE(tarnix::createHelpdeskCommands());

    std::string reason;
    Application::get()->getLastError(&reason);
    EXPECT_NE(reason, "");
    host::Message told;  // no title, no picture, one button
    told.text = reason;
    EXPECT_EQ(session->messages(), std::vector{told});
    EXPECT_EQ(standing(), text(R"(
        QM_HD_openHelpdesk
        QM_HD_captureScreen)"));
}

}  // namespace
}  // namespace test_support
