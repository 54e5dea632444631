#pragma once

#include "tarnix/bom/model/bom_row.h"

namespace tarnix {

/// Stands for a value that is not the same in all occurrences of an item.
inline constexpr const char* kDifferent = "***different***";

/// Counts `row`, a further occurrence of the same item, into `target`, the item's first row.
///
/// The quantity grows by one, another name sets `combined`, and property values that differ become
/// `kDifferent`: entries are compared by position, not by key, and those that only the further row
/// has are appended unless they are empty. Where the descriptions differ, `kDifferent` is written
/// in front of the target component's description: into the design, at once, and only once.
void mergeInto(BomRow& target, const BomRow& row);

}  // namespace tarnix
