#include "parts/item_measures.h"

#include "host/design/transform.h"

#include <exception>
#include <utility>

namespace parts {

ItemMeasures::ItemMeasures(const host::DesignData& design)
    : design_(design), known_(design.components.size()) {
    structures_.reserve(design.components.size());
    for (const host::ComponentData& component : design.components) {
        structures_.push_back(structureOf(component));
    }
}

bool ItemMeasures::counts(const host::OccurrenceData& child) const {
    return !child.absent && structures_[child.component] != BomStructure::Reference;
}

/// The root component is listed whatever its structure is.
bool ItemMeasures::hasOwnBodies(std::size_t component) const {
    return design_.components[component].geometry != nullptr &&
           (component == 0 || structures_[component] != BomStructure::Divided);
}

/// Nothing where there are no bodies, or where they cannot be measured, which is noted.
template <class Result, class Ask>
std::optional<Result> ItemMeasures::ask(std::size_t component, Ask question) {
    if (!hasOwnBodies(component)) {
        return std::nullopt;
    }
    try {
        return question(*design_.components[component].geometry);
    } catch (const std::exception& failure) {
        if (!std::exchange(known_[component].hasFailed, true)) {
            failures_.push_back({.component = component, .reason = failure.what()});
        }
        return std::nullopt;
    }
}

Measured ItemMeasures::measureOwn(std::size_t component) {
    const host::ComponentData& data = design_.components[component];
    const auto measured = ask<Measured>(component, [&](host::Geometry& geometry) {
        const double volume = geometry.volume();
        return Measured{.area = geometry.area(),
                        .volume = volume,
                        .mass = data.material ? volume * data.material->density : 0,
                        .bodies = geometry.bodies(),
                        .hasGeometry = true};
    });
    const bool hasFailed = hasOwnBodies(component);
    return measured.value_or(Measured{.hasGeometry = hasFailed, .isUnmeasured = hasFailed});
}

Measured ItemMeasures::own(std::size_t component) {
    std::optional<Measured>& known = known_[component].own;
    if (!known) {
        known = measureOwn(component);
    }
    return *known;
}

Measured ItemMeasures::whole(std::size_t component) {
    if (known_[component].whole) {
        return *known_[component].whole;
    }
    Measured sum = own(component);
    for (const host::OccurrenceData& child : design_.components[component].children) {
        if (counts(child)) {
            const Measured below = whole(child.component);
            sum.area += below.area;
            sum.volume += below.volume;
            sum.mass += below.mass;
            sum.bodies += below.bodies;
            sum.hasGeometry = sum.hasGeometry || below.hasGeometry;
            sum.isUnmeasured = sum.isUnmeasured || below.isUnmeasured;
        }
    }
    known_[component].whole = sum;
    return sum;
}

std::optional<host::Box> ItemMeasures::ownBox(std::size_t component) {
    const auto box = ask<std::optional<host::Box>>(
        component, [](host::Geometry& geometry) { return geometry.box({}); });
    return box.value_or(std::nullopt);
}

std::optional<host::Box> ItemMeasures::wholeBox(std::size_t component) {
    if (!known_[component].box) {
        known_[component].box = boxAround(component, {});
    }
    return *known_[component].box;
}

/// The box around a placed component. One that is placed askew is measured again as it lies.
std::optional<host::Box> ItemMeasures::placedBox(std::size_t component,
                                                 const host::Transform& placement) {
    if (!host::keepsAxes(placement)) {
        return boxAround(component, placement);
    }
    const std::optional<host::Box> box = wholeBox(component);
    return box ? std::optional(host::placed(*box, placement)) : std::nullopt;
}

std::optional<host::Box> ItemMeasures::boxAround(std::size_t component,
                                                 const host::Transform& placement) {
    std::optional<host::Box> sum =
        ask<std::optional<host::Box>>(component, [&](host::Geometry& geometry) {
            return geometry.box(placement);
        }).value_or(std::nullopt);
    for (const host::OccurrenceData& child : design_.components[component].children) {
        if (counts(child)) {
            host::include(sum, placedBox(child.component, placement * child.transform));
        }
    }
    return sum;
}

bool ItemMeasures::isOwnAssumed(std::size_t component) const {
    const host::ComponentData& data = design_.components[component];
    return hasOwnBodies(component) && data.material &&
           (data.material->nameAssumed || data.material->densityAssumed);
}

bool ItemMeasures::isAssumed(std::size_t component) {
    if (!known_[component].isAssumed) {
        bool isAny = isOwnAssumed(component);
        for (const host::OccurrenceData& child : design_.components[component].children) {
            isAny = isAny || (counts(child) && isAssumed(child.component));
        }
        known_[component].isAssumed = isAny;
    }
    return *known_[component].isAssumed;
}

}  // namespace parts
