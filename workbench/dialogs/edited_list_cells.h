#pragma once

#include "workbench/dialogs/bom_cells.h"
#include "workbench/dialogs/cell_edits.h"
#include "workbench/dialogs/edited_list.h"

#include <vector>

namespace workbench {

/// Appends the cells in which an edited list differs from the table.
///
/// A line belongs to the row of its path, if the list has a column "Path", else to that of its part
/// number; of several with the same, the first line belongs to the first row, and so on. A line
/// that is as the add-in exported it belongs to its row and edits nothing, whatever is in it. Cells
/// that the add-in works out are compared as numbers.
///
/// What cannot be applied is reported on stderr, a line each, and then a `Failure` is thrown. That
/// includes lines whose number is not that of the rows, and lines with more fields than captions.
void lookUp(const BomCells& cells, const EditedList& list, std::vector<EditedCell>& all);

}  // namespace workbench
