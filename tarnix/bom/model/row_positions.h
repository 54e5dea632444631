#pragma once

#include "tarnix/bom/model/bom_row.h"

#include <string>

namespace tarnix {

/// The number of the next top-level row in the tab "Data of Model".
///
/// One counter of the whole add-in: it goes on from one opening of the dialog to the next, until
/// the add-in is loaded again.
extern int modelRowCounter;

/// Numbers the rows of a plain walk, such as 1, 1.1, 1.1.1, 1.2, 2, in their order.
class RowPositions {
public:
    /// The position of the next row; `previousPathName` is that of the row before it, empty
    /// for the first. Call `finishRow` when the row is done.
    std::string next(const BomRow& row, const std::string& previousPathName);

    /// Counts the row; only the rows at the top keep their count.
    void finishRow();

private:
    std::string prefix_;  ///< the position under which nested rows are numbered
};

/// A drawing of the tree before a row at `position`: an indent for each level below the top,
/// and a branch. Empty at the top.
std::string graphPosition(const std::string& position);

}  // namespace tarnix
