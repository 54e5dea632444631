#pragma once

#include "host/import/reader/step_file.h"

#include <StepBasic_ProductDefinition.hxx>

#include <optional>
#include <string>
#include <unordered_map>

namespace step {

/// What a file declares about the material of a product; either may be missing.
struct Material {
    std::string name;
    std::optional<double> density;  ///< kg/cm3
};

/// The materials of a file by product definition, read from its "material name" and "density"
/// representations. Where the bodies of a product carry materials of their own, the first counts.
///
/// A density is taken as mass unit by cubed length unit, whatever exponents the file gives the two:
/// several writers get these wrong (2 or 3 where -3 is meant).
std::unordered_map<const StepBasic_ProductDefinition*, Material> readMaterials(
    const StepFile& file);

}  // namespace step
