#pragma once

#include "host/import/reader/step_file.h"

#include <StepBasic_ProductDefinition.hxx>

#include <optional>
#include <string>
#include <unordered_map>

namespace step {

/// A density as the file has it.
struct StatedDensity {
    double value = 0;
    std::string unit;  ///< such as "kg m^-3"; empty where the file names none
};

/// What a file declares about the material of a product; any of it may be missing.
struct Material {
    std::string name;
    std::optional<double> density;        ///< kg/cm3; none where what is stated is no density
    std::optional<StatedDensity> stated;  ///< what `density` was made of
};

/// The materials of a file by product definition, read from its "material name" and "density"
/// representations. Where the bodies of a product carry materials of their own, the first counts.
/// What a product says nothing of is taken from the material product it is made from.
///
/// The unit of a density is a mass by a cubed length: one of other exponents counts as none.
std::unordered_map<const StepBasic_ProductDefinition*, Material> readMaterials(
    const StepFile& file);

}  // namespace step
