#include "host/design/measures.h"

#include "host/base/last_error.h"
#include "host/design/component_object.h"
#include "host/design/model.h"
#include "host/design/transform.h"

#include <Core/Enums.h>

#include <exception>
#include <string>
#include <utility>

namespace host {
namespace {

void noteFailure(ComponentObject& component, const std::string& reason) {
    fail(core::InvalidGeometryError, reason);
    if (!std::exchange(component.measureCache().failed, true)) {
        component.model().unmeasured.push_back(
            {.component = component.state().name, .reason = reason});
    }
}

/// Asks a component's geometry; what cannot be measured counts as if there were no body, and is
/// noted.
template <class Result, class Ask>
Result asked(ComponentObject& component, Ask ask) {
    try {
        return ask(*component.state().geometry);
    } catch (const std::exception& error) {
        noteFailure(component, error.what());
        return {};
    }
}

Measures ownMeasures(ComponentObject& component) {
    MeasureCache& cache = component.measureCache();
    if (!cache.own) {
        cache.own = Measures();
        if (component.state().geometry) {
            cache.own = asked<Measures>(component, [](Geometry& geometry) {
                return Measures{.area = geometry.area(), .volume = geometry.volume()};
            });
        }
    }
    Measures own = *cache.own;
    own.mass = own.volume * component.density();
    return own;
}

std::optional<Box> measuredBox(ComponentObject& component, const Transform& placement) {
    if (!component.state().geometry) {
        return std::nullopt;
    }
    return asked<std::optional<Box>>(component,
                                     [&](Geometry& geometry) { return geometry.box(placement); });
}

MeasureCache::Boxes& boxesOf(ComponentObject& component) {
    MeasureCache& cache = component.measureCache();
    if (!cache.boxes) {
        cache.boxes = std::make_unique<MeasureCache::Boxes>();
        cache.boxes->own = measuredBox(component, {});
    }
    return *cache.boxes;
}

/// The box around a placed component.
std::optional<Box> placedBox(ComponentObject& component, const Transform& placement) {
    if (keepsAxes(placement)) {
        const std::optional<Box> box = boxOf(component);
        return box ? std::optional(placed(*box, placement)) : std::nullopt;
    }
    std::optional<Box> sum = measuredBox(component, placement);
    for (const OccurrenceData& child : component.state().children) {
        if (!child.absent) {
            include(sum, placedBox(component.childComponent(child), placement * child.transform));
        }
    }
    return sum;
}

}  // namespace

Measures measure(ComponentObject& component) {
    MeasureCache& cache = component.measureCache();
    const std::uint64_t edits = component.model().edits.materials;
    if (cache.total && cache.totalEdits == edits) {
        return *cache.total;
    }
    Measures total = ownMeasures(component);
    for (const OccurrenceData& child : component.state().children) {
        if (child.absent) {
            continue;
        }
        const Measures part = measure(component.childComponent(child));
        total.area += part.area;
        total.volume += part.volume;
        total.mass += part.mass;
    }
    cache.total = total;
    cache.totalEdits = edits;
    return total;
}

std::optional<Box> boxOf(ComponentObject& component) {
    MeasureCache::Boxes& boxes = boxesOf(component);
    const std::uint64_t edits = component.model().edits.placements;
    if (boxes.allEdits != edits) {
        std::optional<Box> sum = boxes.own;
        for (const OccurrenceData& child : component.state().children) {
            if (!child.absent) {
                include(sum, placedBox(component.childComponent(child), child.transform));
            }
        }
        boxes.all = sum;
        boxes.allEdits = edits;
    }
    return boxes.all;
}

}  // namespace host
