#pragma once

#include "workbench/commands/bom_command.h"

#include <optional>
#include <string>
#include <vector>

namespace workbench {

/// A column to configure: a property, and the caption over it.
struct ColumnWish {
    std::string property;
    std::string caption;

    bool operator==(const ColumnWish&) const = default;
};

struct SortWish {
    std::string column;
    bool descending = false;

    bool operator==(const SortWish&) const = default;
};

/// A cell to edit.
struct CellEdit {
    int row = 0;  ///< line of the list as it is printed, from 1
    std::string column;
    std::string value;

    bool operator==(const CellEdit&) const = default;
};

/// What the command line wants done in the dialog.
struct BomWishes {
    std::vector<ColumnWish> columns;  ///< none: those of the settings stay
    std::optional<SortWish> sort;
    int levels = 1;  ///< of the tree to show
    std::vector<CellEdit> cells;
};

/// Takes the options apart. Throws a `Failure` for wrong usage: a text that does not follow its
/// form, more columns than there are, a wish that the chosen tab cannot fulfil.
BomWishes readWishes(const BomOptions& options);

}  // namespace workbench
