#pragma once

#include "host/design/design_check.h"
#include "host/design/design_data.h"
#include "host/import/reading_cache.h"
#include "host/import/step_import.h"

#include <filesystem>
#include <string>
#include <vector>

namespace host {

/// Reads a design out of a file: STEP, or a design file of this host, recognised by its content.
/// The file may be a pipe, "-" for the standard input, or packed by gzip; see readable_file.h.
///
/// A STEP file that the cache knows is not read again: the design and its measures are to the
/// letter those that the reader would send; a design file is always read.
///
/// What the user should know although the design could be read is appended to `warnings`. Throws an
/// `ImportError` or a `DesignError`, one line that names the file, for one that cannot be read. It
/// needs no session, and a relative path starts in the working directory.
DesignData readDesign(const std::filesystem::path& file, const ReadingLimits& limits,
                      const ImportProgress& progress, std::vector<ReadingWarning>& warnings,
                      const ReadingCache& cache = {});

}  // namespace host
