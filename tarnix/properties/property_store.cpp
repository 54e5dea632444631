#include "tarnix/properties/property_store.h"

#include <algorithm>
#include <cstddef>

namespace tarnix {
namespace {

using namespace adsk::core;
using namespace adsk::fusion;

constexpr std::size_t kModelKeyCount = 3;

bool isModelKey(const std::string& key) {
    return key == kPartNumberKey || key == kPartNameKey || key == kDescriptionKey;
}

}  // namespace

ComponentProperties readComponentProperties(Ptr<Component> component) {
    ComponentProperties properties{{}, component};
    const Ptr<Attributes> attributes = component->attributes();
    if (!attributes) {
        return properties;
    }
    auto& entries = properties.entries;
    entries.reserve(kModelKeyCount);
    entries.push_back({.name = kPartNumberKey, .value = component->partNumber()});
    entries.push_back({.name = kPartNameKey, .value = component->name()});
    entries.push_back({.name = kDescriptionKey, .value = component->description()});
    const auto ofGroup = attributes->itemsByGroup(kPropertiesAttributesGroup);
    entries.reserve(kModelKeyCount + ofGroup.size());
    for (const auto& attribute : ofGroup) {
        std::string name = attribute->name();
        if (!isModelKey(name)) {
            entries.push_back({.name = std::move(name), .value = attribute->value()});
        }
    }
    return properties;
}

void writeComponentProperties(ComponentProperties properties) {
    const auto& component = properties.component;
    const Ptr<Attributes> attributes = component->attributes();
    if (!attributes) {
        return;
    }
    std::string partNumber;
    for (const auto& entry : properties.entries) {
        if (entry.name == kPartNumberKey) {
            partNumber = entry.value;
            component->partNumber(partNumber);
        } else if (entry.name == kPartNameKey) {
            component->name(entry.value);
            // The host carries a part number along with the name.
            component->partNumber(partNumber);
        } else if (entry.name == kDescriptionKey) {
            component->description(entry.value);
        } else {
            writeAttribute(attributes, entry.name, entry.value);
        }
    }
}

void writeAttribute(const Ptr<Attributes>& attributes, const std::string& name,
                    const std::string& value) {
    const Ptr<Attribute> attribute = attributes->itemByName(kPropertiesAttributesGroup, name);
    if (attribute) {
        attribute->value(value);
    } else {
        attributes->add(kPropertiesAttributesGroup, name, value);
    }
}

std::string findProperty(ComponentProperties properties, std::string key) {
    const auto entry =
        std::find_if(properties.entries.begin(), properties.entries.end(),
                     [&key](const PropertyEntry& candidate) { return candidate.name == key; });
    return entry == properties.entries.end() ? std::string() : entry->value;
}

}  // namespace tarnix
