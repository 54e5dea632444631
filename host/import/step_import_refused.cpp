#include "host/import/step_import.h"

namespace host {

MaterialData defaultMaterial() {
    return {.name = "Steel", .density = 0.00785, .nameAssumed = true, .densityAssumed = true};
}

DesignData importStep(const std::string& path, const ReadingLimits& /*limits*/,
                      const ImportProgress& /*progress*/,
                      std::vector<ReadingWarning>& /*warnings*/) {
    throw ImportError(path +
                      ": STEP files cannot be read on Windows, for want of Open CASCADE; "
                      "open a design file (.json) instead");
}

}  // namespace host
