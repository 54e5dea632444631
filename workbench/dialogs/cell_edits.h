#pragma once

#include "workbench/dialogs/addin_ids.h"
#include "workbench/dialogs/bom_rows.h"
#include "workbench/dialogs/edited_list.h"

#include "host/session/session.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace workbench {

/// Cells of the BOM dialog to edit, as the user names them.
struct EditRequest {
    /// "ROW:COLUMN=VALUE" each. ROW is a line of the list as it is printed, from 1, the path of an
    /// occurrence, or a part number, which names all its rows; COLUMN is a key or a property, see
    /// `findColumn`.
    std::vector<std::string> cells;

    std::optional<EditedList> list;  ///< a list that was edited elsewhere

    [[nodiscard]] bool empty() const { return cells.empty() && !list; }
};

/// A cell that was edited.
struct EditedCell {
    std::string source;  ///< where the edit comes from: "--set 2:Mass=1", or a line of a file
    BomRow row;
    int column = 0;        ///< of the table, hidden columns counted
    std::string key;       ///< of the column
    std::string property;  ///< of a configured column, else empty
    std::string value;
};

/// What was edited, and in which table.
struct EditedTable {
    std::vector<BomOccurrence> occurrences;
    std::vector<BomRow> rows;
    std::vector<int> combinedRows;  ///< of the table: rows that merge differently named components
    std::vector<EditedCell> cells;
};

/// Edits cells of the active tab. All cells are looked up before the first is edited, so that rows
/// that an edit hides do not shift the others; for the same reason the choice "Reference", which
/// hides rows, comes last.
///
/// Throws a `Failure`: for wrong usage where the table has no such row, column or choice, or the
/// cell cannot be edited, and of the add-in where that threw something unexpected. What cannot be
/// applied of an edited list is reported on stderr, a line each, before that.
EditedTable editCells(host::Session& session, const BomTab& tab, const EditRequest& request);

}  // namespace workbench
