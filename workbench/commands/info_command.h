#pragma once

#include "workbench/commands/design_reading.h"

#include <string>

namespace workbench {

struct InfoOptions {
    std::string file;
    host::ReadingLimits limits;
};

/// Prints on stdout what a file holds: components, occurrences, levels, units, materials. Throws a
/// `Failure` for a file that cannot be read.
void runInfo(const InfoOptions& options);

}  // namespace workbench
