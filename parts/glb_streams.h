#pragma once

#include "parts/glb_grid.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace parts {

enum class GlbPacking { Plain, Compressed };

/// The numbers of a model: what glTF calls accessors, and the views and bytes that these lead to.
///
/// All points are in one view, all normals in another and so on, so that many small shapes take
/// little more than their numbers. The methods return the number of the accessor.
class GlbStreams {
public:
    explicit GlbStreams(GlbPacking packing) : packing_(packing) {}

    /// Points on the grid, three numbers each; `first` and `count` say of which there is to be an
    /// accessor.
    void addPoints(const std::vector<float>& points, const GlbGrid& grid);
    std::size_t pointRange(const std::vector<float>& points, std::size_t first, std::size_t count);

    /// Three numbers each.
    std::size_t addNormals(const std::vector<float>& normals);

    /// Four bytes each, as `packSurface` returns them.
    std::size_t addNormals(const std::vector<std::uint8_t>& normals);

    /// Indices of so many points.
    std::size_t addTriangles(const std::vector<std::uint32_t>& indices, std::size_t points);
    std::size_t addLines(const std::vector<std::uint32_t>& indices, std::size_t points);

    /// Sets "accessors", "bufferViews", "buffers", and the extensions where there are any; nothing
    /// if there are no numbers. Returns the bytes of the first buffer.
    std::string moveTo(nlohmann::json& model) const;

private:
    enum class Kind { Points, Normals, Triangles, Lines };

    /// What becomes a view.
    struct Stream {
        Kind kind = Kind::Points;
        std::size_t stride = 0;
        std::string bytes = {};                   ///< of points and normals
        std::vector<std::uint32_t> indices = {};  ///< of all else

        [[nodiscard]] std::size_t elements() const {
            return indices.empty() ? bytes.size() / stride : indices.size();
        }
    };

    Stream& streamOf(Kind kind, std::size_t stride);
    std::size_t addIndices(Kind kind, const std::vector<std::uint32_t>& indices,
                           std::size_t points);
    [[nodiscard]] std::string bytesOf(const Stream& stream) const;
    [[nodiscard]] nlohmann::json compressed(const Stream& stream, std::size_t offset,
                                            std::size_t size, nlohmann::json view) const;

    void setBuffers(nlohmann::json& model, std::size_t size, std::size_t unpackedSize) const;

    GlbPacking packing_;
    std::vector<Stream> streams_;
    nlohmann::json accessors_ = nlohmann::json::array();
    std::size_t pointsAt_ = 0;  ///< where the points begin that were added last, in bytes
};

}  // namespace parts
