#include "tarnix/bom/behaviour/column_choice.h"

#include "tarnix/bom/behaviour/open_dialog.h"
#include "tarnix/bom/behaviour/row_numbering.h"
#include "tarnix/bom/model/columns.h"
#include "tarnix/bom/tabs/table_layout.h"
#include "tarnix/settings/settings_document.h"
#include "tarnix/text/checked.h"
#include "tarnix/text/ids.h"

#include <cstddef>
#include <string>

namespace tarnix {

using namespace adsk::core;

namespace {

/// The input that `prefix` and a number `distance` after that of the drop-down name.
Ptr<StringValueCommandInput> fieldOf(const Ptr<CommandInputs>& inputs, const char* prefix,
                                     int number, int distance) {
    return inputs->itemById(prefix + std::to_string(static_cast<long long>(number) + distance));
}

/// Marks the column of the drop-down with this number as used under the property's name, or as free
/// when a heading was chosen.
void chooseProperty(const Ptr<CommandInputs>& inputs, const Ptr<DropDownCommandInput>& dropDown,
                    int number) {
    const Ptr<StringValueCommandInput> state = fieldOf(inputs, kStateIdPrefix, number, 1);
    const Ptr<StringValueCommandInput> caption =
        fieldOf(inputs, kCaptionIdPrefix, number, kFirstFreeColumn + 1);
    const Ptr<ListItems> items = dropDown->listItems();
    const Ptr<ListItem> selected = firstSelected(items);
    if (!selected) {
        return;
    }
    const std::string name = selected->name();
    if (isHeading(name)) {
        state->value("not use");
        caption->value("");
        items->item(0)->isSelected(true);
    } else {
        state->value(kUsedState);
        caption->value(name);
    }
}

/// Takes the row out of sight when "Reference" was chosen for it on the tab "Structure".
void chooseStructure(const Ptr<CommandInputs>& inputs, const Ptr<DropDownCommandInput>& dropDown,
                     int number, const std::vector<BomRow>& rows) {
    const Ptr<TabCommandInput> structureTab = inputs->itemById(kStructureRows.tabId);
    const Ptr<ListItems> items = dropDown->listItems();
    const std::size_t count = items->count();
    for (std::size_t i = 0; i < count; ++i) {
        const Ptr<ListItem> item = items->item(i);
        static_cast<void>(at(rows, static_cast<std::size_t>(number) - 1));
        if (item->isSelected() && item->name() == "Reference" && structureTab->isActive()) {
            const Ptr<TableCommandInput> table = inputs->itemById(kStructureRows.tableId);
            // The id's number counts the rows of the list; here it serves as a table row. The two
            // differ after a merged or dropped row, and then it is another row that goes.
            hideRowWithChildren(table, number);
            renumberVisibleRows(table);
        }
    }
}

}  // namespace

void onBomSelectionChange(Ptr<InputChangedEventArgs> eventArgs, const std::vector<BomRow>& rows) {
    const Ptr<CommandInput> input = eventArgs->input();
    if (!input) {
        return;
    }
    const Ptr<CommandInputs> inputs = dialogInputsOf(input);
    if (!inputs) {
        return;
    }
    const std::string id = input->id();
    const int number = idNumber(id);
    const Ptr<DropDownCommandInput> dropDown = inputs->itemById(id);
    if (idBase(id) == kPropertyIdBase) {
        chooseProperty(inputs, dropDown, number);
    } else if (dropDown) {
        chooseStructure(inputs, dropDown, number, rows);
    }
}

void hideRowWithChildren(Ptr<TableCommandInput> table, int row) {
    const std::string position = positionOfRow(table, row);
    hideRow(table, row);
    const int rowCount = table->rowCount();
    for (int later = row + 1; later < rowCount; ++later) {
        const std::string next = positionOfRow(table, later);
        if (next.size() > position.size() && next.starts_with(position)) {
            hideRow(table, later);
        }
    }
}

void saveBomConfiguration(Ptr<CommandInput> input) {
    replaceCategoryItems("bomItems", [&input] { return readBomConfigTable(input); });
}

std::vector<std::string> readBomConfigTable(Ptr<CommandInput> input) {
    std::vector<std::string> items;
    const Ptr<TableCommandInput> table = input->commandInputs()->itemById(kConfigTableId);
    if (!table) {
        return items;
    }
    const int columns = table->numberOfColumns();
    for (int column = kFirstFreeColumn; column < columns; ++column) {
        const Ptr<DropDownCommandInput> dropDown = table->getInputAtPosition(kPropertyRow, column);
        const Ptr<StringValueCommandInput> caption = table->getInputAtPosition(kCaptionRow, column);
        const Ptr<ListItem> selected = dropDown ? firstSelected(dropDown->listItems()) : nullptr;
        if (!selected) {
            continue;
        }
        const std::string name = selected->name();
        if (name != kSelectOne) {
            items.push_back(columnItem(name, caption->value()));
        }
    }
    return items;
}

}  // namespace tarnix
