#pragma once

#include "parts/item_keys.h"
#include "parts/list_context.h"
#include "parts/parts_list.h"

#include <vector>

namespace parts {

/// Components that the request makes one item though they differ in part number, name, material,
/// mass, shape, contents, or in that some are opened and some are not. By item, and then in this
/// order. Masses are compared where the request has them measured.
std::vector<Conflict> findConflicts(ListContext& context, ItemKeys& keys);

/// Parts of one shape that are different items. None where parts are merged by their shape: those
/// are one item.
std::vector<PossibleDuplicate> findDuplicates(const ListContext& context, ItemKeys& keys);

}  // namespace parts
