#include "tests/tarnix/bom/tabs/bom_tabs_test.h"

#include <gtest/gtest.h>

#include <string>

namespace tarnix {
namespace {

class StructureTab : public BomTabsTest {};

TEST_F(StructureTab, IsCreatedWithAnEmptyTable) {
    configure({"QEMA_Mass;Mass", "QEMA_Colour;Colour"});
    open("Bolt");
    openBom();
    EXPECT_EQ(rowCount(kStructureTable), 0);
    EXPECT_EQ(ratio(kStructureTable), "2:3:0:12:8:8:8:0:0:0:0:0");
    EXPECT_EQ(session->table(kStructureTable)->numberOfColumns(), 6);
    EXPECT_EQ(session->table(kStructureTable)->maximumVisibleRows(), 1000);
    EXPECT_EQ(input("QEMA_droDown_AscDesc"),
              "choice QEMA_droDown_AscDesc \"BOM can be sorted by clicking on the column header:\" "
              "Ascending/Descending");
    EXPECT_EQ(input("idAllMass"), "text idAllMass \"Total mass of structure BOM [kg] : \"  hidden");
}

TEST_F(StructureTab, HasTheExportButtonOfTheOtherTabAsWell) {
    open("Bolt");
    showStructure();
    EXPECT_EQ(input("QEMA_btnExportXls"),
              "button QEMA_btnExportXls \"Export BOM to MS Excel\" ././Resources/BOM/BtnExport on");
    EXPECT_FALSE(session->input("QEMA_btnExportXls")->isFullWidth());
}

TEST_F(StructureTab, OfAnEmptyDesignHasItsHeaderRowOnly) {
    configure({"QEMA_Volume;Volume"});
    open("");
    showStructure();
    EXPECT_EQ(rowCount(kStructureTable), 1);
    EXPECT_EQ(row(kStructureTable, 0), text(R"(
        0 button colapseRow_0 "" off
        1 button positionOcc_0 "Pos." off
        2 button graphPositionOcc_0 "" off
        3 button partNumberOcc_0 "Part Number" off
        4 button bomStructure_0 "BOM Structure" off
        5 button QEMA_Volume_0 "Volume [cm³]" off)"));
    EXPECT_TRUE(session->messages().empty());
}

TEST_F(StructureTab, ShowsTwoEqualBoltsAsOneLine) {
    configure({"QEMA_Quantity;Pcs"});
    open(R"(
        Bolt  number=B-1 structure=Buy
        Bolt)");
    showStructure();
    EXPECT_EQ(row(kStructureTable, 1), text(R"(
        0 image colapseRow_1 "" ././Resources/BOM/Part.png
        1 button positionOcc_1 "1" off
        2 text graphPositionOcc_1 ""  read-only
        3 text partNumberOcc_1 "Part Number" B-1
        4 choice bomStructure_1 "BOM Structure" Produce/*Buy/AsPart/Divided/Reference
        5 text QEMA_Quantity_1 "Pcs" 2
        6 text _1 ""
        7 text _1 ""
        8 text _1 ""
        9 text _1 ""
        10 text _1 "")"));
    EXPECT_EQ(rowCount(kStructureTable), 2);
}

TEST_F(StructureTab, ChoosesNothingWhereANumberANameOrADescriptionIsOne) {
    open(kValuesOfOne);
    showStructure();
    EXPECT_EQ(column(kStructureTable, 4), kStructuresBesideOne);
}

TEST_F(StructureTab, ShowsTwoNamesOfOnePartNumberAsOneCombinedLine) {
    configure({"QEMA_Quantity;Pcs"});
    open(R"(
        Bolt  number=B-1
        Screw  number=B-1)");
    showStructure();
    EXPECT_EQ(table(), "1 | Combine | B-1 | 2");
}

TEST_F(StructureTab, KeepsEqualPartNumbersOfTwoAssembliesApart) {
    configure({"QEMA_Quantity;Pcs"});
    open(R"(
        Left  structure=Divided
          Bolt  number=B-1
          Bolt
        Right  structure=Divided
          Bolt)");
    showStructure();
    EXPECT_EQ(table(), text(R"(
        1 | PartUp | B-1 | 2
        2 | PartUp | B-1 | 1)"));
}

TEST_F(StructureTab, TakesAllEmptyPartNumbersForOneItem) {
    configure({"QEMA_Quantity;Pcs"});
    open(R"(
        Bolt  number=""
        Nut  number=""
        Washer  number="")");
    showStructure();
    EXPECT_EQ(column(kStructureTable, 5), "3");
    EXPECT_EQ(column(kStructureTable, 0), "././Resources/BOM/Combine.png");
}

TEST_F(StructureTab, DividedAssemblyHandsUpItsDirectChildren) {
    open(R"(
        Gearbox  structure=Divided
          Housing
          Shaft assembly
            Shaft)");
    showStructure();
    EXPECT_EQ(table(), text(R"(
        1 | PartUp | Housing
        2 | AsmUp  | Shaft assembly)"));
}

TEST_F(StructureTab, ReferenceAssemblyLeavesNoLineAndAGapInTheIds) {
    open(R"(
        Housing
        Stand  structure=Reference
          Foot
        Bolt)");
    showStructure();
    EXPECT_EQ(table(), text(R"(
        1 | Part | Housing
        2 | Part | Bolt)"));
    EXPECT_EQ(ids(kStructureTable, 2),
              " colapseRow_4 positionOcc_4 graphPositionOcc_4 partNumberOcc_4 bomStructure_4"
              " _4 _4 _4 _4 _4 _4");
}

TEST_F(StructureTab, TwoInstancesOfAnAssemblyAreOneLineWithoutTheirChildren) {
    configure({"QEMA_Quantity;Pcs"});
    open(R"(
        Asm
          Bolt
          Nut
        Asm)");
    showStructure();
    EXPECT_EQ(table(), "1 | Asm | Asm | 2");
}

TEST_F(StructureTab, DropsAPartThatHoldsTheStemOfTheAssemblyBeforeIt) {
    // A row of the same level has to come between: the row before the part is deeper
    // otherwise.
    open(R"(
        Asm
          Bolt
        Stand  structure=Reference
        Asm cover
        Nut)");
    showStructure();
    EXPECT_EQ(table(), text(R"(
        1 | Asm  | Asm
        2 | Part | Nut)"));
}

TEST_F(StructureTab, ShowsAPartWithTheStemDirectlyAfterTheAssembly) {
    open(R"(
        Asm
          Bolt
        Asm cover)");
    showStructure();
    EXPECT_EQ(table(), "1 | Asm  | Asm\n2 | Part | Asm cover");
}

TEST_F(StructureTab, DropsAComponentWhoseNameHoldsTheWordEmpty) {
    open(R"(
        Half-empty tin
        Tin)");
    showStructure();
    EXPECT_EQ(table(), "1 | Part | Tin");
}

TEST_F(StructureTab, WritesTheMarkerOnceIntoTheDesign) {
    configure({"QEMA_Description;Description"});
    open(R"(
        Bolt  number=B-1 description=long
        Screw  number=B-1 description=short
        Stud  number=B-1 description=middle)");
    showStructure();
    showModel();
    showStructure();
    EXPECT_EQ(column(kStructureTable, 5), "***different***long");
    EXPECT_EQ(session->design().components.at(1).description, "***different***long");
    EXPECT_EQ(session->design().components.at(2).description, "short");
}

TEST_F(StructureTab, MarksConfiguredPropertiesThatDiffer) {
    configure({"QEMA_Colour;Colour", "QEMA_Size;Size"});
    open(R"(
        Bolt  number=B-1 property=Colour/red property=Size/M8
        Screw  number=B-1 property=Colour/blue property=Size/M8)");
    showStructure();
    EXPECT_EQ(table(), "1 | Combine | B-1 | ***different*** | M8");
}

TEST_F(StructureTab, SelectsNoStructureWhereMergingOverwroteIt) {
    open(R"(
        Bolt  number=1 structure=Buy
        Screw  number=1 structure=Divided)");
    showStructure();
    EXPECT_EQ(column(kStructureTable, 4), "Produce/Buy/AsPart/Divided/Reference");
}

}  // namespace
}  // namespace tarnix
