#pragma once

#include "parts/item_keys.h"
#include "parts/list_context.h"
#include "parts/parts_list.h"

#include <vector>

namespace parts {

/// The rows of a view in the order of the design, merged: with places, quantities and members, but
/// without item numbers and cells. In the tree a parent comes before what is in it.
std::vector<PartsRow> rowsOf(ListContext& context, ItemKeys& keys);

}  // namespace parts
