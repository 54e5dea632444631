#include "tarnix/bom/behaviour/structure_sort.h"

#include "tests/tarnix/bom/behaviour/bom_dialog_fixture.h"

#include "host/session/input_actions.h"

#include <gtest/gtest.h>

namespace test_support {
namespace {

class StructureSort : public BomDialogTest {
protected:
    void sortBy(const std::string& headerId, const std::string& order) {
        session->choose("QEMA_droDown_AscDesc", order);
        faults.forgetExceptions();
        session->click(headerId);
    }
};

TEST_F(StructureSort, OfPartNumbersGoesByBytes) {
    open(R"(
        One  number=B
        Two  number=a
        Three  number=A)");
    showStructure();

    sortBy("partNumberOcc_0", "Ascending");

    EXPECT_EQ(table(), text(R"(
        3 | Part | A
        1 | Part | B
        2 | Part | a)"));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(StructureSort, DescendingReversesTheRows) {
    open(R"(
        One  number=B
        Two  number=a
        Three  number=A)");
    showStructure();

    sortBy("partNumberOcc_0", "Descending");

    EXPECT_EQ(table(), text(R"(
        2 | Part | a
        1 | Part | B
        3 | Part | A)"));
}

TEST_F(StructureSort, KeepsTheIdsWithTheirCells) {
    open(R"(
        One  number=B
        Two  number=A)");
    showStructure();

    sortBy("partNumberOcc_0", "Ascending");

    EXPECT_EQ(shownTableInput()->getInputAtPosition(1, 3)->id(), "partNumberOcc_2");
    EXPECT_EQ(shownTableInput()->getInputAtPosition(2, 3)->id(), "partNumberOcc_1");
    EXPECT_EQ(shownTableInput()->rowCount(), 3);
}

TEST_F(StructureSort, OfEqualNumbersGoesByTheirIds) {
    configure({"QEMA_Size;Size"});
    open(R"(
        One  property=Size/10
        Two  property=Size/9
        Three  property=Size/10)");
    showStructure();

    sortBy("QEMA_Size_0", "Ascending");
    EXPECT_EQ(table(), text(R"(
        2 | Part | Two   | 9
        1 | Part | One   | 10
        3 | Part | Three | 10)"));

    sortBy("QEMA_Size_0", "Descending");
    EXPECT_EQ(table(), text(R"(
        3 | Part | Three | 10
        1 | Part | One   | 10
        2 | Part | Two   | 9)"));
}

TEST_F(StructureSort, OfLineNumbersGoesByNumber) {
    open(R"(
        A
        B
        C
        D
        E
        F
        G
        H
        I
        J)");
    showStructure();
    sortBy("positionOcc_0", "Descending");

    sortBy("positionOcc_0", "Ascending");

    EXPECT_EQ(table(), text(R"(
        1  | Part | A
        2  | Part | B
        3  | Part | C
        4  | Part | D
        5  | Part | E
        6  | Part | F
        7  | Part | G
        8  | Part | H
        9  | Part | I
        10 | Part | J)"));
}

TEST_F(StructureSort, ReadsTheNumberThatATextBeginsWith) {
    configure({"QEMA_Place;Place"});
    open(R"(
        One  property=Place/1.2.2
        Two  property=Place/1.2.1
        Three  property=Place/1.1.9)");
    showStructure();

    sortBy("QEMA_Place_0", "Ascending");

    // Both begin with 1.2, and stay apart by their ids alone.
    EXPECT_EQ(table(), text(R"(
        3 | Part | Three | 1.1.9
        1 | Part | One   | 1.2.2
        2 | Part | Two   | 1.2.1)"));
}

TEST_F(StructureSort, OfZerosAloneGoesByText) {
    configure({"QEMA_Size;Size"});
    open(R"(
        One  property=Size/0.0
        Two  property=Size/0
        Three  property="Size/ 0")");
    showStructure();

    sortBy("QEMA_Size_0", "Ascending");

    EXPECT_EQ(table(), text(R"(
        3 | Part | Three |  0
        2 | Part | Two   | 0
        1 | Part | One   | 0.0)"));
}

TEST_F(StructureSort, OfATextThatIsNoNumberThrowsAndMovesNothing) {
    configure({"QEMA_Colour;Colour"});
    open(R"(
        One  property=Colour/red
        Two  property=Colour/blue)");
    showStructure();

    sortBy("QEMA_Colour_0", "Ascending");

    EXPECT_EQ(uncaughtExceptions(),
              "std::invalid_argument: invalid stod argument in OnInputChanged of QEMA_Colour_0");
    EXPECT_EQ(table(), text(R"(
        1 | Part | One | red
        2 | Part | Two | blue)"));
}

TEST_F(StructureSort, OfTheStructureGoesByTheChosenName) {
    open(R"(
        One  structure=Produce
        Two  structure=Buy
        Three  structure=AsPart)");
    showStructure();

    sortBy("bomStructure_0", "Ascending");

    EXPECT_EQ(table(), text(R"(
        3 | Part | Three
        2 | Part | Two
        1 | Part | One)"));
}

TEST_F(StructureSort, OfAStructureThatIsNotChosenThrowsAndMovesNothing) {
    open(R"(
        Two
        One  property=Rank/1)");
    showStructure();

    sortBy("bomStructure_0", "Ascending");

    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in OnInputChanged of bomStructure_0");
    EXPECT_EQ(table(), text(R"(
        1 | Part | Two
        2 | Part | One)"));
}

TEST_F(StructureSort, OfTheGraphColumnMovesNothing) {
    open(R"(
        B
        A)");
    showStructure();
    // All cells of the column are empty; a sort by their ids alone would turn the rows round.
    session->choose("QEMA_droDown_AscDesc", "Descending");
    faults.forgetExceptions();

    // The user cannot click there: the column has no width.
    host::reportChange(session->input("graphPositionOcc_0"));

    EXPECT_EQ(table(), text(R"(
        1 | Part | B
        2 | Part | A)"));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(StructureSort, OfTheIconColumnMovesNothing) {
    open(R"(
        A
        B)");
    showStructure();

    tarnix::sortStructureTable(shownTableInput(), session->input("colapseRow_0"), "Descending");

    EXPECT_EQ(table(), text(R"(
        1 | Part | A
        2 | Part | B)"));
}

TEST_F(StructureSort, OfTheIconColumnTakesTheFoldingRoute) {
    open("");
    showStructure();

    sortBy("colapseRow_0", "Descending");

    // Sorting a table without rows would have thrown.
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(StructureSort, WaitsForAnOrderToBeChosen) {
    open(R"(
        B
        A)");
    showStructure();

    session->click("partNumberOcc_0");

    EXPECT_EQ(table(), text(R"(
        1 | Part | B
        2 | Part | A)"));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(StructureSort, WaitsForAClickOnAHeader) {
    open(R"(
        B
        A)");
    showStructure();

    session->choose("QEMA_droDown_AscDesc", "Ascending");

    EXPECT_EQ(table(), text(R"(
        1 | Part | B
        2 | Part | A)"));
}

TEST_F(StructureSort, LeavesTheModelTableAlone) {
    configure({"QEMA_Mass;Mass"});
    open(R"(
        B  measures=10:200
        A  measures=10:100)");
    showStructure();
    session->choose("QEMA_droDown_AscDesc", "Ascending");
    faults.forgetExceptions();
    showModel();

    session->click("QEMA_Mass_0");

    EXPECT_EQ(table(), text(R"(
        1 | Part | B | 1.570
        2 | Part | A | 0.785)"));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(StructureSort, IsNotAskedForByAHeaderOfTheModelTable) {
    configure({"QEMA_Mass;Mass"});
    open(R"(
        B  measures=10:200
        A  measures=10:100)");
    showStructure();
    session->choose("QEMA_droDown_AscDesc", "Ascending");
    showModel();
    session->click("QEMA_Mass_0");

    showStructure();

    // The header of that id in this table would have brought the lighter row to the front.
    EXPECT_EQ(table(), text(R"(
        1 | Part | B | 1.570
        2 | Part | A | 0.785)"));
}

TEST_F(StructureSort, TakesHiddenRowsAlongAndKeepsThemHidden) {
    open(R"(
        C
        B
        A)");
    showStructure();
    hideRow(2);

    sortBy("partNumberOcc_0", "Ascending");

    EXPECT_EQ(table(), text(R"(
        3 | Part | A
        1 | Part | C)"));
    EXPECT_FALSE(shownTableInput()->getInputAtPosition(2, 3)->isVisible());
}

TEST_F(StructureSort, OfOneRowMovesItAfterTheTablesRows) {
    open("Only");
    showStructure();
    ASSERT_TRUE(shownTableInput()->getInputAtPosition(1, 5));

    sortBy("partNumberOcc_0", "Ascending");

    // The cells of columns without a property stay where they are, and go with the row that was
    // closed up.
    EXPECT_FALSE(shownTableInput()->getInputAtPosition(1, 5));
    EXPECT_EQ(shownTableInput()->rowCount(), 2);
    EXPECT_EQ(table(), "1 | Part | Only");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(StructureSort, OfATableWithoutRowsThrows) {
    open("");
    showStructure();

    sortBy("partNumberOcc_0", "Ascending");

    EXPECT_EQ(uncaughtExceptions(),
              "std::out_of_range: invalid vector subscript in OnInputChanged of partNumberOcc_0");
}

TEST_F(StructureSort, LetsTheNextChangeOfTabWork) {
    open(R"(
        B  measures=10:100
        A  measures=10:200)");
    showStructure();
    sortBy("partNumberOcc_0", "Ascending");
    showModel();

    showStructure();

    EXPECT_EQ(uncaughtExceptions(), "");
    EXPECT_EQ(value("idAllMass"), "2.355");
    EXPECT_EQ(table(), text(R"(
        2 | Part | A
        1 | Part | B)"));
}

TEST_F(StructureSort, ShowsInTheExport) {
    open(R"(
        B
        A)");
    showStructure();
    sortBy("partNumberOcc_0", "Ascending");

    exportBom();

    EXPECT_LT(csv().find(";A;"), csv().find(";B;"));
}

}  // namespace
}  // namespace test_support
