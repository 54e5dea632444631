#pragma once

#include <Core/CoreAll.h>

#include <string>
#include <vector>

namespace workbench {

/// The names of a list's items, in order; none for null.
std::vector<std::string> itemNames(const adsk::core::Ptr<adsk::core::ListItems>& items);

}  // namespace workbench
