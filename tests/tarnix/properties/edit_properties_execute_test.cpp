#include "tests/support/case_name.h"
#include "tests/support/files.h"
#include "tests/tarnix/properties/properties_fixture.h"

#include "host/session/user_actions.h"

namespace tarnix {
namespace {

/// The five structures with none chosen, as OK writes them.
const std::string kNoStructure = "Produce=0\nBuy=0\nAsPart=0\nDivided=0\nReference=0";

class PropertiesOk : public PropertiesTest {
protected:
    /// Runs the handlers of OK although the host would not let the user press it.
    static void forceOk() { host::acceptAnyway(); }

    /// Accepts an edited dialog with one host call refused.
    void okWithout(const std::string& call, std::uint64_t nth) {
        open("Bolt");
        openAndPick("Bolt:1");
        session->type(kPartNumber, "lost");
        host::gate::refuse(call, nth);
        session->ok();
    }
};

TEST_F(PropertiesOk, WritesEveryInputInTheOrderOfTheDialog) {
    offer({"QEMA_Colour;Colour", "QEMA_Size;Size"});
    open("Bolt  number=B-1");
    openAndPick("Bolt:1");
    session->type(kPartNumber, "B-2");
    session->type(kPartName, "Hexagon bolt");
    session->type(kDescription, "DIN 933");
    session->type("QEMA_Colour", "red");
    session->choose(kStructure, "Buy");
    session->ok();
    EXPECT_EQ(stored(session->design(), "Hexagon bolt"), text(R"(
        B-2 | Hexagon bolt | DIN 933
        Produce=0
        Buy=1
        AsPart=0
        Divided=0
        Reference=0
        QEMA_Colour=red
        QEMA_Size=)"));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(PropertiesOk, WithAllButtonsOffWritesZeroToAllFive) {
    open("Bolt");
    openAndPick("Bolt:1");
    session->ok();
    EXPECT_EQ(stored(session->design(), "Bolt"), "Bolt | Bolt | \n" + kNoStructure);
}

TEST_F(PropertiesOk, WritesToTheComponentThatAllItsOccurrencesShow) {
    open(R"(
        Bolt
        Gearbox
          Bolt)");
    openAndPick("Gearbox:1+Bolt:2");
    session->type(kPartNumber, "B-9");
    session->ok();
    openAndPick("Bolt:1");
    EXPECT_EQ(value(kPartNumber), "B-9");
}

TEST_F(PropertiesOk, WritesToTheRootComponent) {
    open("Bolt");
    openAndPick("");
    session->type(kDescription, "the whole");
    session->ok();
    openAndPick("");
    EXPECT_EQ(value(kDescription), "the whole");
}

TEST_F(PropertiesOk, WithoutASelectionIsRefusedByTheHost) {
    open("Bolt");
    openProperties();
    EXPECT_THROW(session->ok(), host::MisuseError);
    EXPECT_EQ(stored(session->design(), "Bolt"), "Bolt | Bolt | ");
}

TEST_F(PropertiesOk, WithoutASelectionLeavesTheDesignUntouched) {
    open(R"(
        Gearbox
          Bolt  number=B-1 description=long structure=Buy property=Colour/red
        Nut)");
    const std::string before = wholeDesign();
    openProperties();
    session->choose(kStructure, "Produce");
    session->type(kPartNumber, "lost");
    forceOk();
    EXPECT_EQ(wholeDesign(), before);
    EXPECT_EQ(uncaughtExceptions(), "");
}

/// A call that the host refuses while OK is carried out, and what is thrown for it.
struct RefusedCall {
    const char* name;
    const char* call;
    int nth;
    const char* thrown = "";
};

class PropertiesOkWithout : public PropertiesOk, public testing::WithParamInterface<RefusedCall> {};

TEST_P(PropertiesOkWithout, WritesNothing) {
    okWithout(GetParam().call, GetParam().nth);

    EXPECT_EQ(stored(session->design(), "Bolt"), "Bolt | Bolt | ");
    EXPECT_EQ(uncaughtExceptions(), GetParam().thrown);
}

constexpr const char* kThrown = "std::exception:  in OnExecute";

INSTANTIATE_TEST_SUITE_P(
    EachCall, PropertiesOkWithout,
    testing::Values(
        RefusedCall{.name = "TheInputs", .call = "Command::commandInputs", .nth = 1},
        RefusedCall{.name = "TheSelectionInput", .call = "CommandInputs::itemById", .nth = 1},
        RefusedCall{.name = "TheSelection", .call = "SelectionCommandInput::selection", .nth = 1},
        RefusedCall{.name = "TheEntity", .call = "Selection::entity", .nth = 1},
        RefusedCall{.name = "TheComponent", .call = "Occurrence::component", .nth = 1},
        RefusedCall{
            .name = "TheGroup", .call = "CommandInputs::itemById", .nth = 2, .thrown = kThrown},
        RefusedCall{.name = "TheListOfTheButtons",
                    .call = "ButtonRowCommandInput::listItems",
                    .nth = 1,
                    .thrown = kThrown}),
    test_support::caseName);

TEST_F(PropertiesOk, WritesInputsThatAreDisabledToo) {
    open("Bolt");
    openAndPick("Bolt:1");
    session->type(kDescription, "mine");
    session->input(kDescription)->isEnabled(false);
    session->ok();
    EXPECT_EQ(stored(session->design(), "Bolt").substr(0, 18), "Bolt | Bolt | mine");
}

TEST_F(PropertiesOk, PassesOverButtonsWhoseIdBeginsOtherwise) {
    open("Bolt");
    openAndPick("Bolt:1");
    const adsk::core::Ptr<adsk::core::GroupCommandInput> group =
        session->input("QEMA_customProperties");
    group->children()->addBoolValueInput("QEMA_Checked", "", true, "", true);
    group->children()->addBoolValueInput("QEMA", "", true, "", false);
    group->children()->addBoolValueInput("qEMA_Other", "", true, "", true);
    group->children()->addBoolValueInput("QEM", "", true, "", true);
    session->ok();
    EXPECT_EQ(stored(session->design(), "Bolt"),
              "Bolt | Bolt | \n" + kNoStructure + "\nQEMA_Checked=1\nQEMA=0");
}

TEST_F(PropertiesOk, KeepsAttributesThatTheDialogDoesNotShow) {
    open("Bolt  property=Old/kept");
    openAndPick("Bolt:1");
    session->ok();
    EXPECT_EQ(stored(session->design(), "Bolt"), "Bolt | Bolt | \nQEMA_Old=kept\n" + kNoStructure);
}

TEST_F(PropertiesOk, InManufacturingWritesTheEmptyInputsOfAFreshDialog) {
    offer({"QEMA_Colour;Colour"});
    open("Bolt  number=B-1 description=long structure=Buy property=Colour/red");
    session->activateWorkspace("CAMEnvironment");
    openAndPick("Bolt:1");
    session->ok();
    const host::DesignData design = session->design();
    EXPECT_EQ(design.components[1].partNumber, "");
    EXPECT_EQ(design.components[1].description, "");
    EXPECT_EQ(design.components[1].attributes[1].name, "Buy");
    EXPECT_EQ(design.components[1].attributes[1].value, "0");
    EXPECT_EQ(design.components[1].attributes[5].name, "QEMA_Colour");
    EXPECT_EQ(design.components[1].attributes[5].value, "");
}

TEST_F(PropertiesOk, IsSeenByTheBom) {
    configure({"QEMA_Colour;Colour", "QEMA_Description;Description"});
    test_support::writeFile(
        settingsFile(),
        settingsWith(category("iProperty", {"QEMA_Colour;Colour"}) +
                     category("bomItems", {"QEMA_Colour;Colour", "QEMA_Description;Description"})));
    open("Bolt  number=B-1");
    openAndPick("Bolt:1");
    session->type(kPartNumber, "B-2");
    session->type(kDescription, "long");
    session->type("QEMA_Colour", "red");
    session->ok();
    showStructure();
    EXPECT_EQ(table(), "1 | Part | B-2 | red | long");
}

TEST_F(PropertiesOk, CancelledWritesNothing) {
    open("Bolt");
    openAndPick("Bolt:1");
    session->type(kPartNumber, "lost");
    session->cancel();
    EXPECT_EQ(stored(session->design(), "Bolt"), "Bolt | Bolt | ");
}

}  // namespace
}  // namespace tarnix
