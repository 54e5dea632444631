#include "tests/host/ui/host_test.h"

namespace host {
namespace {

using namespace adsk::core;

class Toolbars : public HostTest {
protected:
    explicit Toolbars(const HostSetup& setup = {}) : HostTest(setup) {}

    Ptr<ToolbarPanels> panels(const std::string& workspace = "FusionSolidEnvironment") {
        return ui()->workspaces()->itemById(workspace)->toolbarPanels();
    }

    Ptr<CommandDefinition> command(const std::string& id) {
        return define(id, [](const Ptr<Command>&) {});
    }

    /// The ids of the controls of a panel, in order.
    static std::string text(const Ptr<ToolbarPanel>& panel) {
        std::string all;
        for (std::size_t i = 0; i < panel->controls()->count(); ++i) {
            all += (i == 0 ? "" : " ") + panel->controls()->item(i)->id();
        }
        return all;
    }
};

class ToolbarsWithRepeat : public Toolbars {
protected:
    static HostSetup setup() {
        HostSetup setup;
        setup.repeatControl = true;
        return setup;
    }
    ToolbarsWithRepeat() : Toolbars(setup()) {}

    Ptr<ToolbarControls> addinControls() {
        return ui()
            ->toolbarTabsByProductType("DesignProductType")
            ->itemById("ToolsTab")
            ->toolbarPanels()
            ->itemById("SolidScriptsAddinsPanel")
            ->controls();
    }
};

TEST_F(Toolbars, APanelAddedToAWorkspaceIsInItsToolsTab) {
    const Ptr<ToolbarPanel> added = panels("CAMEnvironment")->add("Mine", "My Panel");

    const Ptr<ToolbarTabs> tabs = ui()->workspaces()->itemById("CAMEnvironment")->toolbarTabs();
    EXPECT_EQ(tabs->itemById("ToolsTab")->toolbarPanels()->itemById("Mine"), added);
    EXPECT_EQ(panels("CAMEnvironment")->itemById("Mine"), added);
    EXPECT_EQ(added->name(), "My Panel");
    EXPECT_FALSE(panels()->itemById("Mine"));
}

TEST_F(Toolbars, TheIdOfAPanelIsUniqueOverAllWorkspaces) {
    panels()->add("Mine", "My Panel");

    EXPECT_FALSE(panels("CAMEnvironment")->add("Mine", "Again"));
    EXPECT_EQ(misuses(), (std::vector<Misuse>{{.operation = "ToolbarPanels::add",
                                               .text = "the id \"Mine\" is in use"}}));
}

TEST_F(Toolbars, AllPanelsAreFoundInOneList) {
    const std::size_t before = ui()->allToolbarPanels()->count();
    const Ptr<ToolbarPanel> solid = panels()->add("Solid", "");
    const Ptr<ToolbarPanel> cam = panels("CAMEnvironment")->add("Cam", "");

    EXPECT_EQ(ui()->allToolbarPanels()->itemById("Solid"), solid);
    EXPECT_EQ(ui()->allToolbarPanels()->itemById("Cam"), cam);
    EXPECT_EQ(ui()->allToolbarPanels()->count(), before + 2);
}

TEST_F(Toolbars, PanelsCanBeAddedBeforeAndAfterOthers) {
    panels()->add("Middle", "");

    panels()->add("Before", "", "Middle", true);
    panels()->add("Behind", "", "Middle", false);
    panels()->add("End", "", "Nowhere");

    const Ptr<ToolbarPanels> tools =
        ui()->toolbarTabsByProductType("DesignProductType")->itemById("ToolsTab")->toolbarPanels();
    EXPECT_EQ(tools->item(1)->id(), "Before");
    EXPECT_EQ(tools->item(3)->id(), "Behind");
    EXPECT_EQ(tools->item(4)->id(), "End");
}

TEST_F(Toolbars, AControlHasTheIdOfItsDefinition) {
    const Ptr<ToolbarPanel> panel = panels()->add("Mine", "");
    const Ptr<CommandDefinition> definition = command("Cmd");

    const Ptr<CommandControl> control = panel->controls()->addCommand(definition);

    EXPECT_EQ(control->id(), "Cmd");
    EXPECT_EQ(control->commandDefinition(), definition);
    EXPECT_EQ(control->parent(), panel);
    EXPECT_EQ(panel->controls()->itemById("Cmd"), control);
    EXPECT_TRUE(control->isVisible());
}

TEST_F(Toolbars, ADefinitionMayHaveSeveralControlsInOnePanel) {
    const Ptr<ToolbarPanel> panel = panels()->add("Mine", "");
    const Ptr<CommandDefinition> definition = command("Cmd");

    const Ptr<CommandControl> first = panel->controls()->addCommand(definition);
    const Ptr<CommandControl> second = panel->controls()->addCommand(definition);

    EXPECT_NE(first, second);
    EXPECT_EQ(panel->controls()->count(), 2U);
    EXPECT_EQ(second->index(), 1U);
}

TEST_F(Toolbars, AnUnknownPositionAppends) {
    const Ptr<ToolbarPanel> panel = panels()->add("Mine", "");
    panel->controls()->addCommand(command("A"));

    EXPECT_TRUE(panel->controls()->addCommand(command("B"), "B", true));
    panel->controls()->addCommand(command("C"), "A", true);

    EXPECT_EQ(text(panel), "C A B");
}

TEST_F(Toolbars, ANullDefinitionReturnsNoControl) {
    const Ptr<ToolbarPanel> panel = panels()->add("Mine", "");

    EXPECT_FALSE(panel->controls()->addCommand(nullptr));
    EXPECT_EQ(panel->controls()->count(), 0U);
}

TEST_F(Toolbars, AControlOutlivesItsDefinition) {
    const Ptr<ToolbarPanel> panel = panels()->add("Mine", "");
    const Ptr<CommandDefinition> definition = command("Cmd");
    const Ptr<CommandControl> control = panel->controls()->addCommand(definition);

    definition->deleteMe();

    EXPECT_TRUE(control->isValid());
    EXPECT_FALSE(control->commandDefinition());
    EXPECT_FALSE(panel->controls()->addCommand(definition));
    EXPECT_TRUE(control->deleteMe());
    EXPECT_EQ(panel->controls()->count(), 0U);
    EXPECT_EQ(misused(), "ToolbarControls::addCommand");
}

TEST_F(Toolbars, ADeletedPanelDeletesItsControls) {
    const Ptr<ToolbarPanel> panel = panels()->add("Mine", "");
    const Ptr<CommandControl> control = panel->controls()->addCommand(command("Cmd"));

    EXPECT_TRUE(panel->deleteMe());

    EXPECT_FALSE(control->isValid());
    EXPECT_FALSE(control->deleteMe());
    EXPECT_FALSE(ui()->allToolbarPanels()->itemById("Mine"));
    EXPECT_TRUE(ui()->commandDefinitions()->itemById("Cmd"));
    EXPECT_EQ(misused(), "ToolbarControl::deleteMe");
}

TEST_F(Toolbars, PromotionHasNoEffectOutsidePanels) {
    const Ptr<CommandControl> inPanel =
        panels()->add("Mine", "")->controls()->addCommand(command("Cmd"));
    EXPECT_TRUE(inPanel->isPromoted(true));
    EXPECT_TRUE(inPanel->isPromoted());

    on<OnMenu>(ui()->markingMenuDisplaying(), [this](const auto& args) {
        const Ptr<CommandControl> inMenu = args->linearMarkingMenu()->controls()->addCommand(
            ui()->commandDefinitions()->itemById("Cmd"));
        EXPECT_TRUE(inMenu->isPromoted(true));
        note(inMenu->isPromoted() ? "promoted" : "plain");
    });
    showMarkingMenu();
    EXPECT_EQ(noted(), "plain");
}

TEST_F(Toolbars, AnInvisibleButtonCannotBePressed) {
    const Ptr<CommandControl> control =
        panels()->add("Mine", "")->controls()->addCommand(command("Cmd"));
    control->isVisible(false);

    EXPECT_EQ(misuseOf([] { pressCommand("Cmd"); }),
              "cannot press Cmd: its button is not visible in FusionSolidEnvironment");
}

TEST_F(Toolbars, ACommandWithoutAnyControlCanBePressed) {
    command("Cmd");

    EXPECT_EQ(misuseOf([] { pressCommand("Cmd"); }), "");
}

TEST_F(Toolbars, HaveTheAddInPanelWithoutARepeatControl) {
    const Ptr<ToolbarTabList> tabs = ui()->toolbarTabsByProductType("DesignProductType");
    const Ptr<ToolbarPanel> panel =
        tabs->itemById("ToolsTab")->toolbarPanels()->itemById("SolidScriptsAddinsPanel");

    ASSERT_TRUE(panel);
    EXPECT_FALSE(panel->controls()->itemById("RepeatCommand"));
    EXPECT_FALSE(panel->deleteMe());
    EXPECT_EQ(ui()->toolbarTabsByProductType("NoProductType")->count(), 0U);
}

TEST_F(ToolbarsWithRepeat, HaveTheRepeatControlOnRequest) {
    const Ptr<CommandControl> repeat = addinControls()->itemById("RepeatCommand");

    ASSERT_TRUE(repeat);
    EXPECT_FALSE(repeat->commandDefinition()->deleteMe());
}

TEST_F(Toolbars, TheContextMenuShowsWhatHandlersAddedToThisShowing) {
    command("Cmd");
    on<OnMenu>(ui()->markingMenuDisplaying(), [](const auto& args) {
        args->linearMarkingMenu()->controls()->addCommand(
            ui()->commandDefinitions()->itemById("Cmd"), "", true);
        EXPECT_EQ(args->linearMarkingMenu()->controls()->count(), 1U);
    });

    EXPECT_EQ(showMarkingMenu(), (std::vector<std::string>{"Cmd"}));
    EXPECT_EQ(showMarkingMenu(), (std::vector<std::string>{"Cmd"}));
}

TEST_F(Toolbars, AnEmptyContextMenuIsNotShown) {
    EXPECT_EQ(showMarkingMenu(), std::vector<std::string>());
}

// ToolbarPanel_name, ToolbarTab_name.
TEST_F(Toolbars, PanelsAndTabsAreRenamed) {
    const Ptr<ToolbarPanel> panel = panels()->add("Mine", "My Panel");
    const Ptr<ToolbarTab> tab =
        ui()->toolbarTabsByProductType("DesignProductType")->itemById("ToolsTab");

    EXPECT_TRUE(panel->name("Yours"));
    EXPECT_TRUE(tab->name("Utilities"));

    EXPECT_EQ(panel->name(), "Yours");
    EXPECT_EQ(panel->id(), "Mine");
    EXPECT_EQ(tab->name(), "Utilities");
    EXPECT_EQ(tab->id(), "ToolsTab");
}

// UserInterface_toolbars.
TEST_F(Toolbars, BarsAroundTheWindowTakeControls) {
    const Ptr<adsk::core::Toolbars> bars = ui()->toolbars();
    const Ptr<Toolbar> quickAccess = bars->itemById("QAT");

    const Ptr<CommandControl> control = quickAccess->controls()->addCommand(command("Mine"));

    EXPECT_EQ(control->parent(), quickAccess);
    EXPECT_TRUE(quickAccess->controls()->itemById("Mine"));
    EXPECT_TRUE(quickAccess->isVisible(false));
    EXPECT_FALSE(quickAccess->isVisible());
    EXPECT_EQ(bars->count(), 2U);
    EXPECT_EQ(bars->item(1)->id(), "NavToolbar");
    EXPECT_EQ(bars->itemById("Nowhere"), nullptr);
}

// UserInterface_UM: panels of the host's own, which add-ins add their buttons to.
TEST_F(Toolbars, PanelsThatAddInsLookForAreThere) {
    const Ptr<ToolbarTab> solid =
        ui()->toolbarTabsByProductType("DesignProductType")->itemById("SolidTab");

    EXPECT_EQ(solid->toolbarPanels()->itemById("SolidCreatePanel")->name(), "Create");
    EXPECT_TRUE(panels()->itemById("SolidModifyPanel")->controls()->addCommand(command("Mine")));
    EXPECT_TRUE(ui()->allToolbarPanels()->itemById("CAMManagePanel"));
    EXPECT_FALSE(panels()->itemById("SolidCreatePanel")->deleteMe());
    EXPECT_FALSE(panels()->add("InspectPanel", ""));
    EXPECT_EQ(misused(), "ToolbarPanels::add");
}

// CommandDefinitions_itemById: commands of the host's own, which add-ins start and show.
TEST_F(Toolbars, CommandsThatAddInsLookForAreThere) {
    const Ptr<CommandDefinition> extrude = ui()->commandDefinitions()->itemById("Extrude");
    traceHost();

    EXPECT_EQ(extrude->name(), "Extrude");
    EXPECT_TRUE(panels()->itemById("SolidCreatePanel")->controls()->addCommand(extrude));
    EXPECT_TRUE(extrude->execute());
    EXPECT_FALSE(extrude->deleteMe());

    EXPECT_EQ(noted(), "starting:Extrude created terminated:Extrude=1");
    for (const CommandSetup& each : HostSetup().commands) {
        EXPECT_TRUE(ui()->commandDefinitions()->itemById(each.id)) << each.id;
    }
}

}  // namespace
}  // namespace host
