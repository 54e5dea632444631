#pragma once

#include "host/session/session.h"

#include <vector>

namespace workbench {

/// Throws a `Failure` when components could not be measured: their masses, and all sums over them,
/// would be too small, and nothing in the list would show it.
void refuseUnmeasured(const std::vector<host::Unmeasured>& components);

}  // namespace workbench
