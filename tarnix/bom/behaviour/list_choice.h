#pragma once

#include <Core/CoreAll.h>

namespace tarnix {

/// The first selected item of a list, null where none is selected. A missing list or item throws a
/// plain `std::exception`.
adsk::core::Ptr<adsk::core::ListItem> firstSelected(
    const adsk::core::Ptr<adsk::core::ListItems>& items);

}  // namespace tarnix
