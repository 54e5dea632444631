#pragma once

#include "samples/solid.h"

#include <optional>
#include <string>
#include <vector>

namespace samples {

struct Material {
    std::string name;
    double density = 0;  ///< kg/m3
};

struct Use {
    std::string key;  ///< of the product that is used
    Placement placement;
};

/// A product: a part with a solid, or an assembly with uses of others.
struct Product {
    std::string key;  ///< the name of the product in the generator; not written to the file
    std::string id;
    std::string name;
    std::string description = {};
    std::optional<Material> material = {};
    std::optional<Solid> solid = {};
    std::vector<Use> uses = {};
};

/// Writes products as a STEP file, parts before the assemblies that use them. A use of a product
/// that comes later or is missing throws `std::out_of_range`.
std::string stepFile(const std::string& name, const std::vector<Product>& products);

}  // namespace samples
