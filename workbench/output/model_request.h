#pragma once

#include <cstddef>

namespace workbench {

/// How closely a model follows its shapes.
enum class ModelDetail { Coarse, Normal, Fine };

/// What an assembly in 3D is to be like, as a file or in a page.
struct ModelRequest {
    ModelDetail detail = ModelDetail::Normal;
    std::size_t maximumTriangles = 200'000;  ///< of one shape
    bool isPlain = false;                    ///< not compressed, for readers without extensions

    bool operator==(const ModelRequest&) const = default;
};

}  // namespace workbench
