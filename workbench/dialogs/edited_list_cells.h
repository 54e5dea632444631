#pragma once

#include "workbench/dialogs/bom_cells.h"
#include "workbench/dialogs/cell_edits.h"
#include "workbench/dialogs/edited_list.h"

#include <vector>

namespace workbench {

/// Appends the cells in which an edited list differs from the table.
///
/// A line belongs to the rows of its path, if the list has a column "Path", else to those of its
/// part number; of several lines for one row, only those count that differ from it. Cells that the
/// add-in works out are compared as numbers. What cannot be applied is reported on stderr, a line
/// each, and then a `Failure` is thrown.
void lookUp(const BomCells& cells, const EditedList& list, std::vector<EditedCell>& all);

}  // namespace workbench
