#pragma once

#include "host/design/design_data.h"

#include <cstddef>
#include <string>
#include <vector>

namespace host {

/// A material of a design, and how many components that have a shape are made of it.
struct MaterialUse {
    std::string name;
    double density = 0;  ///< kg/cm3
    std::size_t components = 0;
    bool nameAssumed = false;     ///< the source names none
    bool densityAssumed = false;  ///< the source has none that is understood

    bool operator==(const MaterialUse&) const = default;
};

/// A design in numbers.
struct DesignSummary {
    std::string name;
    std::string unit;            ///< length unit of the file it came from; empty if it names none
    std::size_t components = 0;  ///< the root component is one of them
    std::size_t occurrences =
        0;                   ///< every use of every component, those in sub-assemblies repeated
    std::size_t levels = 0;  ///< how deep assemblies are nested; 0 without occurrences
    std::size_t bodies = 0;  ///< components that have a shape of their own
    std::size_t withoutMaterial = 0;     ///< components with a shape whose material is assumed
    std::vector<MaterialUse> materials;  ///< in the order in which components name them
};

/// Counts a design that an importer or a design file gave.
DesignSummary summarize(const DesignData& design);

}  // namespace host
