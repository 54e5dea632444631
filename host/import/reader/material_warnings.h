#pragma once

#include "host/import/reader/assembly.h"

namespace step {

/// Warns of what the files state as densities and what is none, and of densities that no material
/// has; one warning for each statement, which names the first part with it.
void warnOfDensities(Assembly& assembly);

}  // namespace step
