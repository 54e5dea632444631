#include "tests/tarnix/properties/properties_fixture.h"

#include "host/session/input_actions.h"
#include "host/session/user_actions.h"

namespace tarnix {
namespace {

class PickedComponent : public PropertiesTest {
protected:
    static void selectBefore(const std::string& path) { host::selectInModel({entity(path)}); }

    /// Which inputs of the groups can be changed, one character each: "+" or "-".
    [[nodiscard]] std::string enabled() const {
        std::string all;
        for (const char* id :
             {kStructure, kPartNumber, kPartName, kDescription, kFullPath, "QEMA_Colour"}) {
            all += isEnabled(id) ? '+' : '-';
        }
        return all;
    }
};

TEST_F(PickedComponent, FillsAllInputs) {
    offer({"QEMA_Colour;Colour", "QEMA_Size;Size"});
    open(R"(
        Bolt  number=B-1 description="long one" structure=Buy property=Colour/red)");
    openAndPick("Bolt:1");
    EXPECT_EQ(values(), "Buy | B-1 | Bolt | long one | red | ");
    EXPECT_EQ(session->input(kSelection)->tooltip(), "Bolt");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(PickedComponent, CanBeTheRootComponent) {
    open("Bolt");
    openAndPick("Design");
    EXPECT_EQ(values(), " | Design | Design | ");
}

TEST_F(PickedComponent, CanBeDeepInTheDesign) {
    open(R"(
        Gearbox
          Shaft
            Bolt  number=B-1)");
    openAndPick("Gearbox:1+Shaft:1+Bolt:1");
    EXPECT_EQ(values(), " | B-1 | Bolt | ");
}

TEST_F(PickedComponent, IsTakenFromWhatWasSelectedBefore) {
    open("Bolt  number=B-1");
    selectBefore("Bolt:1");
    openProperties();
    EXPECT_EQ(values(), " | B-1 | Bolt | ");
}

TEST_F(PickedComponent, ReplacesWhatTheOneBeforeHad) {
    offer({"QEMA_Colour;Colour"});
    open(R"(
        Bolt  description=long structure=Buy property=Colour/red
        Nut)");
    openAndPick("Bolt:1");
    session->pick("Nut:1");
    EXPECT_EQ(values(), " | Nut | Nut |  | ");
}

TEST_F(PickedComponent, WithoutStructureAttributesShowsAllButtonsOff) {
    open("Bolt");
    openProperties();
    session->choose(kStructure, "Buy");
    session->pick("Bolt:1");
    EXPECT_EQ(buttonsOn(), "");
}

TEST_F(PickedComponent, StartsWithAllInputsEnabledAndEmpty) {
    offer({"QEMA_Colour;Colour"});
    open("Bolt");
    openProperties();
    EXPECT_EQ(enabled(), "++++++");
    EXPECT_EQ(values(), " |  |  |  | ");
}

TEST_F(PickedComponent, WhenItIsClearedEmptiesTextsAndDisablesTheGroups) {
    offer({"QEMA_Colour;Colour"});
    open("Bolt  description=long structure=Buy property=Colour/red");
    openAndPick("Bolt:1");
    session->pick("Bolt:1");
    EXPECT_EQ(values(), "Buy |  |  |  | ");
    EXPECT_EQ(enabled(), "------");
    EXPECT_TRUE(session->input(kSave)->isEnabled());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(PickedComponent, AfterAClearedOneEnablesTheGroupsAgain) {
    offer({"QEMA_Colour;Colour"});
    open("Bolt  structure=Buy property=Colour/red");
    openAndPick("Bolt:1");
    session->pick("Bolt:1");
    session->pick("Bolt:1");
    EXPECT_EQ(enabled(), "++++++");
    EXPECT_EQ(values(), "Buy | Bolt | Bolt |  | red");
}

TEST_F(PickedComponent, WhenItIsClearedWithoutADesignChangesNothing) {
    offer({"QEMA_Colour;Colour"});
    open("Bolt");
    session->activateWorkspace("CAMEnvironment");
    openAndPick("Bolt:1");
    session->type(kDescription, "mine");
    session->pick("Bolt:1");
    EXPECT_EQ(value(kDescription), "mine");
    EXPECT_EQ(enabled(), "++++++");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(PickedComponent, WhenItIsClearedWithoutARootComponentChangesNothing) {
    offer({"QEMA_Colour;Colour"});
    open("Bolt  description=long");
    openAndPick("Bolt:1");
    host::gate::refuse("Design::rootComponent", 1);
    session->pick("Bolt:1");
    EXPECT_EQ(host::gate::refusedCall(), "Design::rootComponent");
    EXPECT_EQ(value(kDescription), "long");
    EXPECT_EQ(enabled(), "++++++");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(PickedComponent, IsNotLookedForWhereTheInputIsNotASelection) {
    open("Bolt");
    openAndPick("Bolt:1");
    const adsk::core::Ptr<adsk::core::TextBoxCommandInput> box = session->input(kFullPath);
    box->text("old");
    session->input(kSelection)->deleteMe();
    const adsk::core::Ptr<adsk::core::TabCommandInput> tab = session->input(kPropertiesTab);
    tab->children()->addBoolValueInput(kSelection, "Component", true);
    session->click(kSelection);
    EXPECT_EQ(box->text(), "old");
    EXPECT_EQ(values(), " | Bolt | Bolt | ");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(PickedComponent, InManufacturingFillsNothingButEnables) {
    offer({"QEMA_Colour;Colour"});
    open("Bolt  number=B-1 structure=Buy property=Colour/red");
    session->activateWorkspace("CAMEnvironment");
    openProperties();
    session->input("QEMA_Colour")->isEnabled(false);
    session->pick("Bolt:1");
    EXPECT_EQ(values(), " |  |  |  | ");
    EXPECT_EQ(enabled(), "++++++");
    EXPECT_EQ(session->input(kSelection)->tooltip(), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(PickedComponent, InManufacturingStillShowsItsFullPath) {
    open("Bolt");
    const std::filesystem::path data = session->folder() / "data";
    std::filesystem::create_directories(data / "Alfa");
    session->useData({data, "Alfa"});
    session->save(data / "Alfa" / "Gearbox.design.json");
    session->activateWorkspace("CAMEnvironment");
    openProperties();
    const adsk::core::Ptr<adsk::core::TextBoxCommandInput> box = session->input(kFullPath);
    box->text("old");
    session->pick("Bolt:1");
    EXPECT_EQ(box->text(), "ThisDoc: Alfa // Gearbox");
}

TEST_F(PickedComponent, ThatIsNoneEnablesTheGroupsAndFillsNothing) {
    offer({"QEMA_Colour;Colour"});
    open("Bolt");
    openProperties();
    session->input("QEMA_Colour")->isEnabled(false);
    // The full path asks for the entity first, then the dialog does.
    host::gate::refuse("Selection::entity", 2);
    session->pick("Bolt:1");
    EXPECT_EQ(values(), " |  |  |  | ");
    EXPECT_EQ(enabled(), "++++++");
    EXPECT_EQ(session->input(kSelection)->tooltip(), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(PickedComponent, StaysAsItIsWhileItIsEdited) {
    offer({"QEMA_Colour;Colour"});
    open("Bolt  number=B-1");
    openAndPick("Bolt:1");
    session->type(kPartNumber, "B-2");
    session->type("QEMA_Colour", "\xC5\xBElut\xC3\xA1/!");
    session->choose(kStructure, "Produce");
    EXPECT_EQ(values(), "Produce | B-2 | Bolt |  | \xC5\xBElut\xC3\xA1/!");
    EXPECT_EQ(stored(session->design(), "Bolt"), "B-1 | Bolt | ");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(PickedComponent, HasNothingToDoWithAChangeOfTheTab) {
    open("Bolt");
    openAndPick("Bolt:1");
    session->activateTab(kSettingsTab);
    session->activateTab(kPropertiesTab);
    EXPECT_EQ(values(), " | Bolt | Bolt | ");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(PickedComponent, AnInputInNoOtherThrowsWhenItChanges) {
    openProperties();
    host::reportChange(session->input(kPropertiesTab));
    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in OnInputChanged of QEMA_tab_iProperties");
    EXPECT_TRUE(session->dialogOpen());
}

}  // namespace
}  // namespace tarnix
