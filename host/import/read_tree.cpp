#include "host/import/read_tree.h"

#include "host/import/design_source.h"
#include "host/import/step_source.h"

namespace host {

DesignData readTree(const std::filesystem::path& file, const ReadingLimits& limits,
                    const ImportProgress& progress, std::vector<ReadingWarning>& warnings,
                    const ReadingCache& cache) {
    const ReadableFile readable = makeReadable(file, limits);
    return looksLikeDesignFile(readable)
               ? readDesignFrom(readable, limits, cache, progress, warnings)
               : importTreeFrom(readable, limits, cache, progress, warnings);
}

}  // namespace host
