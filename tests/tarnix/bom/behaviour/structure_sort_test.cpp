#include "tarnix/bom/behaviour/structure_sort.h"

#include "tests/tarnix/bom/behaviour/bom_dialog_fixture.h"

#include "host/session/input_actions.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace test_support {
namespace {

class StructureSort : public BomDialogTest {
protected:
    void sortBy(const std::string& headerId, const std::string& order) {
        session->choose("QEMA_droDown_AscDesc", order);
        faults.forgetExceptions();
        session->click(headerId);
    }

    /// Shows the tab with a row for each of these, which are what the outline says of it.
    void showRows(const std::vector<std::string>& rows) {
        std::string outline;
        for (const std::string& row : rows) {
            outline += "Part" + std::to_string(outline.size()) + "  " + row + "\n";
        }
        open(outline);
        showStructure();
    }

    /// The numbers of the shown lines: "1 2 3" before a sort.
    [[nodiscard]] std::string lines() const {
        std::istringstream rows(table());
        std::string numbers;
        for (std::string row; std::getline(rows, row);) {
            numbers += (numbers.empty() ? "" : " ") + row.substr(0, row.find(' '));
        }
        return numbers;
    }
};

TEST_F(StructureSort, OfPartNumbersGoesByBytes) {
    showRows({"number=B", "number=a", "number=A"});

    sortBy("partNumberOcc_0", "Ascending");

    EXPECT_EQ(lines(), "3 1 2");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(StructureSort, DescendingReversesTheRows) {
    showRows({"number=B", "number=a", "number=A"});

    sortBy("partNumberOcc_0", "Descending");

    EXPECT_EQ(lines(), "2 1 3");
}

TEST_F(StructureSort, KeepsTheIdsWithTheirCells) {
    showRows({"number=B", "number=A"});

    sortBy("partNumberOcc_0", "Ascending");

    EXPECT_EQ(shownTableInput()->getInputAtPosition(1, 3)->id(), "partNumberOcc_2");
    EXPECT_EQ(shownTableInput()->getInputAtPosition(2, 3)->id(), "partNumberOcc_1");
    EXPECT_EQ(shownTableInput()->rowCount(), 3);
}

TEST_F(StructureSort, OfEqualNumbersGoesByTheirIds) {
    configure({"QEMA_Size;Size"});
    showRows({"property=Size/10", "property=Size/9", "property=Size/10"});

    sortBy("QEMA_Size_0", "Ascending");
    EXPECT_EQ(lines(), "2 1 3");

    sortBy("QEMA_Size_0", "Descending");
    EXPECT_EQ(lines(), "3 1 2");
}

TEST_F(StructureSort, OfLineNumbersGoesByNumber) {
    showRows(std::vector<std::string>(10));
    sortBy("positionOcc_0", "Descending");

    sortBy("positionOcc_0", "Ascending");

    EXPECT_EQ(lines(), "1 2 3 4 5 6 7 8 9 10");
}

TEST_F(StructureSort, ReadsTheNumberThatATextBeginsWith) {
    configure({"QEMA_Place;Place"});
    showRows({"property=Place/1.2.2", "property=Place/1.2.1", "property=Place/1.1.9"});

    sortBy("QEMA_Place_0", "Ascending");

    // The first two both begin with 1.2, and stay apart by their ids alone.
    EXPECT_EQ(lines(), "3 1 2");
}

TEST_F(StructureSort, OfZerosAloneGoesByText) {
    configure({"QEMA_Size;Size"});
    showRows({"property=Size/0.0", "property=Size/0", "property=\"Size/ 0\""});

    sortBy("QEMA_Size_0", "Ascending");

    EXPECT_EQ(lines(), "3 2 1");
}

TEST_F(StructureSort, OfATextThatIsNoNumberThrowsAndMovesNothing) {
    configure({"QEMA_Colour;Colour"});
    showRows({"property=Colour/red", "property=Colour/blue"});

    sortBy("QEMA_Colour_0", "Ascending");

    EXPECT_EQ(uncaughtExceptions(),
              "std::invalid_argument: invalid stod argument in OnInputChanged of QEMA_Colour_0");
    EXPECT_EQ(lines(), "1 2");
}

TEST_F(StructureSort, OfANumberOutOfRangeThrowsAndMovesNothing) {
    configure({"QEMA_Size;Size"});
    open(R"(
        One  property=Size/2
        Two  property=Size/1e400)");
    showStructure();
    const std::string before = shownTable();

    sortBy("QEMA_Size_0", "Descending");

    EXPECT_EQ(uncaughtExceptions(),
              "std::out_of_range: stod argument out of range in OnInputChanged of QEMA_Size_0");
    EXPECT_EQ(shownTable(), before);
}

TEST_F(StructureSort, OfTheStructureGoesByTheChosenName) {
    showRows({"structure=Produce", "structure=Buy", "structure=AsPart"});

    sortBy("bomStructure_0", "Ascending");

    EXPECT_EQ(lines(), "3 2 1");
}

TEST_F(StructureSort, OfAStructureThatIsNotChosenThrowsAndMovesNothing) {
    showRows({"", "property=Rank/1"});

    sortBy("bomStructure_0", "Ascending");

    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in OnInputChanged of bomStructure_0");
    EXPECT_EQ(lines(), "1 2");
}

TEST_F(StructureSort, OfTheGraphColumnMovesNothing) {
    showRows({"number=B", "number=A"});
    // All cells of the column are empty; a sort by their ids alone would turn the rows round.
    session->choose("QEMA_droDown_AscDesc", "Descending");
    faults.forgetExceptions();

    // The user cannot click there: the column has no width.
    host::reportChange(session->input("graphPositionOcc_0"));

    EXPECT_EQ(lines(), "1 2");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(StructureSort, OfTheIconColumnMovesNothing) {
    showRows({"number=A", "number=B"});

    tarnix::sortStructureTable(shownTableInput(), session->input("colapseRow_0"), "Descending");

    EXPECT_EQ(lines(), "1 2");
}

TEST_F(StructureSort, OfTheIconColumnTakesTheFoldingRoute) {
    open("");
    showStructure();

    sortBy("colapseRow_0", "Descending");

    // Sorting a table without rows would have thrown.
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(StructureSort, WaitsForAnOrderToBeChosen) {
    showRows({"number=B", "number=A"});

    session->click("partNumberOcc_0");

    EXPECT_EQ(lines(), "1 2");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(StructureSort, WaitsForAClickOnAHeader) {
    showRows({"number=B", "number=A"});

    session->choose("QEMA_droDown_AscDesc", "Ascending");

    EXPECT_EQ(lines(), "1 2");
}

TEST_F(StructureSort, LeavesTheModelTableAlone) {
    configure({"QEMA_Mass;Mass"});
    showRows({"number=B measures=10:200", "number=A measures=10:100"});
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
    showRows({"number=B measures=10:200", "number=A measures=10:100"});
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
    showRows({"number=C", "number=B", "number=A"});
    hideRow(2);

    sortBy("partNumberOcc_0", "Ascending");

    EXPECT_EQ(lines(), "3 1");
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
    showRows({"number=B measures=10:100", "number=A measures=10:200"});
    sortBy("partNumberOcc_0", "Ascending");
    showModel();

    showStructure();

    EXPECT_EQ(uncaughtExceptions(), "");
    EXPECT_EQ(value("idAllMass"), "2.355");
    EXPECT_EQ(lines(), "2 1");
}

TEST_F(StructureSort, ShowsInTheExport) {
    showRows({"number=B", "number=A"});
    sortBy("partNumberOcc_0", "Ascending");

    exportBom();

    EXPECT_LT(csv().find(";A;"), csv().find(";B;"));
}

}  // namespace
}  // namespace test_support
