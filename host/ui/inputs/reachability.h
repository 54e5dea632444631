#pragma once

#include "host/ui/inputs/input_state.h"

#include <string>

namespace host::ui {

/// Why the user cannot reach an input of the open dialog; empty where they can. An input is
/// reachable when it and everything that contains it are visible: its tab is active, its group
/// expanded, its column has a width. It need not be enabled.
std::string whyUnreachable(const InputState& input);

/// What messages call an input: its id, or its place in the table where it has none.
std::string describe(const InputState& input);

}  // namespace host::ui
