#pragma once

#include "host/design/design_data.h"

#include <optional>
#include <string>
#include <vector>

namespace parts {

/// What becomes of a component in a list.
enum class BomStructure { Produce, Buy, AsPart, Divided, Reference };

/// The add-in's name of it.
const char* nameOf(BomStructure structure);

/// The structure of a component as the add-in reads it: of its part number, name and description
/// and its attributes in the add-in's group, in this order, the first whose value is "1" decides.
/// Produce where that is none of the structures, or where there is none.
BomStructure structureOf(const host::ComponentData& component);

/// The structure that a component is marked with but that does not count, because something else
/// with the value "1" comes before it; nothing where there is none.
std::optional<BomStructure> hiddenStructure(const host::ComponentData& component);

/// The value of a custom property, by its name without the add-in's prefix; nothing where the
/// component has none.
std::optional<std::string> propertyOf(const host::ComponentData& component,
                                      const std::string& name);

/// The names of all custom properties in a design, sorted.
std::vector<std::string> propertyNames(const host::DesignData& design);

}  // namespace parts
