#pragma once

#include "workbench/dialogs/addin_ids.h"

#include "host/session/session.h"

#include <string>
#include <vector>

namespace workbench {

/// A cell of the BOM dialog to edit.
struct CellEdit {
    int row = 0;         ///< line of the list as it is printed, from 1
    std::string column;  ///< its key or its property, see `findColumn`
    std::string value;

    bool operator==(const CellEdit&) const = default;
};

/// Edits cells of the active tab. All cells are looked up before the first is edited, so that rows
/// that an edit hides do not shift the others.
///
/// Throws a `Failure`: for wrong usage where the table has no such row, column or choice, or the
/// cell cannot be edited, and of the add-in where that threw something unexpected.
void editCells(host::Session& session, const BomTab& tab, const std::vector<CellEdit>& edits);

}  // namespace workbench
