#pragma once

#include <Core/CoreAll.h>

#include <string>
#include <vector>

namespace host {

/// The first input of that id in the active tab of a dialog, else the first in the whole dialog.
/// Throws a `SessionError` that lists the ids there are.
adsk::core::Ptr<adsk::core::CommandInput> findInput(
    const adsk::core::Ptr<adsk::core::Command>& dialog, const std::string& id);

/// The ids of all inputs of a dialog that have one, each once, in the dialog's order.
std::vector<std::string> inputIds(const adsk::core::Ptr<adsk::core::Command>& dialog);

}  // namespace host
