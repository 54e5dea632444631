#include "parts/glb_grid.h"
#include "parts/glb_writer.h"

#include "host/design/box_mesh.h"

#include <gtest/gtest.h>
#include <meshoptimizer.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

/// Models as a reader with the extensions understands them.
namespace {

using nlohmann::json;
using Point = std::array<float, 3>;

std::uint32_t numberAt(const std::string& bytes, std::size_t at) {
    std::uint32_t number = 0;
    std::memcpy(&number, bytes.data() + at, sizeof number);
    return number;
}

/// A compressed model, unpacked by the library that wrote the format.
class Unpacked {
public:
    explicit Unpacked(const std::string& glb) {
        const std::size_t text = numberAt(glb, 12);
        json_ = json::parse(glb.substr(20, text));
        const std::string binary = glb.substr(20 + text + 8);
        for (const json& view : json_.at("bufferViews")) {
            views_.push_back(unpack(view, binary));
        }
    }

    [[nodiscard]] const json& description() const { return json_; }

    template <class Element>
    [[nodiscard]] std::vector<Element> elements(const json& number, std::size_t stride) const {
        const json& accessor = json_.at("accessors").at(number.get<std::size_t>());
        const std::vector<unsigned char>& view =
            views_.at(accessor.at("bufferView").get<std::size_t>());
        std::vector<Element> result(accessor.at("count").get<std::size_t>());
        for (std::size_t at = 0; at < result.size(); ++at) {
            const std::size_t from = accessor.at("byteOffset").get<std::size_t>() + at * stride;
            std::memcpy(&result[at], &view.at(from), sizeof(Element));
        }
        return result;
    }

private:
    static std::vector<unsigned char> unpack(const json& view, const std::string& binary) {
        const json& packed = view.at("extensions").at("EXT_meshopt_compression");
        const std::size_t count = packed.at("count");
        const std::size_t stride = packed.at("byteStride");
        const std::string bytes = binary.substr(packed.at("byteOffset"), packed.at("byteLength"));
        const auto* const source = reinterpret_cast<const unsigned char*>(bytes.data());
        std::vector<unsigned char> result(count * stride);
        EXPECT_EQ(view.at("byteLength"), result.size());
        const std::string mode = packed.at("mode");
        const int failure =
            mode == "TRIANGLES"
                ? meshopt_decodeIndexBuffer(result.data(), count, stride, source, bytes.size())
            : mode == "INDICES"
                ? meshopt_decodeIndexSequence(result.data(), count, stride, source, bytes.size())
                : meshopt_decodeVertexBuffer(result.data(), count, stride, source, bytes.size());
        if (failure != 0) {
            throw std::runtime_error("a view cannot be unpacked");
        }
        if (packed.value("filter", "") == "EXPONENTIAL") {
            meshopt_decodeFilterExp(result.data(), count, stride);
        } else if (packed.value("filter", "") == "OCTAHEDRAL") {
            meshopt_decodeFilterOct(result.data(), count, stride);
        }
        return result;
    }

