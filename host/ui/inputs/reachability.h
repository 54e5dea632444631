#pragma once

#include "host/ui/inputs/input.h"

#include <string>

namespace host::ui {

/// Why a person cannot reach an input of the open dialog; empty where they can. An input is within
/// reach when it and all that holds it are visible: its tab shows, its group is unfolded, its
/// column has a width. Whether it is enabled is not asked.
std::string whyUnreachable(const InputState& input);

/// What messages call an input: its id, or its place where it has none.
std::string describe(const InputState& input);

}  // namespace host::ui
