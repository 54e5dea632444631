#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

/// Compression of what a model is made of, as the extensions EXT_meshopt_compression and
/// KHR_mesh_quantization of glTF define it. Where the library for it is not packaged nothing is
/// compressed: `canPack` says so, and all else throws a `std::logic_error`.
namespace parts {

[[nodiscard]] bool canPack();

/// A surface whose corners are of limited precision, each there once, in an order that compresses
/// well.
struct PackedSurface {
    std::vector<float> points;           ///< x, y, z of each corner
    std::vector<std::uint8_t> normals;   ///< four bytes for each, by the filter OCTAHEDRAL
    std::vector<std::uint32_t> indices;  ///< three corners for each triangle
};

/// `points` and `normals` have three numbers for each corner.
PackedSurface packSurface(const std::vector<float>& points, const std::vector<float>& normals,
                          const std::vector<std::uint32_t>& indices);

/// Elements of so many bytes each, a multiple of four (mode ATTRIBUTES).
std::string packAttributes(const std::string& elements, std::size_t stride);

/// Indices of triangles (mode TRIANGLES).
std::string packTriangles(std::span<const std::uint32_t> indices);

/// Indices of anything (mode INDICES).
std::string packIndices(std::span<const std::uint32_t> indices);

}  // namespace parts
