#include "tests/host/ui/host_test.h"

namespace host {
namespace {

using namespace adsk::core;

/// A table in a tab, drawn as lines of "column:id".
class Table : public HostTest {
protected:
    Table() { build(3, "1:1:1:1"); }

    void build(int columns, const std::string& ratio) {
        startHost();
        const Ptr<CommandInputs> inputs = openWith([&](const Ptr<CommandInputs>& all) {
            const Ptr<CommandInputs> tab = all->addTabCommandInput("tab", "")->children();
            tab->addTableCommandInput("table", "Caption", columns, ratio);
        });
        table = inputs->itemById("table");
    }

    Ptr<CommandInput> make(const std::string& id) {
        return table->commandInputs()->addStringValueInput(id, "");
    }

    bool place(const std::string& id, int row, int column) {
        Ptr<CommandInput> input = table->commandInputs()->itemById(id);
        return table->addCommandInput(input ? input : make(id), row, column);
    }

    /// Three rows, a to c, of two cells each.
    void fill() {
        int row = 0;
        for (const char* name : {"a", "b", "c"}) {
            place(name + std::string("0"), row, 0);
            place(name + std::string("1"), row, 1);
            ++row;
        }
    }

    /// The ids of the first columns, rows divided by "|".
    std::string text(int columns = 2) {
        std::string all;
        for (int row = 0; row < table->rowCount(); ++row) {
            all += row == 0 ? "" : "|";
            for (int column = 0; column < columns; ++column) {
                const Ptr<CommandInput> cell = table->getInputAtPosition(row, column);
                all += (column == 0 ? "" : " ") + (cell ? cell->id() : "-");
            }
        }
        return all;
    }

