#include "workbench/dialogs/cell_edits.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/bom_cells.h"
#include "workbench/dialogs/bom_columns.h"
#include "workbench/dialogs/edited_list_cells.h"
#include "workbench/dialogs/list_items.h"
#include "workbench/dialogs/uncaught.h"
#include "workbench/output/display_text.h"

#include "host/session/input_actions.h"
#include "host/session/table_view.h"

#include <algorithm>

namespace workbench {
namespace {

using namespace adsk::core;

/// One way to read "ROW:COLUMN=VALUE", in which each part may hold the marks of the others.
struct Reading {
    std::string row;
    std::string column;
    std::string value;
};

/// All ways: the value begins as early as possible, then the column as late.
std::vector<Reading> readingsOf(const std::string& text) {
    std::vector<Reading> all;
    for (std::size_t mark = text.find('='); mark != std::string::npos;
         mark = text.find('=', mark + 1)) {
        for (std::size_t colon = text.rfind(':', mark); colon != std::string::npos && colon > 0;
             colon = text.rfind(':', colon - 1)) {
            all.push_back({.row = text.substr(0, colon),
                           .column = text.substr(colon + 1, mark - colon - 1),
                           .value = text.substr(mark + 1)});
        }
    }
    return all;
}

/// The first way that names a row and a column of the table, else the first one at all.
Reading readCellName(const BomCells& cells, const std::string& text) {
    const std::vector<Reading> all = readingsOf(text);
    if (all.empty()) {
        refuse("--set " + text + ": expected ROW:COLUMN=VALUE");
    }
    const auto fits = std::ranges::find_if(all, [&](const Reading& each) {
        return cells.columnNamed(each.column) && !cells.rowsNamed(each.row).empty();
    });
    return fits == all.end() ? all.front() : *fits;
}

void checkChoice(const BomCells& cells, const EditedCell& edit, const std::string& what) {
    const Ptr<DropDownCommandInput> list = cells.input(edit.row, edit.column);
    const std::vector<std::string> names = itemNames(list ? list->listItems() : nullptr);
    if (list && std::ranges::find(names, edit.value) == names.end()) {
        refuse(what + "=" + edit.value + ": no such choice; available: " + quoted(names));
    }
}

/// The cells that one `--set` names.
void lookUp(const BomCells& cells, const std::string& text, std::vector<EditedCell>& all) {
    const Reading named = readCellName(cells, text);
    const std::string what = "--set " + named.row + ":" + named.column;
    const std::vector<BomRow> rows = cells.rowsNamed(named.row);
    if (rows.empty()) {
        cells.refuseRow(named.row, what);
    }
    for (const BomRow& row : rows) {
        const BomColumn column = findColumn(cells.editableColumns(row), named.column, what);
        const EditedCell edit{.source = "row " + std::to_string(row.line),
                              .row = row,
                              .column = column.column,
                              .key = column.key,
                              .property = column.property,
                              .value = named.value};
        checkChoice(cells, edit, what);
        all.push_back(edit);
    }
}

void apply(const BomCells& cells, const EditedCell& edit) {
    const Ptr<CommandInput> input = cells.input(edit.row, edit.column);
    try {
        if (const Ptr<DropDownCommandInput> list = input) {
            host::chooseItem(input, edit.value);
        } else {
            host::pasteText(input, edit.value);
        }
    } catch (const host::MisuseError& obstacle) {
        refuse(edit.source + ", " + edit.key + ": " + obstacle.what());
    }
}

bool hidesRows(const EditedCell& edit) { return edit.value == kReferenceChoice; }

EditedTable tableOf(const BomCells& cells) {
    EditedTable table;
    table.occurrences = cells.occurrences();
    table.rows = cells.rows();
    for (const BomRow& row : table.rows) {
        if (cells.isCombined(row)) {
            table.combinedRows.push_back(row.row);
        }
    }
    return table;
}

}  // namespace

EditedTable editCells(host::Session& session, const BomTab& tab, const EditRequest& request) {
    const BomCells cells(session, tab);
    EditedTable table = tableOf(cells);
    for (const std::string& text : request.cells) {
        lookUp(cells, text, table.cells);
    }
    if (request.list) {
        lookUp(cells, *request.list, table.cells);
    }
    std::vector<EditedCell> inOrder = table.cells;
    std::stable_partition(inOrder.begin(), inOrder.end(),
                          [](const EditedCell& each) { return !hidesRows(each); });
    for (const EditedCell& edit : inOrder) {
        const std::size_t since = session.uncaughtExceptions().size();
        apply(cells, edit);
        refuseUnexpected(session.uncaughtExceptions(), since, edit.source + ", " + edit.key);
    }
    return table;
}

}  // namespace workbench
