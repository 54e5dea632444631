#include "host/session/table_view.h"

#include "host/session/input_actions.h"

#include <cstddef>

namespace host {
namespace {

using namespace adsk::core;

/// The name of a picture: the last part of a path, without its ending.
std::string pictureName(const std::string& path) {
    const std::string last = path.substr(path.find_last_of("/\\") + 1);
    return last.substr(0, last.rfind('.'));
}

std::string chosenItem(const Ptr<ListItem>& item) { return item ? item->name() : ""; }

void describeButton(TableCell& cell, const Ptr<BoolValueCommandInput>& button) {
    cell.kind = button->isCheckBox() ? TableCell::Kind::CheckBox : TableCell::Kind::Button;
    cell.text = button->name();
    cell.picture = pictureName(button->resourceFolder());
    cell.editable = true;
}

/// Fills in what depends on the kind of the input.
void describe(TableCell& cell, const Ptr<CommandInput>& input) {
    if (const Ptr<BoolValueCommandInput> button = input) {
        describeButton(cell, button);
    } else if (const Ptr<StringValueCommandInput> line = input) {
        cell.kind = TableCell::Kind::Text;
        cell.text = line->value();
        cell.editable = !line->isReadOnly();
    } else if (const Ptr<TextBoxCommandInput> box = input) {
        cell.kind = TableCell::Kind::Text;
        cell.text = box->text();
        cell.editable = !box->isReadOnly();
    } else if (const Ptr<DropDownCommandInput> list = input) {
        cell.kind = TableCell::Kind::Choice;
        cell.text = chosenItem(list->selectedItem());
        cell.editable = true;
    } else if (const Ptr<RadioButtonGroupCommandInput> group = input) {
        cell.kind = TableCell::Kind::Choice;
        cell.text = chosenItem(group->selectedItem());
        cell.editable = true;
    } else if (const Ptr<ImageCommandInput> image = input) {
        cell.kind = TableCell::Kind::Picture;
        cell.picture = pictureName(image->imageFile());
    }
    cell.editable = cell.editable && input->isEnabled();
}

}  // namespace

TableCell readCell(const Ptr<TableCommandInput>& table, int row, int column) {
    TableCell cell;
    cell.column = column;
    if (const Ptr<CommandInput> input = table->getInputAtPosition(row, column)) {
        cell.id = input->id();
        describe(cell, input);
    }
    return cell;
}

TableView readTable(const Ptr<TableCommandInput>& table) {
    TableView view{table->name(), shownColumns(table), {}};
    for (const int row : shownRows(table)) {
        TableRow shown{row, {}};
        for (const int column : view.columns) {
            const Ptr<CommandInput> input = table->getInputAtPosition(row, column);
            if (input && input->isVisible()) {
                shown.cells.push_back(readCell(table, row, column));
            } else {
                shown.cells.emplace_back().column = column;
            }
        }
        view.rows.push_back(std::move(shown));
    }
    return view;
}

}  // namespace host
