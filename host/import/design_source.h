#pragma once

#include "host/import/readable_file.h"
#include "host/import/reading_cache.h"
#include "host/import/step_import.h"

#include <filesystem>
#include <vector>

namespace host {

/// Whether a file begins like JSON text: with a brace, after spaces and a byte order mark.
bool looksLikeDesignFile(const ReadableFile& readable);

/// Whether a file is JSON that says it is a design: a parts list in JSON says something else.
bool holdsDesignFile(const std::filesystem::path& file);

/// Reads a design as `readDesign` does. What a copy is refused for is said of the file that it was
/// made of.
DesignData readDesignFrom(const ReadableFile& readable, const ReadingLimits& limits,
                          const ReadingCache& cache, const ImportProgress& progress,
                          std::vector<ReadingWarning>& warnings);

}  // namespace host
