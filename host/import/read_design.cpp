#include "host/import/read_design.h"

#include "host/import/design_source.h"

namespace host {

DesignData readDesign(const std::filesystem::path& file, const ReadingLimits& limits,
                      const ImportProgress& progress, std::vector<ReadingWarning>& warnings) {
    return readDesignFrom(makeReadable(file, limits), limits, progress, warnings);
}

}  // namespace host