    json json_;
    std::vector<std::vector<unsigned char>> views_;
};

/// A lone part of that mesh.
std::string modelOf(const host::ShapeMesh& mesh) {
    host::DesignData design;
    design.components.emplace_back().name = "Part";
    host::ShapeData shapes;
    shapes.ofComponent = {0};
    shapes.shapes.emplace_back().mesh = mesh;
    std::ostringstream stream;
    parts::writeGlb(design, shapes, {}, stream);
    return stream.str();
}

double volumeOf(const std::vector<Point>& points, const std::vector<std::uint16_t>& indices) {
    double volume = 0;
    for (std::size_t at = 0; at < indices.size(); at += 3) {
        const Point& a = points[indices[at]];
        const Point& b = points[indices[at + 1]];
        const Point& c = points[indices[at + 2]];
        volume += (a[0] * (b[1] * c[2] - b[2] * c[1]) - a[1] * (b[0] * c[2] - b[2] * c[0]) +
                   a[2] * (b[0] * c[1] - b[1] * c[0])) /
                  6.0;
    }
    return volume;
}

TEST(CompressedModel, NamesItsExtensions) {
    const json model = Unpacked(modelOf(host::boxMesh({0, 0, 0}, {10, 10, 10}))).description();

    const json extensions = {"KHR_mesh_quantization", "EXT_meshopt_compression"};
    EXPECT_EQ(model.at("extensionsUsed"), extensions);
    EXPECT_EQ(model.at("extensionsRequired"), extensions);
    EXPECT_TRUE(
        model.at("buffers").at(1).at("extensions").at("EXT_meshopt_compression").at("fallback"));
}

TEST(CompressedModel, HasTheSurfaceOfItsShape) {
    const Unpacked model(modelOf(host::boxMesh({0, 0, 0}, {10, 20, 4})));

    const json& primitive = model.description().at("meshes")[0].at("primitives")[0];
    const json& attributes = primitive.at("attributes");
    const auto points = model.elements<Point>(attributes.at("POSITION"), 12);
    const auto indices = model.elements<std::uint16_t>(primitive.at("indices"), 2);
    EXPECT_EQ(points.size(), 24U);
    EXPECT_EQ(indices.size(), 36U);
    // Whole numbers are on the grid.
    EXPECT_NEAR(volumeOf(points, indices), 800, 1e-9);
    EXPECT_EQ(model.description()["accessors"][attributes["POSITION"].get<std::size_t>()].at("max"),
              (json{10.0, 20.0, 4.0}));
}

TEST(CompressedModel, HasTheNormalsOfItsSides) {
    const Unpacked model(modelOf(host::boxMesh({0, 0, 0}, {10, 20, 4})));

    const json& attributes =
        model.description().at("meshes")[0].at("primitives")[0].at("attributes");
    std::set<std::array<std::int8_t, 3>> normals;
    for (const auto& each :
         model.elements<std::array<std::int8_t, 3>>(attributes.at("NORMAL"), 4)) {
        normals.insert(each);
    }
    const std::set<std::array<std::int8_t, 3>> expected = {
        {127, 0, 0}, {-127, 0, 0}, {0, 127, 0}, {0, -127, 0}, {0, 0, 127}, {0, 0, -127}};
    EXPECT_EQ(normals, expected);
}

TEST(CompressedModel, HasTheEdgesOfItsShape) {
    const Unpacked model(modelOf(host::boxMesh({0, 0, 0}, {10, 20, 4})));

    const json& lines = model.description().at("meshes")[0].at("primitives")[1];
    const auto points = model.elements<Point>(lines.at("attributes").at("POSITION"), 12);
    const auto indices = model.elements<std::uint16_t>(lines.at("indices"), 2);
    float length = 0;
    for (std::size_t at = 0; at < indices.size(); at += 2) {
        const Point& from = points[indices[at]];
        const Point& to = points[indices[at + 1]];
        length += std::abs(from[0] - to[0]) + std::abs(from[1] - to[1]) + std::abs(from[2] - to[2]);
    }
    EXPECT_EQ(length, 4.0F * (10 + 20 + 4));
}

/// Points on a circle, of which triangles make a fan.
host::ShapeMesh fanOf(std::size_t points) {
    host::ShapeMesh mesh;
    for (std::size_t at = 0; at < points; ++at) {
        const double angle = 6.2 * static_cast<double>(at) / static_cast<double>(points);
        mesh.positionsMm.insert(mesh.positionsMm.end(), {static_cast<float>(std::cos(angle)),
                                                         static_cast<float>(std::sin(angle)), 0});
        mesh.normals.insert(mesh.normals.end(), {0, 0, 1});
        if (at > 1) {
            mesh.indices.insert(mesh.indices.end(), {0, static_cast<std::uint32_t>(at - 1),
                                                     static_cast<std::uint32_t>(at)});
        }
    }
    mesh.groups = {{.firstIndex = 0, .indexCount = mesh.indices.size(), .colour = {}}};
    return mesh;
}

TEST(CompressedModel, IsPreciseToASixteenThousandthOfItsExtent) {
    const host::ShapeMesh fan = fanOf(1000);
    const Unpacked model(modelOf(fan));

    const json& primitive = model.description().at("meshes")[0].at("primitives")[0];
    float worst = 0;
    for (const Point& point :
         model.elements<Point>(primitive.at("attributes").at("POSITION"), 12)) {
        worst = std::max(worst, std::abs(std::hypot(point[0], point[1]) - 1));
    }
    EXPECT_LT(worst, 2.0F / 16384);
}

/// A square of points, 1 mm apart, with a triangle at each but the last ones.
host::ShapeMesh sheetOf(std::uint32_t side) {
    host::ShapeMesh mesh;
    for (std::uint32_t at = 0; at < side * side; ++at) {
        mesh.positionsMm.insert(mesh.positionsMm.end(),
                                {static_cast<float>(at % side), static_cast<float>(at / side), 0});
        mesh.normals.insert(mesh.normals.end(), {0, 0, 1});
        if (at + side < side * side) {
            mesh.indices.insert(mesh.indices.end(), {at, at + 1, at + side});
        }
    }
    mesh.groups = {{.firstIndex = 0, .indexCount = mesh.indices.size(), .colour = {}}};
    return mesh;
}

TEST(CompressedModel, HasLongIndicesForManyPoints) {
    const Unpacked model(modelOf(sheetOf(256)));  // 65,536 points

    const json& primitive = model.description().at("meshes")[0].at("primitives")[0];
    const json& accessor =
        model.description().at("accessors").at(primitive.at("indices").get<std::size_t>());
    EXPECT_EQ(accessor.at("componentType"), 5125);
    EXPECT_EQ(accessor.at("count"), 3 * (65'536 - 256));
}

TEST(CompressedModel, IsMuchSmallerThanAPlainOne) {
    host::DesignData design;
    design.components.emplace_back().name = "Part";
    host::ShapeData shapes;
    shapes.ofComponent = {0};
    shapes.shapes.emplace_back().mesh = fanOf(10'000);
    std::ostringstream plain;
    parts::writeGlb(design, shapes, {.packing = parts::GlbPacking::Plain}, plain);

    EXPECT_LT(3 * modelOf(fanOf(10'000)).size(), plain.str().size());
}

TEST(GlbGrid, LeavesFarPointsWhereTheyAre) {
    // 1 mm wide, 16 m away: a step of the grid may not be larger than that of the numbers there.
    const std::vector<float> points = {16000.5F, 0, 0, 16001.25F, 1, 0};

    EXPECT_EQ(parts::GlbGrid(points).rounded(points), points);
}

TEST(GlbGrid, HoldsPointsThatAreAllOne) {
    const std::vector<float> points = {3, 0, 0, 3, 0, 0};

    EXPECT_EQ(parts::GlbGrid(points).rounded(points), points);
    EXPECT_EQ(parts::GlbGrid({0, 0, 0}).rounded({0, 0, 0}), (std::vector<float>{0, 0, 0}));
}

}  // namespace
