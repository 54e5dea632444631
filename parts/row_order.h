#pragma once

#include "parts/parts_list.h"
#include "parts/row_values.h"

#include <vector>

namespace parts {

/// Sorts rows as the request says, in the tree those that are in one row, and numbers them. What
/// is equal stays in order; what has no value comes last.
void sortAndNumber(std::vector<PartsRow>& rows, const PartsRequest& request, RowValues& values);

}  // namespace parts
