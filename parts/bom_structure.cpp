#include "parts/bom_structure.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <set>

namespace parts {
namespace {

// The add-in's vocabulary. What it calls the values of the model itself is no custom property.
constexpr const char* kPropertyGroup = "QEMA_PropertiesAttributesGroup";
constexpr const char* kPrefix = "QEMA_";
constexpr std::array kModelKeys = {"QEMA_Part Number", "QEMA_Part Name", "QEMA_Description"};
constexpr std::array kNames = {"Produce", "Buy", "AsPart", "Divided", "Reference"};
constexpr const char* kSet = "1";

std::optional<BomStructure> structureNamed(const std::string& name) {
    const auto* const found = std::ranges::find(kNames, name);
    if (found == kNames.end()) {
        return std::nullopt;
    }
    return static_cast<BomStructure>(found - kNames.begin());
}

bool isProperty(const host::AttributeData& attribute) {
    return attribute.group == kPropertyGroup &&
           std::ranges::find(kModelKeys, attribute.name) == kModelKeys.end();
}

bool isSet(const host::AttributeData& attribute) {
    return attribute.value == kSet && isProperty(attribute);
}

/// The structure that counts; nothing where another value comes before it.
std::optional<BomStructure> countingStructure(const host::ComponentData& component) {
    if (component.partNumber == kSet || component.name == kSet || component.description == kSet) {
        return std::nullopt;
    }
    const auto first = std::ranges::find_if(component.attributes, isSet);
    return first == component.attributes.end() ? std::nullopt : structureNamed(first->name);
}

}  // namespace

const char* nameOf(BomStructure structure) {
    return kNames.at(static_cast<std::size_t>(structure));
}

BomStructure structureOf(const host::ComponentData& component) {
    return countingStructure(component).value_or(BomStructure::Produce);
}

std::optional<BomStructure> hiddenStructure(const host::ComponentData& component) {
    if (countingStructure(component)) {
        return std::nullopt;
    }
    for (const host::AttributeData& attribute : component.attributes) {
        const std::optional<BomStructure> structure = structureNamed(attribute.name);
        if (structure && isSet(attribute)) {
            return structure == BomStructure::Produce ? std::nullopt : structure;
        }
    }
    return std::nullopt;
}

std::optional<std::string> propertyOf(const host::ComponentData& component,
                                      const std::string& name) {
    const std::string key = kPrefix + name;
    // The add-in shows the last one.
    const auto found = std::find_if(
        component.attributes.rbegin(), component.attributes.rend(),
        [&](const host::AttributeData& each) { return each.name == key && isProperty(each); });
    return found == component.attributes.rend() ? std::nullopt : std::optional(found->value);
}

std::vector<std::string> propertyNames(const host::DesignData& design) {
    const std::string prefix = kPrefix;
    std::set<std::string> names;
    for (const host::ComponentData& component : design.components) {
        for (const host::AttributeData& each : component.attributes) {
            if (isProperty(each) && each.name.starts_with(prefix) && !structureNamed(each.name)) {
                names.insert(each.name.substr(prefix.size()));
            }
        }
    }
    return {names.begin(), names.end()};
}

}  // namespace parts
