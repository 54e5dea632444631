#pragma once

#include "host/import/read_design.h"

#include <string>

namespace workbench {

/// Reads a design from a file, with a progress line on a terminal and a warning on stderr for each
/// thing that the reader had to say. Throws a `Failure` for a file that cannot be read.
host::DesignData readDesign(const std::string& file, const host::ReadingLimits& limits);

}  // namespace workbench
