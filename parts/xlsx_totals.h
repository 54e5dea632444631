#pragma once

#include "parts/parts_list.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace parts {

/// How the total of a column comes from its cells.
struct ColumnTotal {
    double value = 0;             ///< in the unit of the column
    std::vector<bool> isCounted;  ///< for each row; empty where no sum of cells is the total
    bool isOfAllRows = false;     ///< the plain sum of the column
};

/// The total of a column of quantities or total masses; none for others, and where it is unknown.
std::optional<ColumnTotal> totalOf(const PartsList& list, std::size_t column);

}  // namespace parts
