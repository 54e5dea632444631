#include "tarnix/bom/behaviour/column_choice.h"

#include "tarnix/bom/behaviour/list_choice.h"
#include "tarnix/bom/behaviour/row_numbering.h"
#include "tarnix/bom/behaviour/table_rows.h"
#include "tarnix/bom/tabs/bom_ids.h"
#include "tarnix/text/checked.h"
#include "tarnix/text/ids.h"

#include <cstddef>
#include <string>

namespace tarnix {

using adsk::core::CommandInput;
using adsk::core::CommandInputs;
using adsk::core::DropDownCommandInput;
using adsk::core::InputChangedEventArgs;
using adsk::core::ListItem;
using adsk::core::ListItems;
using adsk::core::Ptr;
using adsk::core::StringValueCommandInput;
using adsk::core::TabCommandInput;
using adsk::core::TableCommandInput;

namespace {

/// Whether an entry of the list only heads others, so that choosing it chooses no property.
bool isHeading(const std::string& name) {
    return name == "---Select One---" || name == "--- Model Property ---" ||
           name == "--- User Property ---";
}

/// The input that `base` and a number behind that of the drop-down name.
Ptr<StringValueCommandInput> fieldOf(const Ptr<CommandInputs>& inputs, const char* base, int number,
                                     int distance) {
    return inputs->itemById(base + std::to_string(static_cast<long long>(number) + distance));
}

/// Marks the column of the drop-down with this number as used under the property's name, or as free
/// when a heading was chosen.
void chooseProperty(const Ptr<CommandInputs>& inputs, const Ptr<DropDownCommandInput>& dropDown,
                    int number) {
    const Ptr<StringValueCommandInput> state = fieldOf(inputs, "colUsrHeader_", number, 1);
    const Ptr<StringValueCommandInput> caption = fieldOf(inputs, "nameCol", number, 5);
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
        state->value("used");
        caption->value(name);
    }
}

/// Takes the row out of sight when "Reference" was chosen for it on the tab "Structure".
void chooseStructure(const Ptr<CommandInputs>& inputs, const Ptr<DropDownCommandInput>& dropDown,
                     int number, const std::vector<BomRow>& rows) {
    const Ptr<TabCommandInput> structureTab = inputs->itemById(kStructureTabId);
    const Ptr<ListItems> items = dropDown->listItems();
    const std::size_t count = items->count();
    for (std::size_t i = 0; i < count; ++i) {
        const Ptr<ListItem> item = items->item(i);
        static_cast<void>(at(rows, static_cast<std::size_t>(number) - 1));
        if (item->isSelected() && item->name() == "Reference" && structureTab->isActive()) {
            const Ptr<TableCommandInput> table = inputs->itemById(kStructureTableId);
            // The id's number counts the rows of the list; here it serves as a table row. The two
            // differ behind a merged or dropped row, and then it is another row that goes.
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
    const Ptr<CommandInputs> inputs = input->parentCommandInput()->parentCommand()->commandInputs();
    if (!inputs) {
        return;
    }
    const std::string id = input->id();
    const int number = idNumber(id);
    const Ptr<DropDownCommandInput> dropDown = inputs->itemById(id);
    if (idBase(id) == "iProperty") {
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

}  // namespace tarnix
