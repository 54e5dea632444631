#include "tarnix/bom/behaviour/structure_sort.h"

#include "tests/support/thrown.h"
#include "tests/tarnix/bom/behaviour/synthetic_table.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// Sorting by a column that holds kinds of input that have no text to sort by.
namespace test_support {
namespace {

using namespace adsk::core;

enum class Kind { Text, TextBox, Image };

struct Cell {
    Kind kind;
    const char* content;
};

class SyntheticSorting : public SyntheticTable {
protected:
    /// Shows rows whose last cells are these, "cell_1" and so on, and sorts them by that column.
    void sortDescending(int column, const std::vector<Cell>& cells) {
        Ptr<CommandInput> header;
        show("synthetic", column, [&](const Ptr<CommandInputs>& inputs) {
            header = inputs->addBoolValueInput("cell_0", "", false);
            for (const Cell& cell : cells) {
                addRow(inputs, column, cell);
            }
        });
        tarnix::sortStructureTable(rows, header, "Descending");
    }

    /// The ids of a column's cells from the first row to the last, with spaces between.
    [[nodiscard]] std::string ids(int column) const {
        std::string all;
        for (int row = 0; row < rows->rowCount(); ++row) {
            all += (row == 0 ? "" : " ") + rows->getInputAtPosition(row, column)->id();
        }
        return all;
    }

private:
    void addRow(const Ptr<CommandInputs>& inputs, int column, const Cell& cell) {
        const int row = rows->rowCount();
        for (int place = 0; place < column; ++place) {
            rows->addCommandInput(inputs->addStringValueInput("other_1", ""), row, place);
        }
        rows->addCommandInput(add(inputs, "cell_" + std::to_string(row + 1), cell), row, column);
    }

    static Ptr<CommandInput> add(const Ptr<CommandInputs>& inputs, const std::string& id,
                                 const Cell& cell) {
        switch (cell.kind) {
            case Kind::Text:
                return inputs->addStringValueInput(id, "", cell.content);
            case Kind::TextBox:
                return inputs->addTextBoxCommandInput(id, "", cell.content, 1, true);
            case Kind::Image:
                return inputs->addImageCommandInput(id, "", cell.content);
        }
        return nullptr;
    }
};

TEST_F(SyntheticSorting, ByATextLeavesARowWithATextBoxWhereItIs) {
    constexpr int kTextColumn = 3;

    sortDescending(kTextColumn, {{.kind = Kind::Text, .content = "c"},
                                 {.kind = Kind::TextBox, .content = "a"},
                                 {.kind = Kind::Text, .content = "b"}});

    // The sorted rows went after the one that was dropped from the sort.
    EXPECT_EQ(ids(kTextColumn), "cell_2 cell_1 cell_3");
}

TEST_F(SyntheticSorting, ByANumberLeavesARowWithAnImageWhereItIs) {
    constexpr int kNumberColumn = 5;

    sortDescending(kNumberColumn, {{.kind = Kind::Text, .content = "9"},
                                   {.kind = Kind::Text, .content = "10"},
                                   {.kind = Kind::Image, .content = "10.png"}});

    EXPECT_EQ(ids(kNumberColumn), "cell_3 cell_2 cell_1");
}

TEST_F(SyntheticSorting, ByAPositionThatIsNoNumberThrowsAndMovesNothing) {
    constexpr int kPositionColumn = 1;

    EXPECT_EQ(thrownBy([&] {
                  sortDescending(kPositionColumn, {{.kind = Kind::Text, .content = "2"},
                                                   {.kind = Kind::Text, .content = "first"},
                                                   {.kind = Kind::Text, .content = "3"}});
              }),
              "invalid_argument: invalid stod argument");
    EXPECT_EQ(ids(kPositionColumn), "cell_1 cell_2 cell_3");
}

TEST_F(SyntheticSorting, ByAColumnOfImagesAloneMovesNothing) {
    constexpr int kTextColumn = 4;

    sortDescending(kTextColumn, {{.kind = Kind::Image, .content = "a.png"},
                                 {.kind = Kind::Image, .content = "b.png"}});

    EXPECT_EQ(ids(kTextColumn), "cell_1 cell_2");
}

}  // namespace
}  // namespace test_support
