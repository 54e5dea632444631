#include "host/design/design_check.h"

#include "host/design/expansion.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace host {
namespace {

[[noreturn]] void refuse(const std::string& place, const std::string& reason) {
    throw DesignError(place + ": " + reason);
}

std::string placeOf(std::size_t component) {
    return "components[" + std::to_string(component) + "]";
}

std::string placeOf(std::size_t component, std::size_t child) {
    return placeOf(component) + ".children[" + std::to_string(child) + "]";
}

/// What is wrong with a placement, null for nothing.
const char* faultOf(const Transform& transform) {
    const auto& cells = transform.cells;
    if (!std::all_of(cells.begin(), cells.end(), [](double cell) { return std::isfinite(cell); })) {
        return "sixteen finite numbers are needed";
    }
    const bool isAffine = cells[12] == 0 && cells[13] == 0 && cells[14] == 0 && cells[15] == 1;
    return isAffine ? nullptr : "the last four numbers must be 0, 0, 0, 1";
}

/// A place is made only where something is wrong: a large design has hundreds of thousands.
template <class Place>
void checkAttributes(const std::vector<AttributeData>& attributes, const Place& place) {
    if (attributes.empty()) {
        return;
    }
    std::vector<std::pair<std::string_view, std::string_view>> names;
    names.reserve(attributes.size());
    for (const AttributeData& attribute : attributes) {
        if (attribute.group.empty() || attribute.name.empty()) {
            refuse(place() + ".attributes", "an attribute needs a group and a name");
        }
        names.emplace_back(attribute.group, attribute.name);
    }
    std::sort(names.begin(), names.end());
    const auto twice = std::adjacent_find(names.begin(), names.end());
    if (twice != names.end()) {
        refuse(place() + ".attributes", "\"" + std::string(twice->second) + "\" of the group \"" +
                                            std::string(twice->first) + "\" may appear only once");
    }
}

void checkChildren(const DesignData& data, std::size_t index) {
    const std::vector<OccurrenceData>& children = data.components[index].children;
    for (std::size_t at = 0; at < children.size(); ++at) {
        const OccurrenceData& child = children[at];
        if (child.absent) {
            continue;
        }
        if (child.component >= data.components.size()) {
            refuse(placeOf(index, at), "component " + std::to_string(child.component) +
                                           " is not there; the last one is " +
                                           std::to_string(data.components.size() - 1));
        }
        if (child.component == 0) {
            refuse(placeOf(index, at), "component 0 is the root component and cannot be placed");
        }
        if (child.instance < 1) {
            refuse(placeOf(index, at), "the instance must be 1 or more");
        }
        if (const char* const fault = faultOf(child.transform)) {
            refuse(placeOf(index, at) + ".transform", fault);
        }
    }
}

void checkComponent(const DesignData& data, std::size_t index) {
    const ComponentData& component = data.components[index];
    // The root component is called like the document.
    if (component.name.empty() && index > 0) {
        refuse(placeOf(index), "a component needs a name");
    }
    if (component.material &&
        !(std::isfinite(component.material->density) && component.material->density >= 0)) {
        refuse(placeOf(index) + ".material", "the density must be a number of 0 or more");
    }
    checkAttributes(component.attributes, [&] { return placeOf(index); });
    checkChildren(data, index);
}

void checkInstances(const DesignData& data) {
    std::vector<std::tuple<std::size_t, int>> uses;
    for (const ComponentData& component : data.components) {
        for (const OccurrenceData& child : component.children) {
            if (!child.absent) {
                uses.emplace_back(child.component, child.instance);
            }
        }
    }
    std::sort(uses.begin(), uses.end());
    const auto twice = std::adjacent_find(uses.begin(), uses.end());
    if (twice != uses.end()) {
        refuse(placeOf(std::get<0>(*twice)), "two uses have the instance " +
                                                 std::to_string(std::get<1>(*twice)) +
                                                 "; each use needs a number of its own");
    }
}

void checkExpansion(const DesignData& data) {
    const Expansion expansion = expand(data);
    if (expansion.cycle) {
        refuse(placeOf(*expansion.cycle),
               "\"" + data.components[*expansion.cycle].name +
                   "\" contains itself; an assembly must be free of itself");
    }
    if (expansion.occurrences > kMaximumOccurrences) {
        refuse("components", "the assembly has more than " + std::to_string(kMaximumOccurrences) +
                                 " occurrences, which is the most that can be opened");
    }
    if (expansion.levels > kMaximumLevels) {
        refuse("components", "assemblies are nested more than " + std::to_string(kMaximumLevels) +
                                 " levels deep, which is the most that can be opened");
    }
}

}  // namespace

void checkDesign(const DesignData& data) {
    if (data.components.empty()) {
        refuse("components", "a design needs at least its root component");
    }
    checkAttributes(data.attributes, [] { return std::string("the design"); });
    for (std::size_t index = 0; index < data.components.size(); ++index) {
        checkComponent(data, index);
    }
    checkExpansion(data);
    checkInstances(data);
}

std::size_t countOccurrences(const DesignData& data) { return expand(data).occurrences; }

std::size_t countLevels(const DesignData& data) { return expand(data).levels; }

}  // namespace host
