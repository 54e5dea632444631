#include "workbench/dialogs/cell_edits.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/bom_columns.h"
#include "workbench/dialogs/list_items.h"
#include "workbench/dialogs/uncaught.h"
#include "workbench/output/display_text.h"

#include "host/session/input_actions.h"
#include "host/session/table_view.h"

#include <algorithm>

namespace workbench {
namespace {

using namespace adsk::core;
using host::TableCell;

/// An edit whose cell was found.
struct FoundCell {
    Ptr<CommandInput> input;
    const CellEdit* edit;
};

bool isEditable(const TableCell& cell) {
    return cell.editable &&
           (cell.kind == TableCell::Kind::Text || cell.kind == TableCell::Kind::Choice);
}

std::string nameOf(const CellEdit& edit) {
    return "--set " + std::to_string(edit.row) + ":" + edit.column;
}

void checkRow(const host::TableView& table, const CellEdit& edit) {
    const std::size_t rows = table.rows.size() - 1;  // without the captions
    if (rows == 0) {
        refuse(nameOf(edit) + ": the table has no rows");
    }
    if (static_cast<std::size_t>(edit.row) > rows) {
        refuse(nameOf(edit) + ": row " + std::to_string(edit.row) + " is out of range (1 to " +
               std::to_string(rows) + ")");
    }
}

TableCell findCell(const host::TableView& table, const CellEdit& edit) {
    checkRow(table, edit);
    const std::vector<TableCell>& cells = table.rows[static_cast<std::size_t>(edit.row)].cells;
    std::vector<BomColumn> columns = columnsOf(table);
    std::erase_if(columns, [&](const BomColumn& column) {
        return !isEditable(*std::ranges::find(cells, column.column, &TableCell::column));
    });
    const int column = findColumn(columns, edit.column, nameOf(edit)).column;
    return *std::ranges::find(cells, column, &TableCell::column);
}

void checkChoice(const Ptr<DropDownCommandInput>& list, const CellEdit& edit) {
    const std::vector<std::string> names = itemNames(list ? list->listItems() : nullptr);
    if (std::ranges::find(names, edit.value) == names.end()) {
        refuse(nameOf(edit) + "=" + edit.value + ": no such choice; available: " + quoted(names));
    }
}

FoundCell lookUp(const Ptr<TableCommandInput>& table, const host::TableView& view,
                 const CellEdit& edit) {
    const TableCell cell = findCell(view, edit);
    const int row = view.rows[static_cast<std::size_t>(edit.row)].row;
    const Ptr<CommandInput> input = table->getInputAtPosition(row, cell.column);
    if (cell.kind == TableCell::Kind::Choice) {
        checkChoice(input, edit);
    }
    return {.input = input, .edit = &edit};
}

void apply(const FoundCell& cell) {
    try {
        if (const Ptr<DropDownCommandInput> list = cell.input) {
            host::chooseItem(cell.input, cell.edit->value);
        } else {
            host::pasteText(cell.input, cell.edit->value);
        }
    } catch (const host::MisuseError& obstacle) {
        refuse(nameOf(*cell.edit) + ": " + obstacle.what());
    }
}

}  // namespace

void editCells(host::Session& session, const BomTab& tab, const std::vector<CellEdit>& edits) {
    const Ptr<TableCommandInput> table = session.table(tab.table);
    const host::TableView view = host::readTable(table);
    std::vector<FoundCell> cells;
    for (const CellEdit& edit : edits) {
        cells.push_back(lookUp(table, view, edit));
    }
    for (const FoundCell& cell : cells) {
        const std::size_t since = session.uncaughtExceptions().size();
        apply(cell);
        refuseUnexpected(session.uncaughtExceptions(), since, nameOf(*cell.edit));
    }
}

}  // namespace workbench
