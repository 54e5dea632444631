#include "tests/tarnix/bom/tabs/bom_tabs_test.h"

#include <gtest/gtest.h>

#include <string>

namespace tarnix {
namespace {

/// The header of the columns that are always there.
const std::string kFixedHeader = text(R"(
        0 button  "" off
        1 button  "Pos." off
        2 button  "" off
        3 button  "Part Number" off
        4 button  "BOM Structure" off)");

class DataOfModelTab : public BomTabsTest {};

TEST_F(DataOfModelTab, OfADesignWithoutOccurrencesHasItsHeaderRowOnly) {
    open("");
    openBom();
    EXPECT_EQ(row(kModelTable, 0), kFixedHeader);
    EXPECT_EQ(rowCount(kModelTable), 1);
    EXPECT_EQ(uncaughtExceptions(), "");
    EXPECT_TRUE(session->messages().empty());
}

TEST_F(DataOfModelTab, ShowsAnAssemblyAndHidesWhatIsInIt) {
    open(R"(
        Asm  number=A-1
          Bolt  number=B-1 structure=Buy)");
    openBom();
    EXPECT_EQ(row(kModelTable, 1), text(R"(
        0 button modelColapseRow_1 "" ././Resources/BOM/ColapseAsm off
        1 text positionOcc_1 "" 1  read-only
        2 text graphPositionOcc_1 ""  read-only
        3 text modelPartNumberOcc_1 "Part Number" A-1
        4 choice modelBomStructure_1 "BOM Structure" *Produce/Buy/AsPart/Divided/Reference
        5 text _1 ""
        6 text _1 ""
        7 text _1 ""
        8 text _1 ""
        9 text _1 ""
        10 text _1 "")"));
    EXPECT_EQ(row(kModelTable, 2), text(R"(
        0 button modelColapseRow_2 "" ././Resources/BOM/Part off  hidden
        1 text positionOcc_2 "" 1.1  read-only  hidden
        2 text graphPositionOcc_2 "" ░    ├──  read-only  hidden
        3 text modelPartNumberOcc_2 "Part Number" B-1  hidden
        4 choice modelBomStructure_2 "BOM Structure" Produce/*Buy/AsPart/Divided/Reference  hidden
        5 text _2 ""
        6 text _2 ""
        7 text _2 ""
        8 text _2 ""
        9 text _2 ""
        10 text _2 "")"));
}

TEST_F(DataOfModelTab, ShowsTheConfiguredColumnsAfterTheFixedOnes) {
    configure({"QEMA_Mass;Mass", "QEMA_Colour;Masses"});
    open(R"(
        Asm
          Bolt  box=10x10x1 property=Colour/red)");
    openBom();
    EXPECT_EQ(row(kModelTable, 0), kFixedHeader + "\n" + text(R"(
        5 button QEMA_Mass_0 "Mass [kg]" off
        6 button QEMA_Colour_0 "Masses" off)"));
    EXPECT_EQ(row(kModelTable, 2), text(R"(
        0 button modelColapseRow_2 "" ././Resources/BOM/Part off  hidden
        1 text positionOcc_2 "" 1.1  read-only  hidden
        2 text graphPositionOcc_2 "" ░    ├──  read-only  hidden
        3 text modelPartNumberOcc_2 "Part Number" Bolt  hidden
        4 choice modelBomStructure_2 "BOM Structure" *Produce/Buy/AsPart/Divided/Reference  hidden
        5 text QEMA_Mass_2 "Mass" 0.785  hidden
        6 text QEMA_Colour_2 "Masses" red  hidden
        7 text _2 ""
        8 text _2 ""
        9 text _2 ""
        10 text _2 "")"));
}

TEST_F(DataOfModelTab, NumbersItsRowsAsTheTree) {
    open(R"(
        Gearbox
          Shaft assembly
            Shaft
          Housing
        Bolt)");
    openBom();
    EXPECT_EQ(column(kModelTable, 1), "1\n1.1\n1.1.1\n1.2\n2");
}

TEST_F(DataOfModelTab, GoesOnWithItsNumbersWhenTheDialogOpensAgain) {
    open(R"(
        Asm
          Bolt
        Nut)");
    openBom();
    session->cancel();
    openBom();
    EXPECT_EQ(column(kModelTable, 1), "3\n3.1\n4");
}

TEST_F(DataOfModelTab, StartsItsNumbersAgainWhenTheAddinWasReloaded) {
    open("Bolt");
    openBom();
    restart(options());
    ASSERT_TRUE(run());
    open("Bolt");
    openBom();
    EXPECT_EQ(column(kModelTable, 1), "1");
}

TEST_F(DataOfModelTab, WithoutItemsLeavesWidthToTheFixedColumnsAlone) {
    open("Bolt");
    openBom();
    EXPECT_EQ(ratio(kModelTable), "2:0:8:12:8:0:0:0:0:0:0:0");
    EXPECT_EQ(session->table(kModelTable)->numberOfColumns(), 4);
    EXPECT_EQ(session->table(kModelTable)->maximumVisibleRows(), 1000);
}

TEST_F(DataOfModelTab, WithSixItemsUsesElevenColumns) {
    configure({"QEMA_Mass;1", "QEMA_Area;2", "QEMA_Volume;3", "QEMA_Length;4", "QEMA_Width;5",
               "QEMA_Height;6"});
    open("Bolt");
    openBom();
    EXPECT_EQ(ratio(kModelTable), "2:0:8:12:8:8:8:8:8:8:8:0");
    EXPECT_EQ(session->table(kModelTable)->numberOfColumns(), 10);
    EXPECT_EQ(ids(kModelTable, 0),
              "      QEMA_Mass_0 QEMA_Area_0 QEMA_Volume_0 QEMA_Length_0 QEMA_Width_0"
              " QEMA_Height_0");
    EXPECT_EQ(uncaughtExceptions(), "");
}

class SevenItems : public BomTabsTest {
protected:
    void SetUp() override {
        BomTabsTest::SetUp();
        configure({"QEMA_Mass;1", "QEMA_Area;2", "QEMA_Volume;3", "QEMA_Length;4", "QEMA_Width;5",
                   "QEMA_Height;6", "QEMA_Colour;7"});
    }
};

TEST_F(SevenItems, OfAFlatDesignHaveSevenHeadersAndSixCells) {
    open("Bolt  number=B-1");
    openBom();
    EXPECT_EQ(ids(kModelTable, 0),
              "      QEMA_Mass_0 QEMA_Area_0 QEMA_Volume_0 QEMA_Length_0 QEMA_Width_0"
              " QEMA_Height_0 QEMA_Colour_0");
    EXPECT_EQ(ids(kModelTable, 1),
              " modelColapseRow_1 positionOcc_1 graphPositionOcc_1 modelPartNumberOcc_1"
              " modelBomStructure_1 QEMA_Mass_1 QEMA_Area_1 QEMA_Volume_1 QEMA_Length_1"
              " QEMA_Width_1 QEMA_Height_1");
    EXPECT_EQ(ratio(kModelTable), "2:0:8:12:8:8:8:8:8:8:8:8");
    ASSERT_EQ(faults.exceptions().size(), 1U);
    EXPECT_EQ(faults.exceptions().at(0).text, "invalid vector subscript");
}

TEST_F(SevenItems, OfANestedDesignEndTheDialogInAPlainException) {
    open(R"(
        Asm
          Bolt)");
    openBom();
    ASSERT_EQ(faults.exceptions().size(), 1U);
    EXPECT_EQ(faults.exceptions().at(0).type, "std::exception");
    EXPECT_EQ(tabs(), "QEMA_tab_models_BOM \"Data of Model\"");
}

TEST_F(DataOfModelTab, WritesUnitsAfterTheirFourLabels) {
    configure({"QEMA_Mass;Mass", "QEMA_Area;Area", "QEMA_Density;Density", "QEMA_Volume;Volume",
               "QEMA_Length;Length"});
    open("Bolt");
    openBom();
    EXPECT_EQ(row(kModelTable, 0), kFixedHeader + "\n" + text(R"(
        5 button QEMA_Mass_0 "Mass [kg]" off
        6 button QEMA_Area_0 "Area [cm²]" off
        7 button QEMA_Density_0 "Density [kg/m³]" off
        8 button QEMA_Volume_0 "Volume [cm³]" off
        9 button QEMA_Length_0 "Length" off)"));
}

TEST_F(DataOfModelTab, ShowsNothingForAComponentWithoutMaterial) {
    configure({"QEMA_Physical Material;Material"});
    open(R"(
        Bolt  material=none
        Nut  material=Brass:0.0085)");
    openBom();
    EXPECT_EQ(column(kModelTable, 5), "\nBrass");
}

TEST_F(DataOfModelTab, FindsThePartNumberOfAConfiguredColumnInTheProperties) {
    configure({"QEMA_Part Number;Number"});
    open("Bolt  number=B-1");
    openBom();
    EXPECT_EQ(column(kModelTable, 5), "B-1");
}

TEST_F(DataOfModelTab, ThrowsForAColumnWhoseKeyIsShorterThanThePrefix) {
    configure({"Mass;Mass"});
    open("Bolt");
    openBom();
    ASSERT_EQ(faults.exceptions().size(), 1U);
    EXPECT_EQ(faults.exceptions().at(0).text, "invalid string position");
}

TEST_F(DataOfModelTab, SelectsNothingWhereACustomPropertyHoldsOne) {
    open("Bolt  property=Count/1 property=Size/M8");
    openBom();
    EXPECT_EQ(column(kModelTable, 4), "Produce/Buy/AsPart/Divided/Reference");
}

TEST_F(DataOfModelTab, SelectsNothingWhereANumberANameOrADescriptionIsOne) {
    open(kValuesOfOne);
    openBom();
    EXPECT_EQ(column(kModelTable, 4), kStructuresBesideOne);
}

TEST_F(DataOfModelTab, SelectsTheLastOfTwoStructuresThatAreSet) {
    open(
        "Bolt  attribute=QEMA_PropertiesAttributesGroup/Buy/1 "
        "attribute=QEMA_PropertiesAttributesGroup/Divided/1");
    openBom();
    EXPECT_EQ(column(kModelTable, 4), "Produce/Buy/AsPart/*Divided/Reference");
}

TEST_F(DataOfModelTab, HasTheExportButton) {
    open("Bolt");
    openBom();
    showModel();
    EXPECT_EQ(input("QEMA_btnExportXls"),
              "button QEMA_btnExportXls \"Export BOM to MS Excel\" ././Resources/BOM/BtnExport on");
    EXPECT_FALSE(session->input("QEMA_btnExportXls")->isFullWidth());
}

}  // namespace
}  // namespace tarnix
