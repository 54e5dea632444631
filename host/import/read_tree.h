#pragma once

#include "host/design/design_data.h"
#include "host/design/reading_limits.h"
#include "host/import/reading_cache.h"
#include "host/import/step_import.h"

#include <filesystem>
#include <vector>

namespace host {

/// Reads what a design consists of, without building its shapes, which takes most of the time that
/// `readDesign` needs; its arguments, warnings and errors are the same.
///
/// The components, names, materials and uses are those of `readDesign`. Placements are missing, and
/// the geometry of a component counts its bodies and cannot be measured. Bodies that cannot be
/// built are not warned of. A design file, an IGES file and a lone part are read whole.
DesignData readTree(const std::filesystem::path& file, const ReadingLimits& limits,
                    const ImportProgress& progress, std::vector<ReadingWarning>& warnings,
                    const ReadingCache& cache = {});

}  // namespace host
