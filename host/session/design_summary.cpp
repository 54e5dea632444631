#include "host/session/design_summary.h"

#include "host/design/design_check.h"

#include <algorithm>

namespace host {
namespace {

void countMaterial(std::vector<MaterialUse>& uses, const MaterialData& material) {
    const auto known = std::find_if(uses.begin(), uses.end(), [&](const MaterialUse& use) {
        return use.name == material.name && use.density == material.density &&
               use.nameAssumed == material.nameAssumed &&
               use.densityAssumed == material.densityAssumed;
    });
    if (known == uses.end()) {
        uses.push_back({.name = material.name,
                        .density = material.density,
                        .components = 1,
                        .nameAssumed = material.nameAssumed,
                        .densityAssumed = material.densityAssumed});
    } else {
        ++known->components;
    }
}

}  // namespace

DesignSummary summarize(const DesignData& design) {
    DesignSummary summary;
    summary.name = design.name;
    summary.unit = design.unit;
    summary.components = design.components.size();
    summary.occurrences = countOccurrences(design);
    summary.levels = countLevels(design);
    for (const ComponentData& component : design.components) {
        if (component.geometry == nullptr) {
            continue;
        }
        ++summary.bodies;
        if (component.material) {
            countMaterial(summary.materials, *component.material);
            summary.withoutMaterial += component.material->nameAssumed ? 1 : 0;
        }
    }
    return summary;
}

}  // namespace host
