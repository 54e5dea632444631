#include "tests/tarnix/bom/behaviour/bom_dialog_fixture.h"

#include <gtest/gtest.h>

namespace test_support {
namespace {

/// Steel of 100, 200 and 300 cm3 weighs 0.785, 1.570 and 2.355 kg.
constexpr const char* kThreeParts = R"(
    Bolt  number=B-1 measures=10:100
    Bolt
    Plate  number=P-1 measures=10:200
    Rod  number=R-1 measures=10:300)";

class StructureRefresh : public BomDialogTest {};

TEST_F(StructureRefresh, FillsTheTableAndSumsTheMassWhenTheTabIsFirstShown) {
    open(kThreeParts);

    showStructure();

    EXPECT_EQ(table(), text(R"(
        1 | Part | B-1
        2 | Part | P-1
        3 | Part | R-1)"));
    EXPECT_EQ(value("idAllMass"), "5.495");
    EXPECT_TRUE(session->input("idAllMass")->isVisible());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(StructureRefresh, LeavesTheTableEmptyUntilItsTabIsShown) {
    open(kThreeParts);
    openBom();

    EXPECT_EQ(session->table(kStructureTable)->rowCount(), 0);
    EXPECT_EQ(value("idAllMass"), "");
    EXPECT_FALSE(session->input("idAllMass")->isVisible());
}

TEST_F(StructureRefresh, AddsNoRowsWhenTheTabIsShownAgain) {
    open(kThreeParts);
    showStructure();
    session->paste("partNumberOcc_1", "edited");
    showModel();

    showStructure();

    EXPECT_EQ(table(), text(R"(
        1 | Part | edited
        2 | Part | P-1
        3 | Part | R-1)"));
}

TEST_F(StructureRefresh, WorksTheMassOutAgainEachTime) {
    open(R"(
        Bolt  number=B-1 measures=10:100
        Plate  number=P-1 measures=10:200)");
    showStructure();
    EXPECT_EQ(value("idAllMass"), "2.355");
    showModel();
    component(1)->partNumber("B-1");

    showStructure();

    // The two bolts' rows are still there: the first one counts for two now.
    EXPECT_EQ(value("idAllMass"), "3.140");
}

TEST_F(StructureRefresh, OfADesignWithoutOccurrencesShowsTheHeaderAndNoMass) {
    open("");

    showStructure();

    EXPECT_EQ(session->table(kStructureTable)->rowCount(), 1);
    EXPECT_EQ(value("idAllMass"), "0.000");
}

TEST_F(StructureRefresh, LeavesNoWidthToColumnsThatAreNotConfigured) {
    open("Plate");

    showStructure();

    EXPECT_EQ(session->table(kStructureTable)->columnRatio(), "2:3:0:12:8:0:0:0:0:0:0");
}

TEST_F(StructureRefresh, SetsAWidthForEachConfiguredColumn) {
    configure({"QEMA_Mass;Mass", "QEMA_Area;Area"});
    open("Plate");

    showStructure();

    EXPECT_EQ(session->table(kStructureTable)->columnRatio(), "2:3:0:12:8:8:8:0:0:0:0");
}

TEST_F(StructureRefresh, SetsAWidthForSixColumnsAtMost) {
    open("Plate");
    showStructure();
    showModel();
    configure({"A;a", "B;b", "C;c", "D;d", "E;e", "F;f", "G;g"});

    showStructure();

    EXPECT_EQ(session->table(kStructureTable)->columnRatio(), "2:3:0:12:8:8:8:8:8:8:8");
}

TEST_F(StructureRefresh, RestoresTheHeaderAndWidthsOfTheModelTable) {
    configure({"QEMA_Mass;Mass"});
    open("Plate");
    showStructure();
    const adsk::core::Ptr<adsk::core::TableCommandInput> model = session->table(kModelTable);
    model->getInputAtPosition(0, 3)->isVisible(false);
    model->columnRatio("1:1");

    showModel();

    EXPECT_TRUE(model->getInputAtPosition(0, 3)->isVisible());
    EXPECT_EQ(model->columnRatio(), "2:0:8:12:8:8:0:0:0:0:0");
}

TEST_F(StructureRefresh, LeavesHiddenRowsHiddenAndCountsTheirMass) {
    open(kThreeParts);
    showStructure();
    hideRow(2);
    showModel();

    showStructure();

    EXPECT_EQ(table(), text(R"(
        1 | Part | B-1
        3 | Part | R-1)"));
    EXPECT_EQ(value("idAllMass"), "5.495");
}

TEST_F(StructureRefresh, ShowsTheCellsOfARowWhoseFirstCellShows) {
    open(kThreeParts);
    showStructure();
    session->input("partNumberOcc_1")->isVisible(false);
    showModel();

    showStructure();

    EXPECT_TRUE(session->input("partNumberOcc_1")->isVisible());
}

TEST_F(StructureRefresh, LeavesEverythingAloneOnTheConfigurationTab) {
    open(kThreeParts);
    showStructure();
    const adsk::core::Ptr<adsk::core::TableCommandInput> structure =
        session->table(kStructureTable);
    structure->columnRatio("1:1");
    session->input("partNumberOcc_1")->isVisible(false);

    showConfiguration();

    EXPECT_EQ(structure->columnRatio(), "1:1");
    EXPECT_FALSE(session->dialog()->commandInputs()->itemById("partNumberOcc_1")->isVisible());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(StructureRefresh, WithoutTheMassFieldStillSetsTheWidths) {
    open("Plate");
    openBom();
    ASSERT_TRUE(session->dialog()->commandInputs()->itemById("idAllMass")->deleteMe());

    showStructure();

    EXPECT_EQ(session->table(kStructureTable)->columnRatio(), "2:3:0:12:8:0:0:0:0:0:0");
    EXPECT_EQ(uncaughtExceptions(), "");
}

}  // namespace
}  // namespace test_support
