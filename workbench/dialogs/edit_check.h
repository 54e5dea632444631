#pragma once

#include "workbench/dialogs/cell_edits.h"

#include "host/session/session.h"

namespace workbench {

/// Compares the cells that were edited with the dialog that is open on the saved design, and throws
/// a `Failure` where the add-in did not write one; the reasons are on stderr, a line each.
void checkEdits(const host::Session& session, const BomTab& tab, const EditedTable& edited);

}  // namespace workbench
