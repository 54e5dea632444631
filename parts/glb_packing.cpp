#include "parts/glb_packing.h"

#include <meshoptimizer.h>

#include <algorithm>
#include <array>
#include <mutex>

namespace parts {
namespace {

/// The versions that EXT_meshopt_compression names. They are settings of the process.
void chooseVersions() {
    static std::once_flag once;
    std::call_once(once, [] {
        meshopt_encodeVertexVersion(0);
        meshopt_encodeIndexVersion(1);
    });
}

std::vector<std::uint8_t> octahedral(const std::vector<float>& normals) {
    constexpr int kBits = 8;
    constexpr std::size_t kStride = 4;
    std::vector<float> padded;
    padded.reserve(normals.size() / 3 * 4);
    for (std::size_t at = 0; at < normals.size(); at += 3) {
        padded.insert(padded.end(), {normals[at], normals[at + 1], normals[at + 2], 0});
    }
    std::vector<std::uint8_t> bytes(normals.size() / 3 * kStride);
    meshopt_encodeFilterOct(bytes.data(), normals.size() / 3, kStride, kBits, padded.data());
    return bytes;
}

/// Gives each corner the number that `remap` has for it.
void renumber(PackedSurface& surface, const std::vector<unsigned>& remap, std::size_t count) {
    const std::size_t corners = remap.size();
    PackedSurface result;
    result.points.resize(3 * count);
    result.normals.resize(4 * count);
    result.indices.resize(surface.indices.size());
    constexpr std::size_t kPoint = 3 * sizeof(float);
    meshopt_remapVertexBuffer(result.points.data(), surface.points.data(), corners, kPoint,
                              remap.data());
    meshopt_remapVertexBuffer(result.normals.data(), surface.normals.data(), corners, 4,
                              remap.data());
    meshopt_remapIndexBuffer(result.indices.data(), surface.indices.data(), surface.indices.size(),
                             remap.data());
    surface = std::move(result);
}

/// Corners of one place and one normal are one.
void mergeCorners(PackedSurface& surface) {
    const std::size_t corners = surface.points.size() / 3;
    const std::array<meshopt_Stream, 2> streams = {
        {{surface.points.data(), 3 * sizeof(float), 3 * sizeof(float)},
         {surface.normals.data(), 4, 4}}};
    std::vector<unsigned> remap(corners);
    const std::size_t count = meshopt_generateVertexRemapMulti(remap.data(), surface.indices.data(),
                                                               surface.indices.size(), corners,
                                                               streams.data(), streams.size());
    renumber(surface, remap, count);
}

/// How many triangles the corner has that most have.
std::size_t largestFan(const PackedSurface& surface) {
    std::vector<std::size_t> triangles(surface.points.size() / 3);
    for (const std::uint32_t corner : surface.indices) {
        ++triangles[corner];
    }
    return triangles.empty() ? 0 : *std::max_element(triangles.begin(), triangles.end());
}

void sort(PackedSurface& surface) {
    const std::size_t corners = surface.points.size() / 3;
    // The better order takes a time that grows with the square of a fan.
    constexpr std::size_t kLargeFan = 500;
    if (largestFan(surface) < kLargeFan) {
        meshopt_optimizeVertexCacheStrip(surface.indices.data(), surface.indices.data(),
                                         surface.indices.size(), corners);
    } else {
        constexpr unsigned kCache = 16;  // of the decoder
        meshopt_optimizeVertexCacheFifo(surface.indices.data(), surface.indices.data(),
                                        surface.indices.size(), corners, kCache);
    }
    std::vector<unsigned> remap(corners);
    const std::size_t count = meshopt_optimizeVertexFetchRemap(remap.data(), surface.indices.data(),
                                                               surface.indices.size(), corners);
    renumber(surface, remap, count);
}

std::string asText(const std::vector<unsigned char>& bytes, std::size_t size) {
    return {reinterpret_cast<const char*>(bytes.data()), size};
}

}  // namespace

bool canPack() { return true; }

PackedSurface packSurface(const std::vector<float>& points, const std::vector<float>& normals,
                          const std::vector<std::uint32_t>& indices) {
    PackedSurface surface = {.points = points, .normals = octahedral(normals), .indices = indices};
    mergeCorners(surface);
    sort(surface);
    return surface;
}

std::string packAttributes(const std::string& elements, std::size_t stride) {
    chooseVersions();
    const std::size_t count = elements.size() / stride;
    std::vector<unsigned char> bytes(meshopt_encodeVertexBufferBound(count, stride));
    return asText(bytes, meshopt_encodeVertexBuffer(bytes.data(), bytes.size(), elements.data(),
                                                    count, stride));
}

std::string packTriangles(std::span<const std::uint32_t> indices) {
    chooseVersions();
    // The bound depends on how large an index may be.
    std::vector<unsigned char> bytes(meshopt_encodeIndexBufferBound(indices.size(), ~0U));
    return asText(bytes, meshopt_encodeIndexBuffer(bytes.data(), bytes.size(), indices.data(),
                                                   indices.size()));
}

std::string packIndices(std::span<const std::uint32_t> indices) {
    chooseVersions();
    std::vector<unsigned char> bytes(meshopt_encodeIndexSequenceBound(indices.size(), ~0U));
    return asText(bytes, meshopt_encodeIndexSequence(bytes.data(), bytes.size(), indices.data(),
                                                     indices.size()));
}

}  // namespace parts
