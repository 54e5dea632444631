#include "tarnix/bom/behaviour/table_rows.h"

#include "tarnix/text/positions.h"

namespace tarnix {

using adsk::core::BoolValueCommandInput;
using adsk::core::CommandInput;
using adsk::core::Ptr;
using adsk::core::TableCommandInput;
using adsk::core::TextBoxCommandInput;

std::string positionOfRow(const Ptr<TableCommandInput>& table, int row) {
    const Ptr<CommandInput> cell = table->getInputAtPosition(row, 1);
    if (const Ptr<TextBoxCommandInput> textBox = cell) {
        return stripPositionPrefix(textBox->text());
    }
    const Ptr<BoolValueCommandInput> button = cell;
    return stripPositionPrefix(button->name());
}

void hideRow(const Ptr<TableCommandInput>& table, int row) {
    const int lastColumn = table->numberOfColumns();
    for (int column = 0; column <= lastColumn; ++column) {
        table->getInputAtPosition(row, column)->isVisible(false);
    }
}

}  // namespace tarnix
