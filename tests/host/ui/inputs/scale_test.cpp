#include "tests/host/ui/host_test.h"

#include "host/ui/inputs/bool_value_command_input_object.h"
#include "host/ui/inputs/drop_down_command_input_object.h"
#include "host/ui/inputs/string_value_command_input_object.h"

#include <random>

namespace host {
namespace {

using namespace adsk::core;

/// Dialogs of a hundred thousand rows: an operation of quadratic cost would not end.
class Scale : public HostTest {
protected:
    static constexpr int kRows = 100000;

    Scale() {
        const Ptr<CommandInputs> inputs = openWith([](const Ptr<CommandInputs>& all) {
            all->addTabCommandInput("tab", "")->children()->addTableCommandInput("table", "", 1,
                                                                                 "");
        });
        table = inputs->itemById("table");
        cells = table->commandInputs();
        for (int row = 0; row < kRows; ++row) {
            table->addCommandInput(cells->addStringValueInput("c_" + std::to_string(row), ""), row,
                                   0);
            table->addCommandInput(cells->addStringValueInput("", ""), row, 1);
        }
    }

    std::string idAt(int row) { return table->getInputAtPosition(row, 0)->id(); }

    Ptr<TableCommandInput> table;
    Ptr<CommandInputs> cells;
};

TEST_F(Scale, RowsAreMovedOneByOneIntoTheReverseOrder) {
    for (int row = kRows - 1; row >= 0; --row) {
        const int end = table->rowCount();
        const Ptr<CommandInput> second = table->getInputAtPosition(row, 1);
        table->addCommandInput(cells->itemById("c_" + std::to_string(row)), end, 0);
        table->addCommandInput(second, end, 1);
    }

    EXPECT_EQ(table->rowCount(), kRows);
    EXPECT_EQ(idAt(0), "c_99999");
    EXPECT_EQ(idAt(kRows - 1), "c_0");
}

TEST_F(Scale, RowsAreDeletedFromTheFront) {
    for (int row = 0; row < kRows - 1; ++row) {
        table->deleteRow(0);
    }

    EXPECT_EQ(table->rowCount(), 1);
    EXPECT_EQ(idAt(0), "c_99999");
    EXPECT_EQ(cells->count(), 3U);
    EXPECT_FALSE(cells->itemById("c_0"));
    EXPECT_TRUE(cells->itemById(""));
}

TEST_F(Scale, RowsAreDeletedAtRandom) {
    std::mt19937 random(7);
    for (int left = kRows; left > 10; --left) {
        table->deleteRow(static_cast<int>(random() % static_cast<unsigned>(left)));
    }

    EXPECT_EQ(table->rowCount(), 10);
    EXPECT_EQ(cells->count(), 21U);
    EXPECT_EQ(shownRows(table).size(), 10U);
}

TEST(InputSize, StaysSmallEnoughForMillions) {
    EXPECT_LE(sizeof(ui::StringValueCommandInputObject), 104U);
    EXPECT_LE(sizeof(ui::BoolValueCommandInputObject), 120U);
    EXPECT_LE(sizeof(ui::ListState::Entry), 24U);
    EXPECT_LE(sizeof(ui::DropDownCommandInputObject), 152U);
}

}  // namespace
}  // namespace host
