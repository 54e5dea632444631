#include "host/import/step_import.h"

#include "host/import/file_check.h"
#include "host/import/read_shapes.h"
#include "host/import/step_source.h"

namespace host {

MaterialData defaultMaterial() {
    return {.name = "Steel", .density = 0.00785, .nameAssumed = true, .densityAssumed = true};
}

DesignData importStep(const std::string& path, const ReadingLimits& limits,
                      const ImportProgress& progress, std::vector<ReadingWarning>& warnings) {
    return importStepFrom(
        {.path = path, .shown = path, .again = path, .folder = {}, .copy = nullptr}, limits,
        /*cache=*/{}, progress, warnings);
}

DesignData importStepFrom(const ReadableFile& source, const ReadingLimits& /*limits*/,
                          const ReadingCache& /*cache*/, const ImportProgress& /*progress*/,
                          std::vector<ReadingWarning>& /*warnings*/) {
    // What is wrong with the file itself comes before what this system lacks.
    checkStepFile(source.path, source.shown);
    throw ImportError(source.shown +
                      ": STEP files cannot be read on Windows, for want of Open CASCADE; "
                      "open a design file (.json) instead");
}

DesignData importTreeFrom(const ReadableFile& source, const ReadingLimits& limits,
                          const ReadingCache& cache, const ImportProgress& progress,
                          std::vector<ReadingWarning>& warnings) {
    return importStepFrom(source, limits, cache, progress, warnings);
}

ShapeData readShapes(const DesignData& design, const ShapeRequest& /*request*/) {
    ShapeData none;
    none.ofComponent.resize(design.components.size());
    return none;
}

}  // namespace host
