#include "tests/tarnix/addin/addin_ui_fixture.h"

#include "host/base/gate.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace test_support {
namespace {

class Run : public AddinUiTest {};

TEST_F(Run, PlacesTheToolsInBothWorkspacesInTheirOrder) {
    const std::string tools = text(R"(
        QEMA_EditPropertiesCmd promoted
        QM_TX_BOM promoted
        QM_TX_moveComponentToOrigin
        QM_TX_projectedEntitiesAsConstruction
        QM_TX_unitsConversion)");

    EXPECT_EQ(controls("QM_Tarnix_AlfaFusionSolidEnvironment"), tools);
    EXPECT_EQ(controls("QM_Tarnix_AlfaCAMEnvironment"), tools);
    EXPECT_EQ(controls("QM_Tarnix_AlfaFusionRenderEnvironment"), "no panel");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(Run, FillsTheHelpdeskPanelOfTheFirstWorkspaceOnce) {
    EXPECT_EQ(controls("QM_HD_panelFusionSolidEnvironment"), text(R"(
        QM_TX_configuration
        QM_HD_openHelpdesk promoted
        QM_HD_captureScreen
        QM_HD_captureFusion
        QM_HD_systemInfo
        QM_HD_compressFolder
        QM_HD_openFolder
        QM_HD_clearFolder
        QM_HD_openHelp promoted)"));
    EXPECT_EQ(controls("QM_HD_panelCAMEnvironment"), "QM_TX_configuration");
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
    // Eight main commands come first.
    EXPECT_FALSE(runsWithout("CommandDefinitions::addButtonDefinition", 9));
}

TEST_F(RefusedRun, FillsTheHelpdeskPanelAtTheSecondCallWhereTheFirstFails) {
    // The tools of two workspaces, each with six controls, look for their workspace first.
    EXPECT_TRUE(runsWithout("Workspaces::itemById", 2 * (1 + 6) + 1));
    EXPECT_EQ(panel("QM_HD_panelFusionSolidEnvironment")->controls()->count(), 9U);
}

TEST_F(RefusedRun, FailsWhereTheSecondCallForTheHelpdeskPanelFails) {
    EXPECT_FALSE(runsWithout("Workspaces::itemById", 2 * (1 + 6) + 2));
}

TEST_F(RefusedRun, NeedsTheEventOfEachHook) {
    EXPECT_FALSE(runsWithout("UserInterface::markingMenuDisplaying"));
    EXPECT_FALSE(runsWithout("UserInterface::workspaceActivated"));
    EXPECT_FALSE(runsWithout("UserInterface::commandStarting"));
    EXPECT_FALSE(runsWithout("UserInterface::commandTerminated"));
}

TEST_F(RefusedRun, NeedsOnlyTheHookOnActivatedWorkspaces) {
    // After the handlers of eight main commands and of eight of the helpdesk.
    EXPECT_TRUE(runsWithout("Event::add", 16 + 1));
    EXPECT_FALSE(runsWithout("Event::add", 16 + 2));
    EXPECT_TRUE(runsWithout("Event::add", 16 + 3));
    EXPECT_TRUE(runsWithout("Event::add", 16 + 4));
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

    EXPECT_EQ(present(), "QEMA_OpenLocalCmd_QAT");
}

}  // namespace
}  // namespace test_support
