#pragma once

#include "parts/parts_list.h"
#include "parts/row_values.h"

#include <vector>

namespace parts {

/// Leaves the rows that all filters of the request want, in the tree also those that such are in.
/// Returns which of the rows that are left are wanted for themselves.
std::vector<bool> filterRows(std::vector<PartsRow>& rows, const PartsRequest& request,
                             RowValues& values);

}  // namespace parts
