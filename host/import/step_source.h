#pragma once

#include "host/import/readable_file.h"
#include "host/import/reading_cache.h"
#include "host/import/step_import.h"

namespace host {

/// Reads a STEP or IGES file as `importStep` does. The design's source is the file that it can be
/// read from again; it has none where there is no such file.
/// time.
DesignData importStepFrom(const ReadableFile& source, const ReadingLimits& limits,
                          const ReadingCache& cache, const ImportProgress& progress,
                          std::vector<ReadingWarning>& warnings);

/// Reads its tree alone, as `readTree` does.
DesignData importTreeFrom(const ReadableFile& source, const ReadingLimits& limits,
                          const ReadingCache& cache, const ImportProgress& progress,
                          std::vector<ReadingWarning>& warnings);

}  // namespace host
