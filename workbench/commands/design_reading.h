#pragma once

#include "workbench/cli/common_options.h"

#include "host/design/design_data.h"
#include "host/design/reading_warning.h"
#include "host/import/reading_cache.h"

#include <string>
#include <vector>

namespace workbench {

/// Where what reading found is kept for this user; nothing is where the system names no place.
host::ReadingCache readingCache();

/// Reads a design from a file, with a progress line on a terminal and a warning on stderr for each
/// thing that the reader had to say; `warnings` gets them too, unless it is null. Throws a
/// `Failure` for a file that cannot be read, and for warnings where the options are strict.
host::DesignData readDesign(const std::string& file, const ReadingOptions& reading,
                            std::vector<host::ReadingWarning>* warnings = nullptr);

/// Reads a design and reports its progress to the caller; otherwise as `readSilently`, but that a
/// warning is never a failure.
host::DesignData readReporting(const std::string& file, const ReadingOptions& reading,
                               const host::ImportProgress& progress,
                               std::vector<host::ReadingWarning>& warnings);

/// What to read of a file: everything, or its tree alone.
enum class ReadingDepth { Whole, Tree };

/// Reads a design where several are read at once: nothing is shown. `warnings` gets what is to be
/// reported, also where a warning is a failure.
host::DesignData readSilently(const std::string& file, const ReadingOptions& reading,
                              ReadingDepth depth, std::vector<host::ReadingWarning>& warnings);

/// Reads what a design consists of in the same way, without the shapes of an assembly, which takes
/// most of the time: see `host::readTree`. Bodies that cannot be built are not warned of.
host::DesignData readTree(const std::string& file, const ReadingOptions& reading);

}  // namespace workbench
