#pragma once

#include "workbench/dialogs/bom_run.h"

#include <optional>
#include <string>
#include <vector>

/// The values of the options of `bom`. Each function throws a `Failure` for wrong usage.
namespace workbench {

/// "PROPERTY" or "PROPERTY=CAPTION" each; the caption is the property's name by default. No more
/// than there are free columns, and no property twice.
std::vector<ColumnChoice> parseColumns(const std::vector<std::string>& values);

/// "COLUMN", which may end in ":asc" or ":desc"; nothing for an empty string.
std::optional<SortOrder> parseSort(const std::string& value);

/// "all" or a level from 1; nothing for an empty string.
std::optional<int> parseLevels(const std::string& value);

/// Refuses what cannot be "ROW:COLUMN=VALUE"; where each part ends is known with the table.
void checkCellNames(const std::vector<std::string>& values);

/// Refuses what the chosen tab cannot do, and edits that are not to be saved.
void checkRequest(const BomRequest& request);

}  // namespace workbench
