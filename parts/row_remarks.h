#pragma once

#include "parts/parts_list.h"

#include <string>
#include <vector>

namespace parts {

/// What is in doubt about a row, in words: "unmeasured", or "material assumed" where the list shows
/// or looks at what rests on materials; else empty.
std::string doubtAbout(const PartsList& list, const PartsRow& row);

/// What is to be known of each row before it is ordered: what is in doubt, what the components in
/// it differ in, and which other items have its shape. Empty for most rows.
std::vector<std::string> rowRemarks(const PartsList& list);

/// The first values with commas between, and how many more there are.
std::string shortList(const std::vector<std::string>& values);

}  // namespace parts
