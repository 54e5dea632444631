#include "tests/tarnix/addin/addin_ui_fixture.h"
#include "tests/tarnix/bom/behaviour/synthetic_dialog.h"

#include "host/application/application_object.h"
#include "host/base/gate.h"
#include "host/design/document.h"
#include "host/session/user_actions.h"

#include <gtest/gtest.h>

namespace test_support {
namespace {

using namespace adsk::core;

class WorkspaceHook : public AddinUiTest {};

TEST_F(WorkspaceHook, FillsTheHelpdeskPanelOfAWorkspaceThatIsShown) {
    session->activateWorkspace(kManufacture);

    EXPECT_EQ(controls("QM_HD_panelCAMEnvironment"), controls("QM_HD_panelFusionSolidEnvironment"));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(WorkspaceHook, AddsNothingWhenAWorkspaceIsShownAgain) {
    session->activateWorkspace(kManufacture);
    session->activateWorkspace(kSolid);

    session->activateWorkspace(kManufacture);

    EXPECT_EQ(panel("QM_HD_panelCAMEnvironment")->controls()->count(), 9U);
}

TEST_F(WorkspaceHook, AddsAnEmptyPanelToAWorkspaceOfTheHost) {
    session->activateWorkspace(kRender);

    EXPECT_EQ(controls("QM_HD_panelFusionRenderEnvironment"), "");
    EXPECT_EQ(controls("QM_Tarnix_AlfaFusionRenderEnvironment"), "no panel");
}

TEST_F(WorkspaceHook, LeavesToStopThePanelsOfAllWorkspaces) {
    session->activateWorkspace(kRender);

    stop();
    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in stop");

    EXPECT_EQ(present(), "QEMA_OpenLocalCmd_QAT");
}

class StartingHook : public AddinUiTest {
protected:
    /// Opens a design with a sketch, which is not being edited.
    void openSketch() {
        host::DesignData design;
        design.name = "Design";
        design.components.emplace_back().name = "Design";
        design.components.front().sketches.push_back({"Sketch1", {}});
        session->openDesign(std::move(design));
    }

    void editSketch() {
        const auto application = host::ApplicationObject::current();
        application->setActiveEditObject(host::sketchOf(application->document(), 0, 0));
    }

    void finishSketch() { host::ApplicationObject::current()->setActiveEditObject(nullptr); }

    /// Starts a command of the host.
    void startAnyCommand() {
        if (!definition("AnyCommand")) {
            ui()->commandDefinitions()->addButtonDefinition("AnyCommand", "Any", "");
        }
        session->press("AnyCommand");
    }

    [[nodiscard]] Ptr<ToolbarControl> button(const std::string& workspaceId) const {
        return panel("QM_Tarnix_Alfa" + workspaceId)
            ->controls()
            ->itemById("QM_TX_projectedEntitiesAsConstruction");
    }
};

TEST_F(StartingHook, LeavesTheButtonVisibleUntilACommandStarts) {
    openSketch();

    EXPECT_TRUE(button(kSolid)->isVisible());
}

TEST_F(StartingHook, HidesTheButtonWhileNoSketchIsEdited) {
    openSketch();

    startAnyCommand();

    EXPECT_FALSE(button(kSolid)->isVisible());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(StartingHook, ShowsTheButtonWhileASketchIsEdited) {
    openSketch();
    startAnyCommand();
    editSketch();

    startAnyCommand();

    EXPECT_TRUE(button(kSolid)->isVisible());
}

TEST_F(StartingHook, HidesTheButtonAfterTheSketch) {
    openSketch();
    editSketch();
    startAnyCommand();
    finishSketch();

    startAnyCommand();

    EXPECT_FALSE(button(kSolid)->isVisible());
}

TEST_F(StartingHook, RunsForTheHostsOwnCommandToo) {
    host::SessionOptions options = addinOptions();
    options.host.selectCommand = true;
    restart(options);

    run();

    EXPECT_FALSE(button(kSolid)->isVisible());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(StartingHook, LooksAtTheActiveWorkspaceAlone) {
    openSketch();
    session->activateWorkspace(kRender);

    startAnyCommand();

    EXPECT_TRUE(button(kSolid)->isVisible());
    EXPECT_TRUE(button(kManufacture)->isVisible());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(StartingHook, PassesOverAPanelWithoutTheButton) {
    openSketch();
    ASSERT_TRUE(button(kSolid)->deleteMe());

    startAnyCommand();

    EXPECT_TRUE(button(kManufacture)->isVisible());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(StartingHook, KeepsWhatShowsWhereNothingIsEdited) {
    openSketch();
    host::gate::refuse("Application::activeEditObject", 1);

    startAnyCommand();

    EXPECT_TRUE(button(kSolid)->isVisible());
    EXPECT_EQ(uncaughtExceptions(), "");
}

class EndingHook : public AddinUiTest {
protected:
    void SetUp() override {
        AddinUiTest::SetUp();
        open("Bolt  number=B-1");
    }
};

TEST_F(EndingHook, BringsACompletedBomDialogBackWithFreshData) {
    showModel();
    session->paste("modelPartNumberOcc_1", "B-2");

    session->ok();

    ASSERT_TRUE(session->dialogOpen());
    EXPECT_EQ(session->dialog()->parentCommandDefinition()->id(), "QM_TX_BOM");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(EndingHook, LetsACancelledBomDialogGo) {
    openBom();

    session->cancel();

    EXPECT_FALSE(session->dialogOpen());
}

TEST_F(EndingHook, LetsABomDialogGoThatMadeWayForAnotherCommand) {
    openBom();
    session->dialog()->isExecutedWhenPreEmpted(false);
    ui()->commandDefinitions()->addButtonDefinition("AnyCommand", "Any", "");

    session->press("AnyCommand");

    EXPECT_FALSE(session->dialogOpen());
}

TEST_F(EndingHook, LetsABomDialogGoWithItsDocument) {
    openBom();

    session->newDesign();

    EXPECT_FALSE(session->dialogOpen());
}

TEST_F(EndingHook, LetsABomDialogGoThatTheHostAborted) {
    host::gate::refuse("Command::commandInputs", 1);

    session->press("QM_TX_BOM");

    // Its handler threw before there was an input. A second start would have shown the dialog.
    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in OnCommandCreated");
    EXPECT_FALSE(session->dialogOpen());
}

TEST_F(EndingHook, TakesTheWholeIdOfACommand) {
    int starts = 0;
    SyntheticDialog longer("QM_TX_BOM_export", [&](const auto& /*inputs*/) { ++starts; });

    longer.open();

    EXPECT_EQ(starts, 1);
    EXPECT_FALSE(session->dialogOpen());
}

class MarkingMenu : public AddinUiTest {};

TEST_F(MarkingMenu, OffersTheCustomProperties) {
    EXPECT_EQ(host::showMarkingMenu(), std::vector<std::string>{"QEMA_EditPropertiesCmd"});
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(MarkingMenu, OffersThemEachTimeOnce) {
    host::showMarkingMenu();

    EXPECT_EQ(host::showMarkingMenu(), std::vector<std::string>{"QEMA_EditPropertiesCmd"});
}

TEST_F(MarkingMenu, StaysTheHostsWithoutTheCommand) {
    ASSERT_TRUE(definition("QEMA_EditPropertiesCmd")->deleteMe());

    EXPECT_TRUE(host::showMarkingMenu().empty());
    EXPECT_EQ(uncaughtExceptions(), "");
}

}  // namespace
}  // namespace test_support
