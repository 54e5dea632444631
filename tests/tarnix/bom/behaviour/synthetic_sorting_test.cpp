#include "tarnix/bom/behaviour/structure_sort.h"

#include "tests/tarnix/bom/behaviour/synthetic_table.h"

#include <gtest/gtest.h>

/// Sorting by a column that holds kinds of input that have no text to sort by.
namespace test_support {
namespace {

using namespace adsk::core;
using tarnix::sortStructureTable;

class SyntheticSorting : public SyntheticTable {
protected:
    /// Adds a row whose last cell, in the column that is sorted by, is `cell`.
    void addRow(const Ptr<CommandInputs>& inputs, int column, const Ptr<CommandInput>& cell) {
        const int row = rows->rowCount();
        for (int place = 0; place < column; ++place) {
            rows->addCommandInput(inputs->addStringValueInput("other_1", ""), row, place);
        }
        rows->addCommandInput(cell, row, column);
    }

    /// The ids of a column's cells from the first row to the last, with spaces between.
    [[nodiscard]] std::string ids(int column) const {
        std::string all;
        for (int row = 0; row < rows->rowCount(); ++row) {
            all += (row == 0 ? "" : " ") + rows->getInputAtPosition(row, column)->id();
        }
        return all;
    }
};

TEST_F(SyntheticSorting, ByATextLeavesARowWithATextBoxWhereItIs) {
    constexpr int kTextColumn = 3;
    Ptr<CommandInput> header;
    show("synthetic", kTextColumn, [&](const Ptr<CommandInputs>& inputs) {
        header = inputs->addBoolValueInput("part_0", "", false);
        addRow(inputs, kTextColumn, inputs->addStringValueInput("part_1", "", "c"));
        addRow(inputs, kTextColumn, inputs->addTextBoxCommandInput("part_2", "", "a", 1, true));
        addRow(inputs, kTextColumn, inputs->addStringValueInput("part_3", "", "b"));
    });

    sortStructureTable(rows, header, "Descending");

    // The sorted rows went after the one that was dropped from the sort.
    EXPECT_EQ(ids(kTextColumn), "part_2 part_1 part_3");
}

TEST_F(SyntheticSorting, ByANumberLeavesARowWithAnImageWhereItIs) {
    constexpr int kNumberColumn = 5;
    Ptr<CommandInput> header;
    show("synthetic", kNumberColumn, [&](const Ptr<CommandInputs>& inputs) {
        header = inputs->addBoolValueInput("size_0", "", false);
        addRow(inputs, kNumberColumn, inputs->addStringValueInput("size_1", "", "9"));
        addRow(inputs, kNumberColumn, inputs->addStringValueInput("size_2", "", "10"));
        addRow(inputs, kNumberColumn, inputs->addImageCommandInput("size_3", "", "10.png"));
    });

    sortStructureTable(rows, header, "Descending");

    EXPECT_EQ(ids(kNumberColumn), "size_3 size_2 size_1");
}

TEST_F(SyntheticSorting, ByAColumnOfImagesAloneMovesNothing) {
    constexpr int kTextColumn = 4;
    Ptr<CommandInput> header;
    show("synthetic", kTextColumn, [&](const Ptr<CommandInputs>& inputs) {
        header = inputs->addBoolValueInput("part_0", "", false);
        addRow(inputs, kTextColumn, inputs->addImageCommandInput("part_1", "", "a.png"));
        addRow(inputs, kTextColumn, inputs->addImageCommandInput("part_2", "", "b.png"));
    });

    sortStructureTable(rows, header, "Descending");

    EXPECT_EQ(ids(kTextColumn), "part_1 part_2");
}

}  // namespace
}  // namespace test_support
