#include "parts/glb_streams.h"

#include "parts/glb_packing.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <utility>

namespace parts {
namespace {

using nlohmann::json;

// Numbers of the standard.
constexpr int kByte = 5120;
constexpr int kUnsignedShort = 5123;
constexpr int kUnsignedInt = 5125;
constexpr int kFloat = 5126;
constexpr int kVertices = 34962;
constexpr int kIndices = 34963;

constexpr std::size_t kPointStride = 3 * sizeof(float);
constexpr std::size_t kPackedNormalStride = 4;
constexpr const char* kCompression = "EXT_meshopt_compression";

static_assert(std::endian::native == std::endian::little && sizeof(float) == 4);

template <class Number>
void append(std::string& bytes, const std::vector<Number>& numbers) {
    bytes.append(reinterpret_cast<const char*>(numbers.data()), numbers.size() * sizeof(Number));
}

json boundOf(const std::vector<float>& points, std::size_t first, std::size_t count, bool isUpper) {
    json bound = json::array();
    for (std::size_t axis = 0; axis < 3; ++axis) {
        float value = points[3 * first + axis];
        for (std::size_t point = first; point < first + count; ++point) {
            const float other = points[3 * point + axis];
            value = isUpper ? std::max(value, other) : std::min(value, other);
        }
        bound.push_back(value);
    }
    return bound;
}

/// Views begin at multiples of four, as their numbers need it.
void pad(std::string& bytes) { bytes.resize((bytes.size() + 3) / 4 * 4, '\0'); }

}  // namespace

void GlbStreams::addPoints(const std::vector<float>& points, const GlbGrid& grid) {
    Stream& stream = streamOf(Kind::Points, kPointStride);
    pointsAt_ = stream.bytes.size();
    if (packing_ == GlbPacking::Plain) {
        append(stream.bytes, points);
        return;
    }
    std::vector<std::uint32_t> codes;
    codes.reserve(points.size());
    for (const float value : points) {
        codes.push_back(grid.code(value));
    }
    append(stream.bytes, codes);
}

std::size_t GlbStreams::pointRange(const std::vector<float>& points, std::size_t first,
                                   std::size_t count) {
    Stream& stream = streamOf(Kind::Points, kPointStride);
    accessors_.push_back({{"bufferView", &stream - streams_.data()},
                          {"byteOffset", pointsAt_ + first * kPointStride},
                          {"componentType", kFloat},
                          {"count", count},
                          {"type", "VEC3"},
                          {"min", boundOf(points, first, count, /*isUpper=*/false)},
                          {"max", boundOf(points, first, count, /*isUpper=*/true)}});
    return accessors_.size() - 1;
}

std::size_t GlbStreams::addNormals(const std::vector<float>& normals) {
    Stream& stream = streamOf(Kind::Normals, kPointStride);
    accessors_.push_back({{"bufferView", &stream - streams_.data()},
                          {"byteOffset", stream.bytes.size()},
                          {"componentType", kFloat},
                          {"count", normals.size() / 3},
                          {"type", "VEC3"}});
    append(stream.bytes, normals);
    return accessors_.size() - 1;
}

std::size_t GlbStreams::addNormals(const std::vector<std::uint8_t>& normals) {
    Stream& stream = streamOf(Kind::Normals, kPackedNormalStride);
    accessors_.push_back({{"bufferView", &stream - streams_.data()},
                          {"byteOffset", stream.bytes.size()},
                          {"componentType", kByte},
                          {"normalized", true},
                          {"count", normals.size() / kPackedNormalStride},
                          {"type", "VEC3"}});
    append(stream.bytes, normals);
    return accessors_.size() - 1;
}

std::size_t GlbStreams::addTriangles(const std::vector<std::uint32_t>& indices,
                                     std::size_t points) {
    return addIndices(Kind::Triangles, indices, points);
}

std::size_t GlbStreams::addLines(const std::vector<std::uint32_t>& indices, std::size_t points) {
    return addIndices(Kind::Lines, indices, points);
}

std::size_t GlbStreams::addIndices(Kind kind, const std::vector<std::uint32_t>& indices,
                                   std::size_t points) {
    // The largest number of two bytes is none of a point.
    constexpr std::size_t kMostShort = 65535;
    const bool isShort = points <= kMostShort;
    Stream& stream = streamOf(kind, isShort ? sizeof(std::uint16_t) : sizeof(std::uint32_t));
    accessors_.push_back({{"bufferView", &stream - streams_.data()},
                          {"byteOffset", stream.indices.size() * stream.stride},
                          {"componentType", isShort ? kUnsignedShort : kUnsignedInt},
                          {"count", indices.size()},
                          {"type", "SCALAR"}});
    stream.indices.insert(stream.indices.end(), indices.begin(), indices.end());
    return accessors_.size() - 1;
}

GlbStreams::Stream& GlbStreams::streamOf(Kind kind, std::size_t stride) {
    const auto found = std::ranges::find_if(streams_, [&](const Stream& stream) {
        return stream.kind == kind && stream.stride == stride;
    });
    // Triangles compress well only where each new corner is the next one: a stream for each.
    const bool isShared = kind != Kind::Triangles || packing_ == GlbPacking::Plain;
    if (found != streams_.end() && isShared) {
        return *found;
    }
    streams_.push_back({.kind = kind, .stride = stride});
    return streams_.back();
}

std::string GlbStreams::bytesOf(const Stream& stream) const {
    if (packing_ == GlbPacking::Compressed) {
        return stream.kind == Kind::Triangles ? packTriangles(stream.indices)
               : stream.kind == Kind::Lines   ? packIndices(stream.indices)
                                              : packAttributes(stream.bytes, stream.stride);
    }
    std::string bytes = stream.bytes;
    if (stream.stride == sizeof(std::uint16_t)) {
        append(bytes, std::vector<std::uint16_t>(stream.indices.begin(), stream.indices.end()));
    } else {
        append(bytes, stream.indices);
    }
    return bytes;
}

/// The view as what comes of it once it is unpacked, into a buffer that is not there.
json GlbStreams::compressed(const Stream& stream, std::size_t offset, std::size_t size,
                            json view) const {
    json packed = {{"buffer", 0},
                   {"byteOffset", view["byteOffset"]},
                   {"byteLength", size},
                   {"byteStride", stream.stride},
                   {"count", stream.elements()},
                   {"mode", stream.kind == Kind::Triangles ? "TRIANGLES"
                            : stream.kind == Kind::Lines   ? "INDICES"
                                                           : "ATTRIBUTES"}};
    if (stream.kind == Kind::Points) {
        packed["filter"] = "EXPONENTIAL";
    } else if (stream.kind == Kind::Normals) {
        packed["filter"] = "OCTAHEDRAL";
    }
    view["buffer"] = 1;
    view["byteOffset"] = offset;
    view["byteLength"] = stream.elements() * stream.stride;
    view["extensions"] = {{kCompression, std::move(packed)}};
    return view;
}

std::string GlbStreams::moveTo(json& model) const {
    std::string bytes;
    std::size_t unpackedSize = 0;
    json views = json::array();
    for (const Stream& stream : streams_) {
        const bool isVertex = stream.kind == Kind::Points || stream.kind == Kind::Normals;
        const std::string part = bytesOf(stream);
        json view = {{"buffer", 0},
                     {"byteOffset", bytes.size()},
                     {"byteLength", part.size()},
                     {"target", isVertex ? kVertices : kIndices}};
        if (isVertex) {
            view["byteStride"] = stream.stride;
        }
        views.push_back(packing_ == GlbPacking::Plain
                            ? std::move(view)
                            : compressed(stream, unpackedSize, part.size(), std::move(view)));
        bytes += part;
        pad(bytes);
        unpackedSize += (stream.elements() * stream.stride + 3) / 4 * 4;
    }
    if (!streams_.empty()) {
        model["accessors"] = accessors_;
        model["bufferViews"] = views;
        setBuffers(model, bytes.size(), unpackedSize);
    }
    return bytes;
}

void GlbStreams::setBuffers(json& model, std::size_t size, std::size_t unpackedSize) const {
    model["buffers"] = {{{"byteLength", size}}};
    if (packing_ == GlbPacking::Compressed) {
        model["buffers"].push_back(
            {{"byteLength", unpackedSize}, {"extensions", {{kCompression, {{"fallback", true}}}}}});
        model["extensionsUsed"] = {"KHR_mesh_quantization", kCompression};
        model["extensionsRequired"] = model["extensionsUsed"];
    }
}

}  // namespace parts
