#pragma once

#include "host/import/readable_file.h"
#include "host/import/reading_cache.h"
#include "host/import/step_import.h"

#include <vector>

namespace host {

/// Whether a file begins like JSON text: with a brace, after spaces and a byte order mark.
bool looksLikeDesignFile(const ReadableFile& readable);

/// Reads a design as `readDesign` does. What a copy is refused for is said of the file that it was
/// made of.
DesignData readDesignFrom(const ReadableFile& readable, const ReadingLimits& limits,
                          const ReadingCache& cache, const ImportProgress& progress,
                          std::vector<ReadingWarning>& warnings);

}  // namespace host