    Ptr<TableCommandInput> table;
};

TEST_F(Table, GrowsToThePlaceOfAnInput) {
    EXPECT_EQ(table->rowCount(), 0);

    EXPECT_TRUE(place("a", 0, 0));
    EXPECT_TRUE(place("b", 1, 2));

    EXPECT_EQ(text(3), "a - -|- - b");
    EXPECT_EQ(table->rowCount(), 2);
}

TEST_F(Table, ReturnsNullForEmptyPlacesAndForPlacesOutside) {
    fill();

    EXPECT_FALSE(table->getInputAtPosition(0, 2));
    EXPECT_FALSE(table->getInputAtPosition(3, 0));
    EXPECT_FALSE(table->getInputAtPosition(-1, 0));
    EXPECT_FALSE(table->getInputAtPosition(0, -1));
    EXPECT_FALSE(table->getInputAtPosition(0, 5000));
}

TEST_F(Table, CountsTheRowsThatHoldInputs) {
    place("far", 10, 0);

    EXPECT_EQ(table->rowCount(), 1);
    EXPECT_EQ(table->getInputAtPosition(10, 0)->id(), "far");
}

TEST_F(Table, HasTheNumberOfColumnsItWasMadeWith) {
    EXPECT_EQ(table->numberOfColumns(), 3);

    EXPECT_TRUE(table->numberOfColumns(7));

    EXPECT_EQ(table->numberOfColumns(), 3);
}

TEST_F(Table, ReadsBackItsRatioAndLimits) {
    EXPECT_EQ(table->columnRatio(), "1:1:1:1");
    EXPECT_EQ(table->maximumVisibleRows(), 4);
    EXPECT_EQ(table->minimumVisibleRows(), 2);

    EXPECT_TRUE(table->columnRatio("2:0:8") && table->maximumVisibleRows(1000));

    EXPECT_EQ(table->columnRatio(), "2:0:8");
    EXPECT_EQ(table->maximumVisibleRows(), 1000);
}

TEST_F(Table, ShowsTheColumnsWithAWidthFromZeroToItsNumberOfColumns) {
    table->columnRatio("2:0:8");
    EXPECT_EQ(shownColumns(table), (std::vector<int>{0, 2, 3}));

    table->columnRatio("0:1:0:1:5:5");
    EXPECT_EQ(shownColumns(table), (std::vector<int>{1, 3}));
}

TEST_F(Table, ShowsARowWithAVisibleCellInAShownColumn) {
    fill();
    table->columnRatio("1:0:1:1");

    table->getInputAtPosition(1, 0)->isVisible(false);
    EXPECT_EQ(shownRows(table), (std::vector<int>{0, 2}));

    place("late", 1, 2);
    EXPECT_EQ(shownRows(table), (std::vector<int>{0, 1, 2}));
}

TEST_F(Table, ACellAfterTheLastColumnShowsNoRow) {
    fill();
    place("slot", 0, 4);
    table->getInputAtPosition(0, 0)->isVisible(false);
    table->getInputAtPosition(0, 1)->isVisible(false);

    EXPECT_EQ(shownRows(table), (std::vector<int>{1, 2}));
}

TEST_F(Table, AnInputThatIsAddedAtAnotherPlaceMoves) {
    fill();

    place("a0", 0, 3);

    EXPECT_EQ(text(4), "- a1 - a0|b0 b1 - -|c0 c1 - -");
}

TEST_F(Table, ARowThatLosesItsLastCellIsRemoved) {
    fill();

    place("a0", 3, 0);
    EXPECT_EQ(text(), "- a1|b0 b1|c0 c1|a0 -");

    place("a1", 3, 1);
    EXPECT_EQ(text(), "b0 b1|c0 c1|a0 a1");
}

TEST_F(Table, ALastRowCanBeMovedAfterItself) {
    fill();

    place("c0", 3, 0);
    place("c1", 3, 1);

    EXPECT_EQ(text(), "a0 a1|b0 b1|c0 c1");
}

TEST_F(Table, CellsAfterTheLastColumnLeaveTheTableWithTheirRow) {
    fill();
    place("slot", 0, 4);

    place("a0", 3, 0);
    place("a1", 3, 1);

    EXPECT_FALSE(table->getInputAtPosition(0, 4));
    const Ptr<CommandInput> slot = table->commandInputs()->itemById("slot");
    ASSERT_TRUE(slot);
    EXPECT_EQ(slot->parentCommandInput()->id(), "tab");
}

TEST_F(Table, ACellAfterTheLastColumnMakesNoRow) {
    place("slot", 0, 4);

    EXPECT_EQ(table->rowCount(), 0);
    EXPECT_TRUE(table->getInputAtPosition(0, 4));
}

TEST_F(Table, AReplacedCellLeavesTheTable) {
    fill();

    place("new", 0, 0);

    EXPECT_EQ(text(), "new a1|b0 b1|c0 c1");
    EXPECT_TRUE(table->commandInputs()->itemById("a0"));
}

TEST_F(Table, AnInputAddedAtItsOwnPlaceStays) {
    fill();

    EXPECT_TRUE(place("b0", 1, 0));

    EXPECT_EQ(text(), "a0 a1|b0 b1|c0 c1");
}

TEST_F(Table, ReturnsThePositionOfAnInput) {
    fill();
    table->addCommandInput(make("wide"), 2, 2, 0, 1);
    int row = -1;
    int column = -1;
    int rowSpan = -1;
    int columnSpan = -1;

    EXPECT_TRUE(
        table->getPosition(table->getInputAtPosition(2, 2), row, column, rowSpan, columnSpan));

    EXPECT_EQ((std::vector<int>{row, column, rowSpan, columnSpan}), (std::vector<int>{2, 2, 0, 1}));
    EXPECT_FALSE(table->getPosition(make("loose"), row, column, rowSpan, columnSpan));
}

TEST_F(Table, RemovingAnInputLeavesItInItsCollection) {
    fill();

    EXPECT_TRUE(table->removeInput(0, 0));
    EXPECT_TRUE(table->removeInput(0, 1));
    EXPECT_FALSE(table->removeInput(7, 0));

    EXPECT_EQ(text(), "b0 b1|c0 c1");
    EXPECT_TRUE(table->commandInputs()->itemById("a0"));
}

TEST_F(Table, DeletingARowDeletesItsInputsAndMovesUpTheRest) {
    fill();
    const Ptr<CommandInput> cell = table->getInputAtPosition(1, 0);

    EXPECT_TRUE(table->deleteRow(1));

    EXPECT_EQ(text(), "a0 a1|c0 c1");
    EXPECT_FALSE(cell->isValid());
    EXPECT_FALSE(table->commandInputs()->itemById("b1"));
}

TEST_F(Table, DeletingARowAfterTheLastDeletesTheLast) {
    fill();

    EXPECT_TRUE(table->deleteRow(99));

    EXPECT_EQ(text(), "a0 a1|b0 b1");
}

TEST_F(Table, DeletingANegativeRowFails) {
    fill();

    EXPECT_FALSE(table->deleteRow(-1));
    EXPECT_EQ(table->rowCount(), 3);
}

TEST_F(Table, ClearDeletesAllRows) {
    fill();

    EXPECT_TRUE(table->clear());

    EXPECT_EQ(table->rowCount(), 0);
    EXPECT_EQ(table->commandInputs()->count(), 1U);
}

// TableCommandInput_clear: the inputs of the toolbar go as well.
TEST_F(Table, ClearDeletesTheToolbar) {
    fill();
    const Ptr<CommandInput> tool = make("tool");
    table->addToolbarCommandInput(tool);

    EXPECT_TRUE(table->clear());

    EXPECT_TRUE(toolbarOf(table).empty());
    EXPECT_FALSE(tool->isValid());
    EXPECT_EQ(table->commandInputs()->count(), 1U);
}

// TableCommandInput_getInputAtPosition: a cell that spans columns is at each of them.
TEST_F(Table, ASpanningCellIsReturnedFromEachPlaceThatItCovers) {
    const Ptr<CommandInput> wide = make("wide");
    table->addCommandInput(wide, 0, 1, 0, 1);

    EXPECT_EQ(table->getInputAtPosition(0, 0), nullptr);
    EXPECT_EQ(table->getInputAtPosition(0, 1), wide);
    EXPECT_EQ(table->getInputAtPosition(0, 2), wide);
    EXPECT_EQ(table->getInputAtPosition(0, 3), nullptr);
    EXPECT_EQ(table->getInputAtPosition(1, 2), nullptr);
}

TEST_F(Table, HasNoSelectedRowAtFirst) {
    fill();

    EXPECT_EQ(table->selectedRow(), -1);
}

TEST_F(Table, AClickOnACellSelectsItsRow) {
    fill();

    click(table->getInputAtPosition(2, 1));
    EXPECT_EQ(table->selectedRow(), 2);

    typeText(table->getInputAtPosition(1, 0), "x");
    EXPECT_EQ(table->selectedRow(), 1);
}

TEST_F(Table, TheSelectionEndsWithItsRow) {
    fill();
    table->selectedRow(2);

    table->deleteRow(0);
    EXPECT_EQ(table->selectedRow(), 1);

    table->deleteRow(1);
    EXPECT_EQ(table->selectedRow(), -1);
}

TEST_F(Table, ARowThatDoesNotExistCannotBeSelected) {
    fill();

    EXPECT_FALSE(table->selectedRow(3));
    EXPECT_EQ(misuseOf([this] { selectRow(table, 3); }),
              "cannot select row 3 of \"table\": the rows that show are 0 to 2");
    EXPECT_TRUE(table->selectedRow(-1));
}

TEST_F(Table, ToolbarInputsAreBelowItInOrder) {
    table->addToolbarCommandInput(make("first"));
    table->addToolbarCommandInput(make("second"));

    ASSERT_EQ(toolbarOf(table).size(), 2U);
    EXPECT_EQ(toolbarOf(table)[0]->id(), "first");
    EXPECT_EQ(toolbarOf(table)[1]->parentCommandInput(), table);
    EXPECT_EQ(table->rowCount(), 0);
}

TEST_F(Table, AToolbarInputThatIsAddedAsACellLeavesTheToolbar) {
    table->addToolbarCommandInput(make("tool"));

    place("tool", 0, 0);

    EXPECT_EQ(toolbarOf(table).size(), 0U);
    EXPECT_EQ(text(1), "tool");
}

TEST_F(Table, TakesNoSelectionsButtonRowsTabsGroupsOrTables) {
    const Ptr<CommandInputs> inputs = table->commandInputs();

    EXPECT_FALSE(table->addCommandInput(inputs->addSelectionInput("pick", "", ""), 0, 0));
    EXPECT_FALSE(table->addCommandInput(inputs->addButtonRowCommandInput("row", "", true), 0, 0));
    EXPECT_FALSE(table->addCommandInput(inputs->addGroupCommandInput("group", ""), 0, 0));
    EXPECT_FALSE(table->addCommandInput(table, 0, 0));
    EXPECT_FALSE(table->addCommandInput(nullptr, 0, 0));
    EXPECT_EQ(misuses().front(), (Misuse{.operation = "TableCommandInput::addCommandInput",
                                         .text = "an input like \"pick\" cannot be in a table"}));
}

TEST_F(Table, TakesNoCellOverSeveralRowsAndNoInvalidPlace) {
    EXPECT_FALSE(table->addCommandInput(make("tall"), 0, 0, 1, 0));
    EXPECT_FALSE(place("left", 0, -1));
    EXPECT_FALSE(place("above", -1, 0));
    EXPECT_FALSE(place("lost", 2000000000, 0));
    EXPECT_EQ(table->rowCount(), 0);
    EXPECT_EQ(misused(),
              "TableCommandInput::addCommandInput TableCommandInput::addCommandInput "
              "TableCommandInput::addCommandInput TableCommandInput::addCommandInput");
}

}  // namespace
}  // namespace host
