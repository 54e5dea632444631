#pragma once

#include "host/design/shape_data.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace parts {

/// What is known of the shapes of a design, where shapes were compared at all.
struct PartShapes {
    /// For each component of the design the class of its shape: equal numbers, equal shapes. None
    /// where there is no shape or it could not be compared. Empty where nothing was compared.
    std::vector<std::optional<int>> classOf = {};

    /// For a class a picture of the shape, the bytes of a PNG file.
    std::map<int, std::shared_ptr<const std::string>> pictures = {};
};

enum class Pictures { None, Drawn };

/// What a list needs of the shapes of a design, with a picture of each class that has a mesh, drawn
/// once. Empty where no shape was compared. Throws where a picture cannot be written.
PartShapes partShapesOf(const host::ShapeData& shapes, Pictures pictures);

}  // namespace parts
