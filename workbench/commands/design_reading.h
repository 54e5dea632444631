#pragma once

#include "host/import/read_design.h"

#include <string>
#include <vector>

namespace workbench {

/// Reads a design out of a file, with a progress line on a terminal and a line on stderr for each
/// thing that the reader had to say. Throws a `Failure` for a file that cannot be read.
host::DesignData readDesign(const std::string& file, const host::ReadingLimits& limits);

/// Writes what a reader had to say on stderr, a line for each.
void tellWarnings(const std::vector<std::string>& warnings);

}  // namespace workbench
