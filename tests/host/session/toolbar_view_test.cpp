#include "host/session/toolbar_view.h"

#include "tests/host/ui/host_test.h"

#include <string>

namespace host {
namespace {

using namespace adsk::core;

class ToolbarViews : public HostTest {
protected:
    Ptr<CommandDefinition> command(const std::string& id) {
        return define(id, [](const Ptr<Command>&) {});
    }
};

TEST_F(ToolbarViews, AWorkspaceHasItsTabsPanelsAndControls) {
    const Ptr<CommandDefinition> made =
        ui()->commandDefinitions()->addButtonDefinition("Mine", "My command", "Does it", "./icons");
    const Ptr<ToolbarPanel> panel = ui()->workspaces()
                                        ->itemById("FusionSolidEnvironment")
                                        ->toolbarPanels()
                                        ->add("MyPanel", "My panel");
    const Ptr<CommandControl> control = panel->controls()->addCommand(made);
    control->isPromoted(true);
    control->isVisible(false);

    const ToolbarView view = readToolbars();

    ASSERT_EQ(view.workspaces.size(), 4U);
    const WorkspaceView& workspace = view.workspaces.front();
    EXPECT_EQ(workspace.id + " " + workspace.caption, "FusionSolidEnvironment Design");
    EXPECT_TRUE(workspace.active);
    ASSERT_EQ(workspace.tabs.size(), 1U);
    EXPECT_EQ(workspace.tabs[0].id, "ToolsTab");
    ASSERT_EQ(workspace.tabs[0].panels.size(), 2U);
    EXPECT_TRUE(workspace.tabs[0].panels[0].native);
    EXPECT_EQ(workspace.tabs[0].panels[1].caption, "My panel");
    EXPECT_FALSE(workspace.tabs[0].panels[1].native);
    EXPECT_EQ(workspace.tabs[0].panels[1].controls,
              (std::vector<ControlView>{{"Mine", "My command", "Does it", "./icons",
                                         /*visible=*/false, /*promoted=*/true,
                                         /*isDeleted=*/false}}));
    EXPECT_FALSE(view.workspaces[1].active);
}

TEST_F(ToolbarViews, ACommandThatNoPanelHoldsIsWithoutAButton) {
    command("Alone");

    const ToolbarView view = readToolbars();

    ASSERT_EQ(view.withoutButton.size(), 1U);
    EXPECT_EQ(view.withoutButton[0].command, "Alone");
    EXPECT_EQ(commandIds(), (std::vector<std::string>{"Alone"}));
}

TEST_F(ToolbarViews, CommandIsReadByItsId) {
    ui()->commandDefinitions()->addButtonDefinition("Mine", "My command", "Does it", "./icons");

    EXPECT_EQ(readCommand("Mine"), (ControlView{"Mine", "My command", "Does it", "./icons"}));
    EXPECT_TRUE(readCommand("Nobodys").isDeleted);
}

TEST_F(ToolbarViews, AControlOutlivesItsCommand) {
    const Ptr<CommandDefinition> gone = command("Gone");
    ui()->allToolbarPanels()->item(0)->controls()->addCommand(gone);
    gone->deleteMe();

    const ToolbarView view = readToolbars();

    const ControlView& control = view.workspaces[0].tabs[0].panels[0].controls.at(0);
    EXPECT_EQ(control.command, "Gone");
    EXPECT_TRUE(control.isDeleted);
    EXPECT_TRUE(view.withoutButton.empty());
}

}  // namespace
}  // namespace host
