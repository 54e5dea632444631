#pragma once

#include "workbench/dialogs/addin_ids.h"

#include "host/session/session.h"

#include <string>
#include <vector>

/// What the user does in the open BOM dialog, but for editing cells (see `cell_edits.h`).
///
/// Each function throws a `Failure`: for wrong usage where the dialog has no such property or
/// column, with the names that it has, and of the add-in where that threw something unexpected.
namespace workbench {

/// A column to configure: a property, and the caption over it.
struct ColumnChoice {
    std::string property;
    std::string caption;

    bool operator==(const ColumnChoice&) const = default;
};

struct SortOrder {
    std::string column;  ///< its key or its property, see `findColumn`
    bool descending = false;

    bool operator==(const SortOrder&) const = default;
};

/// Chooses the free columns, gives them their captions, and saves them. The dialog shows them the
/// next time it opens.
void saveColumns(host::Session& session, const std::vector<ColumnChoice>& columns);

/// Chooses the order and clicks the header of a column. The tab has to be active.
void sortBy(host::Session& session, const BomTab& tab, const SortOrder& order);

/// Shows `levels` levels of the tree, as if the toggles of the assemblies above them were clicked,
/// from top to bottom. The tab has to be active.
///
/// None is clicked: each click makes the add-in walk the whole design.
void expandTree(host::Session& session, const BomTab& tab, int levels);

/// Accepts the dialog, which writes the active tab into the design.
void acceptChanges(host::Session& session, const BomTab& tab);

}  // namespace workbench
