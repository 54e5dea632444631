#pragma once

#include "workbench/commands/bom_request.h"
#include "workbench/dialogs/addin_ids.h"

#include "host/session/session.h"

#include <vector>

/// What a person does in the open BOM dialog.
///
/// Each of these throws a `Failure` for wrong usage where the dialog has no such property, column
/// or cell, with the names that it has, and one of the add-in where that threw something.
namespace workbench {

/// Chooses the free columns, gives them their captions, and saves them. The dialog shows them from
/// its next opening on.
void saveColumns(host::Session& session, const std::vector<ColumnWish>& columns);

/// Chooses the order and clicks the header of a column. The tab has to show.
void sortBy(host::Session& session, const BomTab& tab, const SortWish& wish);

/// Clicks the toggles of the assemblies that show until `levels` levels of the tree do. The tab has
/// to show.
void expandTree(host::Session& session, const BomTab& tab, int levels);

/// Edits cells of the shown tab. All cells are looked for before the first is edited, so that rows
/// that an edit hides do not shift the others.
void editCells(host::Session& session, const BomTab& tab, const std::vector<CellEdit>& cells);

/// Accepts the dialog, which writes the shown tab into the design.
void acceptChanges(host::Session& session, const BomTab& tab);

}  // namespace workbench
