#include "host/import/read_design.h"

#include "host/import/design_source.h"

namespace host {

DesignData readDesign(const std::filesystem::path& file, const ReadingLimits& limits,
                      const ImportProgress& progress, std::vector<ReadingWarning>& warnings,
                      const ReadingCache& cache) {
    return readDesignFrom(makeReadable(file, limits), limits, cache, progress, warnings);
}

}  // namespace host
