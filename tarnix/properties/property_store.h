#pragma once

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

#include <string>
#include <vector>

namespace tarnix {

/// Where a component's properties live in the design.
///
/// The part number, the name and the description are the model's own; everything else is an
/// attribute of one group on the component, a value under a name. All occurrences of a component
/// share one set. Nothing is cached: each read asks the model again.

/// The group of a component's attributes that holds its properties.
inline constexpr const char* kPropertiesAttributesGroup = "QEMA_PropertiesAttributesGroup";

inline constexpr const char* kPartNumberKey = "QEMA_Part Number";
inline constexpr const char* kPartNameKey = "QEMA_Part Name";
inline constexpr const char* kDescriptionKey = "QEMA_Description";

/// A property: its key, compared byte for byte, and its value.
struct PropertyEntry {
    std::string name;
    std::string value;

    bool operator==(const PropertyEntry&) const = default;
};

/// The properties of one component, in order. A copy has entries of its own and a further reference
/// on the same component.
struct ComponentProperties {
    std::vector<PropertyEntry> entries;
    adsk::core::Ptr<adsk::fusion::Component> component;
};

/// The properties of `component`: part number, part name, description, then the attributes of the
/// group in the host's order.
///
/// An attribute under one of the three model keys is skipped. A component without an attribute
/// collection has no entries at all. Throws a plain `std::exception` for a null component.
ComponentProperties readComponentProperties(adsk::core::Ptr<adsk::fusion::Component> component);

/// Writes the entries to their component, in order; what has no entry stays as it was.
///
/// The part number has to come before the part name: writing a name sets the part number again to
/// the one that was written last, an empty string if none was. A component without an attribute
/// collection takes nothing. Throws a plain `std::exception` for a null component.
void writeComponentProperties(ComponentProperties properties);

/// Sets the attribute `name` of the properties' group to `value`, and adds it where it is missing.
///
/// Throws a plain `std::exception` for a null collection.
void writeAttribute(const adsk::core::Ptr<adsk::core::Attributes>& attributes,
                    const std::string& name, const std::string& value);

/// The value of the first entry under `key`; an empty string where there is none.
std::string findProperty(ComponentProperties properties, std::string key);

}  // namespace tarnix
