#pragma once

#include "tarnix/bom/model/bom_row.h"

#include <vector>

namespace tarnix {

/// Whether rows keep their properties: who only counts does without most of the memory of a walk.
/// The host is asked for the same, in the same order, either way.
enum class RowProperties { Kept, Dropped };

/// Appends a row to `model.rows` for every occurrence of the list and everything below it, and
/// returns all its rows. They are the model's own, and copying many rows takes as long as walking
/// them: bind them to a reference, or move them out of a model that is not needed any more.
///
/// Rows come depth first, parent before children, siblings in the host's order. `level` is the
/// level of these occurrences, 1 at the top. After the children of an occurrence, the last row
/// then in the list gets `kSubtreeEnd` as its `pathName`. An index at which the host has no
/// occurrence is skipped, and counts for the ordinals of the others. A null list adds nothing.
const std::vector<BomRow>& walkOccurrences(
    BomModel& model, adsk::core::Ptr<adsk::fusion::OccurrenceList> occurrences, int level,
    RowProperties properties = RowProperties::Kept);

/// The same with identical items merged: the first row of an item takes count of the further ones
/// (`mergeInto` of merging.h), which may change descriptions in the design. Every occurrence has
/// its row all the same, so the list has the length and the order of the plain one.
///
/// A null list throws a plain `std::exception`.
const std::vector<BomRow>& walkOccurrencesMerged(
    BomModel& model, adsk::core::Ptr<adsk::fusion::OccurrenceList> occurrences, int level,
    RowProperties properties = RowProperties::Kept);

/// Adds to `model.userPropertyNames` the names of those properties that are custom ones, without
/// their prefix. Throws `std::out_of_range` ("invalid string position") for such a key that is
/// shorter than the prefix.
void collectUserPropertyNames(BomModel& model, const std::vector<PropertyEntry>& properties);

}  // namespace tarnix
