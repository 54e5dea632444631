#include "tests/support/case_name.h"
#include "tests/support/files.h"
#include "tests/tarnix/properties/properties_fixture.h"

#include "host/session/input_actions.h"
#include "host/session/user_actions.h"

namespace tarnix {
namespace {

using namespace adsk::core;

class PropertiesDialog : public PropertiesTest {
protected:
    void openWithout(const std::string& call, int nth) {
        host::gate::reset();
        host::gate::refuse(call, static_cast<std::uint64_t>(nth));
        openProperties();
        host::gate::reset();
    }

    /// The dialog with one host call refused: all inputs of the dialog that have an id.
    std::string withoutCall(const std::string& call, int nth) {
        openWithout(call, nth);
        std::string all;
        for (const std::string& id : session->inputIds()) {
            all += (all.empty() ? "" : " ") + id;
        }
        return all;
    }

    /// The recorded calls on the command, in their order.
    static std::string commandCalls() {
        std::string all;
        for (const std::string& call : host::gate::recorded()) {
            if (call.starts_with("Command::")) {
                all += (all.empty() ? "" : " ") + call;
            }
        }
        return all;
    }
};

TEST_F(PropertiesDialog, HasTwoTabsAndASize) {
    openProperties();
    EXPECT_EQ(inputsOf(""), text(R"(
        tab QEMA_tab_iProperties "Custom properties"
        tab QEMA_tab_Settings "Settings")"));
    EXPECT_EQ(host::dialogSize(), (host::ui::DialogSize{300, 600}));
    EXPECT_EQ(uncaughtExceptions(), "");
    EXPECT_TRUE(session->messages().empty());
    EXPECT_TRUE(host::misuses().empty());
}

TEST_F(PropertiesDialog, GetsItsSizeAndThenItsHandlers) {
    host::gate::record(true);
    openProperties();
    EXPECT_EQ(commandCalls(),
              "Command::commandInputs Command::setDialogInitialSize Command::inputChanged "
              "Command::execute Command::validateInputs");
}

TEST_F(PropertiesDialog, PicksOneComponentAndShowsTwoGroups) {
    openProperties();
    EXPECT_EQ(inputsOf(kPropertiesTab), text(R"(
        selection QEMA_selectComponent "Component" prompt "Select component"
        group QEMA_properties "Properties", expanded, full width
        group QEMA_customProperties "Custom Properties", expanded, full width)"));
}

TEST_F(PropertiesDialog, AsksForWhatTheHostDoesAnyway) {
    openProperties();
    EXPECT_EQ(host::gate::count("SelectionCommandInput::setSelectionLimits"), 1U);
    EXPECT_EQ(host::gate::count("GroupCommandInput::isExpanded"), 2U);
    EXPECT_EQ(host::gate::count("GroupCommandInput::isEnabledCheckBoxDisplayed"), 2U);
    EXPECT_EQ(host::gate::count("TableCommandInput::maximumVisibleRows"), 1U);
}

TEST_F(PropertiesDialog, HasTabsWithoutIcons) {
    openProperties();
    const Ptr<TabCommandInput> properties = session->input(kPropertiesTab);
    const Ptr<TabCommandInput> settings = session->input(kSettingsTab);
    EXPECT_EQ(properties->resourceFolder(), "");
    EXPECT_EQ(settings->resourceFolder(), "");
}

TEST_F(PropertiesDialog, ShowsStructureTextsAndFullPathAsProperties) {
    openProperties();
    EXPECT_EQ(inputsOf("QEMA_properties"), text(R"(
        button row QEMA_btnRowBuyMake "BOM Structure", multi-select
          Produce resources/_Produce off
          Buy resources/_Buy off
          AsPart resources/_AsPart off
          Divided resources/_Divided off
          Reference resources/_Reference off
        text QEMA_Part Number "Part Number" ""
        text QEMA_Part Name "Part Name" ""
        text QEMA_Description "Description" ""
        text box QEMA_FullPathDoc "Full Path" , 1 row, read-only)"));
}

TEST_F(PropertiesDialog, ShowsTheListOfTheSettingsInItsOrder) {
    offer({"QEMA_Material;Material", "QEMA_Colour;Colour of it;all"});
    openProperties();
    EXPECT_EQ(inputsOf("QEMA_customProperties"), text(R"(
        text QEMA_Material "Material" ""
        text QEMA_Colour "Colour of it;all" "")"));
}

TEST_F(PropertiesDialog, EditsTheListOnItsSecondTab) {
    offer({"QEMA_Material;Material"});
    openProperties();
    EXPECT_EQ(inputsOf(kSettingsTab),
              R"(text box tableDescrb "" <div align="left">User-defined properties of component.)"
              R"(</div>, 1 row, read-only)"
              "\n"
              R"(table userProperty "Property" 1 column, ratio 1, 20 rows visible, toolbar)"
              R"( propertyAdd propertyDelete)"
              "\n"
              R"(text box messageSave "" )" +
                  std::string(kNotice) +
                  ", 4 rows, read-only\n"
                  R"(button QEMA_btnSaveUserIProperty "Save User Property", on, full width)"
                  "\n"
                  R"(button propertyAdd "Add Property", on)"
                  "\n"
                  R"(button propertyDelete "Delete Property", on)"
                  "\n"
                  R"(text QEMA_Materia "Material" "Material")");
}

TEST_F(PropertiesDialog, WithAnEmptyListIsCompleteWithoutCustomPropertiesAndRows) {
    openProperties();
    EXPECT_EQ(inputsOf("QEMA_customProperties"), "");
    EXPECT_EQ(rows(), "|");
    EXPECT_EQ(session->table(kTable)->maximumVisibleRows(), 20);
    EXPECT_EQ(session->input(kSave)->name(), "Save User Property");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(PropertiesDialog, TheIdOfARowIsACharacterShorterThanTheKey) {
    offer({"QEMA_Material;Material", "x;Single"});
    openProperties();
    EXPECT_EQ(rows(), "|Material|Single|");
    EXPECT_EQ(rowId(0), "QEMA_Materia");
    EXPECT_EQ(rowId(1), "");
}

TEST_F(PropertiesDialog, HasRowsOfOneCellThatSpansNoOther) {
    offer({"QEMA_Material;Material", "QEMA_Colour;Colour"});
    openProperties();
    EXPECT_EQ(placeOfCell(0), "row 0, column 0, spans 0 and 0");
    EXPECT_EQ(placeOfCell(1), "row 1, column 0, spans 0 and 0");
}

TEST_F(PropertiesDialog, AnEntryWithoutSemicolonIsIdAndName) {
    // An item without a key reads as an empty text, the one entry that has no semicolon.
    offer({";Lost"});
    openProperties();
    EXPECT_EQ(inputsOf("QEMA_customProperties"), R"(text  "" "")");
    EXPECT_EQ(rows(), "||");
    EXPECT_EQ(rowId(0), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(PropertiesDialog, PicksOccurrencesAndTheRootComponentAlone) {
    open("Bolt");
    openProperties();
    session->pick("Bolt:1");
    EXPECT_EQ(value(kPartName), "Bolt");
    session->pick("Design");
    EXPECT_EQ(value(kPartName), "Design");
    const Ptr<adsk::fusion::Occurrence> bolt = entity("Bolt:1");
    EXPECT_THROW(host::pick(bolt->component()), host::MisuseError);
    EXPECT_EQ(host::gate::count("SelectionCommandInput::addSelectionFilter"), 2U);
}

TEST_F(PropertiesDialog, CannotBeAcceptedBeforeAComponentIsPicked) {
    open("Bolt");
    openProperties();
    EXPECT_THROW(session->ok(), host::MisuseError);
    EXPECT_TRUE(session->dialogOpen());
    session->pick("Bolt:1");
    session->ok();
    EXPECT_FALSE(session->dialogOpen());
}

TEST_F(PropertiesDialog, HoldsOnePickAtMost) {
    open(R"(
        Bolt
        Nut)");
    openAndPick("Bolt:1");
    session->pick("Nut:1");
    const Ptr<SelectionCommandInput> selection = session->input(kSelection);
    EXPECT_EQ(selection->selectionCount(), 1U);
    EXPECT_EQ(value(kPartName), "Nut");
}

TEST_F(PropertiesDialog, ReportsASelectionFilterThatTheHostRefuses) {
    host::gate::refuse("SelectionCommandInput::addSelectionFilter", 1);
    openProperties();
    ASSERT_EQ(session->messages().size(), 1U);
    EXPECT_EQ(session->messages()[0].text, "occurrence failed");
    EXPECT_EQ(session->messages()[0].title, "");
    EXPECT_EQ(session->input(kSave)->name(), "Save User Property");
}

TEST_F(PropertiesDialog, ReportsTheSecondSelectionFilterToo) {
    host::gate::refuse("SelectionCommandInput::addSelectionFilter", 2);
    openProperties();
    ASSERT_EQ(session->messages().size(), 1U);
    EXPECT_EQ(session->messages()[0].text, "root failed");
    EXPECT_EQ(session->messages()[0].title, "");
}

/// The inputs of the dialog in the order in which they are made.
const std::vector<std::string> kInputs = {
    "QEMA_tab_iProperties",  "QEMA_selectComponent", "QEMA_properties",  "QEMA_btnRowBuyMake",
    "QEMA_Part Number",      "QEMA_Part Name",       "QEMA_Description", "QEMA_FullPathDoc",
    "QEMA_customProperties", "QEMA_tab_Settings"};

/// A call that the host refuses while the dialog is made, and how many inputs it has then.
struct RefusedCall {
    const char* name;
    const char* call;
    int nth;
    std::size_t made;
};

std::string firstInputs(std::size_t count) {
    std::string ids;
    for (std::size_t i = 0; i < count; ++i) {
        ids += (i == 0 ? "" : " ") + kInputs.at(i);
    }
    return ids;
}

class PropertiesDialogWithout : public PropertiesDialog,
                                public testing::WithParamInterface<RefusedCall> {};

TEST_P(PropertiesDialogWithout, StopsWithWhatIsMade) {
    EXPECT_EQ(withoutCall(GetParam().call, GetParam().nth), firstInputs(GetParam().made));
    EXPECT_EQ(uncaughtExceptions(), "");
    EXPECT_TRUE(session->messages().empty());
}

INSTANTIATE_TEST_SUITE_P(EachCall, PropertiesDialogWithout,
                         testing::Values(RefusedCall{.name = "ItsFirstTab",
                                                     .call = "CommandInputs::addTabCommandInput",
                                                     .nth = 1,
                                                     .made = 0},
                                         RefusedCall{.name = "TheChildrenOfItsFirstTab",
                                                     .call = "TabCommandInput::children",
                                                     .nth = 1,
                                                     .made = 1},
                                         RefusedCall{.name = "ItsFirstGroup",
                                                     .call = "CommandInputs::addGroupCommandInput",
                                                     .nth = 1,
                                                     .made = 2},
                                         RefusedCall{.name = "TheChildrenOfItsFirstGroup",
                                                     .call = "GroupCommandInput::children",
                                                     .nth = 1,
                                                     .made = 3},
                                         RefusedCall{
                                             .name = "ItsButtons",
                                             .call = "CommandInputs::addButtonRowCommandInput",
                                             .nth = 1,
                                             .made = 3},
                                         RefusedCall{.name = "TheListOfItsButtons",
                                                     .call = "ButtonRowCommandInput::listItems",
                                                     .nth = 1,
                                                     .made = 4},
                                         RefusedCall{.name = "ItsSecondGroup",
                                                     .call = "CommandInputs::addGroupCommandInput",
                                                     .nth = 2,
                                                     .made = 8},
                                         RefusedCall{.name = "ItsSecondTab",
                                                     .call = "CommandInputs::addTabCommandInput",
                                                     .nth = 2,
                                                     .made = 9},
                                         RefusedCall{.name = "TheChildrenOfItsSecondTab",
                                                     .call = "TabCommandInput::children",
                                                     .nth = 2,
                                                     .made = 10}),
                         test_support::caseName);

TEST_F(PropertiesDialog, ThrowsWithoutTheChildrenOfItsSecondGroupWhereTheListHasEntries) {
    offer({"QEMA_Colour;Colour"});
    openWithout("GroupCommandInput::children", 2);
    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in OnCommandCreated");
}

TEST_F(PropertiesDialog, NeedsNoChildrenOfItsSecondGroupForAnEmptyList) {
    openWithout("GroupCommandInput::children", 2);
    EXPECT_EQ(session->input(kSave)->name(), "Save User Property");
    EXPECT_EQ(uncaughtExceptions(), "");
}

}  // namespace
}  // namespace tarnix
