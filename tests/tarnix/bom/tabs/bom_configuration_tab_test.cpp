#include "tarnix/bom/model/columns.h"

#include "tests/tarnix/bom/tabs/bom_tabs_test.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarnix {
namespace {

/// The entries of a drop-down for these custom properties, as the fixture shows a list.
std::string offered(const std::vector<std::string>& userProperties) {
    std::string all;
    for (const std::string& entry : offeredEntries(userProperties)) {
        all += (all.empty() ? "" : "/") + entry;
    }
    return all;
}

class BomConfigurationTab : public BomTabsTest {
protected:
    /// The chosen entry of each of the six drop-downs, "-" for none, with spaces between.
    [[nodiscard]] std::string chosenEntries() const {
        std::string all;
        for (int k = 0; k < 6; ++k) {
            const adsk::core::Ptr<adsk::core::DropDownCommandInput> choice =
                session->input("iProperty_" + std::to_string(k));
            const auto selected = choice->selectedItem();
            all += (k == 0 ? "" : " ") + (selected ? selected->name() : "-");
        }
        return all;
    }

    /// The saved columns as the tab shows them: state, caption and choice of the free columns.
    [[nodiscard]] std::string freeColumn(int k) const {
        const auto table = session->table(kConfigurationTable);
        const adsk::core::Ptr<adsk::core::StringValueCommandInput> state =
            table->getInputAtPosition(0, 4 + k);
        const adsk::core::Ptr<adsk::core::StringValueCommandInput> caption =
            table->getInputAtPosition(1, 4 + k);
        const adsk::core::Ptr<adsk::core::DropDownCommandInput> choice =
            table->getInputAtPosition(2, 4 + k);
        const auto selected = choice->selectedItem();
        return state->value() + " | " + caption->value() + " | " +
               (selected ? selected->name() : "nothing selected");
    }
};

TEST_F(BomConfigurationTab, WithoutItemsShowsSixUnusedColumns) {
    open("Bolt");
    openBom();
    EXPECT_EQ(row(kConfigurationTable, 0), text(R"(
        0 text  "" default  read-only
        1 text  "" default  read-only
        2 text  "" default  read-only
        3 text  "" default  read-only
        4 text colUsrHeader_1 "" not used  read-only
        5 text colUsrHeader_2 "" not used  read-only
        6 text colUsrHeader_3 "" not used  read-only
        7 text colUsrHeader_4 "" not used  read-only
        8 text colUsrHeader_5 "" not used  read-only
        9 text colUsrHeader_6 "" not used  read-only)"));
    EXPECT_EQ(row(kConfigurationTable, 1), text(R"(
        0 text nameCol1 "NameCol1" Asm.  read-only
        1 text nameCol2 "NameCol2" Pos.  read-only
        2 text nameCol3 "NameCol3" Part Number  read-only
        3 text nameCol4 "NameCol4" BOM Structure  read-only
        4 text nameCol5 "NameCol5"
        5 text nameCol6 "NameCol6"
        6 text nameCol7 "NameCol7"
        7 text nameCol8 "NameCol8"
        8 text nameCol9 "NameCol9"
        9 text nameCol10 "NameCol10")"));
    EXPECT_EQ(chosenEntries(), "- - - - - -");
}

TEST_F(BomConfigurationTab, ShowsAModelOfARowWithSixDropDowns) {
    open("Bolt");
    openBom();
    EXPECT_EQ(ids(kConfigurationTable, 2),
              " colapseRow positionOcc partNumberOcc bomStructure iProperty_0 iProperty_1"
              " iProperty_2 iProperty_3 iProperty_4 iProperty_5");
    EXPECT_EQ(input("colapseRow"), "text colapseRow \"Asm.\" isAsm.  read-only");
    EXPECT_EQ(input("positionOcc"), "text positionOcc \"Pos.\" 1.1  read-only");
    EXPECT_EQ(input("partNumberOcc"), "text partNumberOcc \"Part Number\" Part Number  read-only");
    EXPECT_EQ(input("bomStructure"), "text bomStructure \"BOM Structure\" Produce  read-only");
    EXPECT_EQ(input("iProperty_5"), "choice iProperty_5 \"iProperty\" " + offered({}));
    EXPECT_EQ(freeColumn(5), "not used |  | nothing selected");
}

TEST_F(BomConfigurationTab, HasATableOfThreeRowsAndTenColumns) {
    open("Bolt");
    openBom();
    EXPECT_EQ(rowCount(kConfigurationTable), 3);
    EXPECT_EQ(session->table(kConfigurationTable)->numberOfColumns(), 10);
    EXPECT_EQ(session->table(kConfigurationTable)->name(), "ConfigurationBom");
    EXPECT_EQ(ratio(kConfigurationTable), "3:3:6:7:8:8:8:8:8:8");
    const adsk::core::Ptr<adsk::core::DropDownCommandInput> choice = session->input("iProperty_0");
    EXPECT_EQ(choice->maxVisibleItems(), 30);
}

TEST_F(BomConfigurationTab, EndsInTheNoticeAndTheSaveButton) {
    open("Bolt");
    showConfiguration();
    EXPECT_EQ(
        input("fullWidth_textBox"),
        R"(text box fullWidth_textBox "" <div style="background-color:#fefa50" )"
        R"(align="center">The changes in the layout of BOM properties will be applied on tab )"
        R"('Structure' on the tab 'Data of Model' after clicking on <span><b>"Save BOM )"
        R"(Configuration"</b></span> and re-open this dialog.</div>  read-only)");
    EXPECT_EQ(input("QEMA_btnSaveConfigBom"),
              "button QEMA_btnSaveConfigBom \"Save BOM Configuration\" on");
    EXPECT_TRUE(session->input("QEMA_btnSaveConfigBom")->isFullWidth());
}

TEST_F(BomConfigurationTab, OffersTheCustomPropertiesOfTheDesignLast) {
    open(R"(
        Bolt  property=Size/M8 property=Colour/red
        Nut  property=Colour/blue property=Weight/2)");
    openBom();
    EXPECT_EQ(input("iProperty_0"),
              "choice iProperty_0 \"iProperty\" " + offered({"Size", "Colour", "Weight"}));
}

TEST_F(BomConfigurationTab, SelectsTheEntryOfASavedColumn) {
    configure({"QEMA_Mass;Weight"});
    open("Bolt");
    openBom();
    EXPECT_EQ(freeColumn(0), "used | Weight | Mass");
    EXPECT_EQ(freeColumn(1), "not used |  | nothing selected");
}

TEST_F(BomConfigurationTab, PutsEachItemIntoTheColumnOfItsPlace) {
    configure({"QEMA_Gone;Gone", "QEMA_Colour;Paint"});
    open("Bolt  property=Colour/red");
    openBom();
    EXPECT_EQ(freeColumn(0), "not used |  | nothing selected");
    EXPECT_EQ(freeColumn(1), "used | Paint | Colour");
}

TEST_F(BomConfigurationTab, SelectsTheLastEntryOfAUserPropertyNamedLikeAFixedOne) {
    configure({"QEMA_Mass;Weight"});
    open("Bolt  property=Mass/heavy");
    openBom();
    const adsk::core::Ptr<adsk::core::DropDownCommandInput> choice = session->input("iProperty_0");
    EXPECT_EQ(choice->selectedItem()->index(), offeredEntries({}).size());
    EXPECT_EQ(freeColumn(0), "used | Weight | Mass");
}

TEST_F(BomConfigurationTab, WithMoreThanSixItemsThrowsAfterTheSixth) {
    configure({"QEMA_Mass;1", "QEMA_Area;2", "QEMA_Volume;3", "QEMA_Length;4", "QEMA_Width;5",
               "QEMA_Height;6", "QEMA_Density;7"});
    open("Bolt");
    openBom();
    ASSERT_EQ(faults.exceptions().size(), 1U);
    EXPECT_EQ(faults.exceptions().at(0).text, "invalid vector subscript");
    EXPECT_EQ(freeColumn(5), "used | 6 | Height");
}

}  // namespace
}  // namespace tarnix
