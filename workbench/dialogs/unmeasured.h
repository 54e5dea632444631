#pragma once

#include "host/session/session.h"

#include <vector>

namespace workbench {

/// Throws a `Failure` when components could not be measured: their masses, and whatever is summed
/// up over them, would be too small without anyone seeing it.
void refuseUnmeasured(const std::vector<host::Unmeasured>& components);

}  // namespace workbench
