#include "host/import/reader/material_warnings.h"

#include "host/import/reader/unit_text.h"

#include <cstddef>
#include <map>
#include <tuple>

namespace step {
namespace {

// Aerogel and osmium, with some room: what is beyond is a slip of the unit.
constexpr double kLightest = 1;      // kg/m3
constexpr double kHeaviest = 25000;  // kg/m3
constexpr double kCubicCentimetres = 1e6;

double perCubicMetre(const Material& material) { return *material.density * kCubicCentimetres; }

bool isDoubtful(const Component& component) {
    // What neither has a shape nor takes one from a file weighs nothing.
    if (!component.material || !component.material->stated ||
        (component.bodies.empty() && !component.content)) {
        return false;
    }
    const Material& material = *component.material;
    return !material.density || perCubicMetre(material) < kLightest ||
           perCubicMetre(material) > kHeaviest;
}

std::string partsText(const std::string& first, std::size_t count) {
    const std::string others =
        count == 2 ? " and 1 other part" : " and " + std::to_string(count - 1) + " other parts";
    return "\"" + first + "\"" + (count == 1 ? "" : others);
}

Warning warningOf(const Component& first, std::size_t count) {
    const StatedDensity& stated = *first.material->stated;
    const std::string what = "states " + numberText(stated.value) +
                             (stated.unit.empty() ? " without a unit" : " " + stated.unit) +
                             " as the density of " + partsText(first.name, count);
    Warning warning{
        .code = "density-unit",
        .text = what +
                (stated.value > 0 ? ", which is no mass by volume" : ", which is not above 0") +
                "; a default density is assumed",
        .component = first.name,
        .value = stated.value,
        .unit = stated.unit};
    if (first.material->density) {
        warning.code = "density-range";
        warning.text = what + ", which is " + numberText(perCubicMetre(*first.material)) +
                       " kg/m3; materials have " + numberText(kLightest) + " to " +
                       numberText(kHeaviest);
    }
    return warning;
}

}  // namespace

void warnOfDensities(Assembly& assembly) {
    using Statement = std::tuple<std::string, double, std::string>;
    struct Parts {
        std::size_t first = 0;
        std::size_t count = 0;
    };
    std::map<Statement, Parts> doubtful;
    for (std::size_t index = 0; index < assembly.components.size(); ++index) {
        if (const Component& component = assembly.components[index]; isDoubtful(component)) {
            const Material& material = *component.material;
            Parts& parts = doubtful[{material.name, material.stated->value, material.stated->unit}];
            parts.first = parts.count++ == 0 ? index : parts.first;
        }
    }
    for (const auto& [statement, parts] : doubtful) {
        assembly.warnings.push_back(warningOf(assembly.components[parts.first], parts.count));
    }
}

}  // namespace step
