#pragma once

#include "parts/item_measures.h"
#include "parts/item_tree.h"
#include "parts/part_shapes.h"
#include "parts/parts_request.h"

#include "host/design/design_data.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace parts {

/// What all that makes a list looks at. It refers to its arguments.
struct ListContext {
    ListContext(const host::DesignData& ofDesign, const PartsRequest& asked,
                const PartShapes& knownShapes);

    const host::DesignData& design;
    const PartsRequest& request;
    const PartShapes& shapes;
    ItemTree tree;
    ItemMeasures measures;
    bool isMeasured;  ///< the request needs the bodies: masses may be asked for
    std::unordered_set<std::string_view> names;  ///< of all components

    [[nodiscard]] const host::ComponentData& at(std::size_t component) const {
        return design.components[component];
    }

    /// Whether a component has bodies of its own.
    [[nodiscard]] bool hasBodies(std::size_t component) const {
        return at(component).geometry != nullptr;
    }

    /// The part number, where it is empty the name.
    [[nodiscard]] const std::string& numberOf(std::size_t component) const;

    /// The name without the " (2)" that the host adds to a name that is taken.
    [[nodiscard]] std::string baseNameOf(std::size_t component) const;

    /// The class of its shape, where that is all there is of it.
    [[nodiscard]] std::optional<int> shapeOf(std::size_t component) const;

    /// The class of the bodies that it has of its own, whatever else is in it.
    [[nodiscard]] std::optional<int> ownShapeOf(std::size_t component) const;
};

}  // namespace parts
