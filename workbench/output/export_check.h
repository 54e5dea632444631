#pragma once

#include "workbench/output/bom_list.h"

#include <string>

namespace workbench {

/// Why an exported file does not hold the list that the dialog shows: a line for each row, and
/// `end`, the line of the total mass, at its end. Empty where it does, and for a list without rows,
/// which exports nothing.
///
/// The add-in does not notice that a disk is full, and its file is then cut at any place.
std::string whyIncomplete(const std::string& exported, const BomList& list, const std::string& end);

}  // namespace workbench
