#include "tests/tarnix/addin/addin_ui_fixture.h"

#include "host/base/gate.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <vector>

namespace test_support {
namespace {

/// How often the main commands look for a workspace: in each of two for its panels, and then for
/// each control.
constexpr std::size_t kLookedForByMainCommands = 2 * (1 + kMainControlCount);

class Run : public AddinUiTest {};

TEST_F(Run, PlacesTheToolsInBothWorkspacesInTheirOrder) {
    const std::string tools = controlsOf(kMainCommands, Place::Tools);

    EXPECT_EQ(controls("QM_Tarnix_AlfaFusionSolidEnvironment"), tools);
    EXPECT_EQ(controls("QM_Tarnix_AlfaCAMEnvironment"), tools);
    EXPECT_EQ(controls("QM_Tarnix_AlfaFusionRenderEnvironment"), "no panel");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(Run, FillsTheHelpdeskPanelOfTheFirstWorkspaceOnce) {
    const std::string main = controlsOf(kMainCommands, Place::Helpdesk);
    const std::string helpdesk = controlsOf(kHelpdeskCommands, Place::Helpdesk);

    EXPECT_EQ(controls("QM_HD_panelFusionSolidEnvironment"), main + "\n" + helpdesk);
    EXPECT_EQ(controls("QM_HD_panelCAMEnvironment"), main);
}

TEST_F(Run, CaptionsThePanels) {
    EXPECT_EQ(panel("QM_Tarnix_AlfaCAMEnvironment")->name(), "QM Tarnix");
    EXPECT_EQ(panel("QM_HD_panelCAMEnvironment")->name(), "QM Helpdesk");
}

TEST_F(Run, KeepsTheModuleLoaded) { EXPECT_EQ(adsk::autoTerminate(), false); }

class RunOnce : public UnstartedAddinTest {};

TEST_F(RunOnce, SubscribesTheFourHooksInTheirOrder) {
    host::gate::record(true);

    ASSERT_TRUE(run());

    std::string hooks;
    const std::vector<std::string> calls = host::gate::recorded();
    for (auto call = calls.end() - 9; call != calls.end(); ++call) {
        hooks += *call + "\n";
    }
    host::gate::record(false);
    EXPECT_EQ(hooks,
              "UserInterface::markingMenuDisplaying\nEvent::add\n"
              "UserInterface::workspaceActivated\nEvent::add\n"
              "UserInterface::commandStarting\nEvent::add\n"
              "UserInterface::commandTerminated\nEvent::add\n"
              "adsk::autoTerminate\n");
}

/// A start in which one host call returns nothing.
class RefusedRun : public UnstartedAddinTest {
protected:
    bool runsWithout(const std::string& call, std::uint64_t nth = 1) {
        restart(options());
        host::gate::reset();
        host::gate::refuse(call, nth);
        const bool succeeds = run();
        EXPECT_EQ(uncaughtExceptions(), "");
        return succeeds;
    }
};

TEST_F(RefusedRun, NeedsTheApplicationAndItsUserInterface) {
    EXPECT_FALSE(runsWithout("Application::get"));
    EXPECT_FALSE(runsWithout("Application::userInterface"));
}

TEST_F(RefusedRun, NeedsThePanelsOfEachWorkspace) {
    EXPECT_FALSE(runsWithout("Workspace::toolbarPanels"));
}

TEST_F(RefusedRun, NeedsTheHelpdeskCommands) {
    EXPECT_FALSE(runsWithout("CommandDefinitions::addButtonDefinition", kMainCommandCount + 1));
}

TEST_F(RefusedRun, FillsTheHelpdeskPanelAtTheSecondCallWhereTheFirstFails) {
    EXPECT_TRUE(runsWithout("Workspaces::itemById", kLookedForByMainCommands + 1));
    EXPECT_EQ(panel("QM_HD_panelFusionSolidEnvironment")->controls()->count(),
              1 + std::size(kHelpdeskCommands));
}

TEST_F(RefusedRun, FailsWhereTheSecondCallForTheHelpdeskPanelFails) {
    EXPECT_FALSE(runsWithout("Workspaces::itemById", kLookedForByMainCommands + 2));
}

TEST_F(RefusedRun, NeedsTheEventOfEachHook) {
    EXPECT_FALSE(runsWithout("UserInterface::markingMenuDisplaying"));
    EXPECT_FALSE(runsWithout("UserInterface::workspaceActivated"));
    EXPECT_FALSE(runsWithout("UserInterface::commandStarting"));
    EXPECT_FALSE(runsWithout("UserInterface::commandTerminated"));
}

TEST_F(RefusedRun, NeedsOnlyTheHookOnActivatedWorkspaces) {
    // The handlers of the commands come first.
    EXPECT_TRUE(runsWithout("Event::add", kCommandCount + 1));
    EXPECT_FALSE(runsWithout("Event::add", kCommandCount + 2));
    EXPECT_TRUE(runsWithout("Event::add", kCommandCount + 3));
    EXPECT_TRUE(runsWithout("Event::add", kCommandCount + 4));
}

class RunWithoutManufacture : public UnstartedAddinTest {
protected:
    [[nodiscard]] host::SessionOptions options() const override {
        host::SessionOptions without = addinOptions();
        std::erase_if(without.host.workspaces, [](const host::WorkspaceSetup& workspace) {
            return workspace.id == kManufacture;
        });
        return without;
    }
};

TEST_F(RunWithoutManufacture, FailsAfterThePanelOfTheFirstWorkspace) {
    EXPECT_FALSE(run());

    EXPECT_NE(controls("QM_Tarnix_AlfaFusionSolidEnvironment"), "no panel");
    EXPECT_FALSE(definition("QM_HD_openHelpdesk"));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(RunWithoutManufacture, AttachesNoHook) {
    host::gate::record(true);

    EXPECT_FALSE(run());

    const std::vector<std::string> calls = host::gate::recorded();
    host::gate::record(false);
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "UserInterface::markingMenuDisplaying"), 0);
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "UserInterface::workspaceActivated"), 0);
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "UserInterface::commandStarting"), 0);
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "UserInterface::commandTerminated"), 0);
}

TEST_F(RunWithoutManufacture, LeavesToStopWhatIsThere) {
    EXPECT_FALSE(run());

    stop();
    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in stop");

    EXPECT_EQ(present(), kOpenLocalFile);
}

}  // namespace
}  // namespace test_support
