#include "parts/glb_writer.h"

#include "host/design/box_mesh.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstring>
#include <sstream>
#include <string>

namespace {

using nlohmann::json;

/// A frame with two bolts, the second 2 cm along x; bolts are boxes of 10 mm.
struct Drawing {
    host::DesignData design;
    host::ShapeData shapes;
};

Drawing frameWithBolts() {
    Drawing drawing;
    drawing.design.name = "Frame";
    drawing.design.components.resize(2);
    host::ComponentData& frame = drawing.design.components[0];
    frame.name = "Frame";
    frame.children.resize(2);
    frame.children[0].component = 1;
    frame.children[1].component = 1;
    frame.children[1].instance = 2;
    frame.children[1].transform.cells[3] = 2;
    drawing.design.components[1].name = "Bolt";
    drawing.design.components[1].partNumber = "B-1";
    drawing.shapes.ofComponent = {std::nullopt, 0};
    drawing.shapes.shapes.emplace_back().mesh = host::boxMesh({0, 0, 0}, {10, 10, 10});
    return drawing;
}

std::string glbOf(const Drawing& drawing) {
    std::ostringstream stream;
    parts::writeGlb(drawing.design, drawing.shapes, stream);
    return stream.str();
}

std::uint32_t numberAt(const std::string& bytes, std::size_t at) {
    std::uint32_t number = 0;
    std::memcpy(&number, bytes.data() + at, sizeof number);
    return number;
}

json descriptionOf(const std::string& glb) {
    return json::parse(glb.substr(20, numberAt(glb, 12)));
}

TEST(GlbWriter, BeginsAsTheStandardWants) {
    const std::string glb = glbOf(frameWithBolts());

    EXPECT_EQ(glb.substr(0, 4), "glTF");
    EXPECT_EQ(numberAt(glb, 4), 2U);
    EXPECT_EQ(numberAt(glb, 8), glb.size());
    EXPECT_EQ(glb.substr(16, 4), "JSON");
    EXPECT_EQ(numberAt(glb, 12) % 4, 0U);
    EXPECT_EQ(glb.substr(20 + numberAt(glb, 12) + 4, 4), std::string("BIN\0", 4));
}

TEST(GlbWriter, HasANodeForEachOccurrence) {
    const json nodes = descriptionOf(glbOf(frameWithBolts())).at("nodes");

    ASSERT_EQ(nodes.size(), 3U);
    EXPECT_EQ(nodes[0].at("children"), (json{1, 2}));
    EXPECT_EQ(nodes[1].at("name"), "Bolt:1");
    EXPECT_EQ(nodes[2].at("extras"),
              (json{{"path", "Bolt:2"}, {"component", "Bolt"}, {"partNumber", "B-1"}}));
    EXPECT_FALSE(nodes[1].contains("matrix"));
    // Column by column: the shift is the last but three of 16 numbers, in mm.
    EXPECT_EQ(nodes[2].at("matrix").at(12), 20.0);
}

TEST(GlbWriter, SharesTheMeshOfAShape) {
    const json model = descriptionOf(glbOf(frameWithBolts()));

    EXPECT_EQ(model.at("meshes").size(), 1U);
    EXPECT_EQ(model["nodes"][1].at("mesh"), 0);
    EXPECT_EQ(model["nodes"][2].at("mesh"), 0);
    const json primitives = model["meshes"][0].at("primitives");
    ASSERT_EQ(primitives.size(), 2U);
    EXPECT_EQ(primitives[1].at("mode"), 1);
    EXPECT_EQ(model["accessors"][0].at("min"), (json{0.0, 0.0, 0.0}));
    EXPECT_EQ(model["accessors"][0].at("max"), (json{10.0, 10.0, 10.0}));
}

TEST(GlbWriter, HasAMaterialForEachColour) {
    Drawing drawing = frameWithBolts();
    host::ShapeMesh& mesh = *drawing.shapes.shapes[0].mesh;
    mesh.groups = {{.firstIndex = 0,
                    .indexCount = 18,
                    .colour = host::Rgba{.red = 255, .green = 0, .blue = 0, .alpha = 51}},
                   {.firstIndex = 18,
                    .indexCount = 18,
                    .colour = host::Rgba{.red = 255, .green = 0, .blue = 0, .alpha = 51}}};

    const json model = descriptionOf(glbOf(drawing));

    ASSERT_EQ(model.at("materials").size(), 2U);  // and that of the edges
    EXPECT_EQ(model["materials"][0].at("alphaMode"), "BLEND");
    EXPECT_EQ(model["materials"][0].at("pbrMetallicRoughness").at("baseColorFactor"),
              (json{1.0, 0.0, 0.0, 0.2}));
}

TEST(GlbWriter, WritesADesignWithoutShapes) {
    Drawing drawing = frameWithBolts();
    drawing.shapes = {};

    const std::string glb = glbOf(drawing);

    EXPECT_FALSE(descriptionOf(glb).contains("meshes"));
    EXPECT_EQ(glb.size(), 20 + numberAt(glb, 12));
}

TEST(GlbWriter, KeepsNamesThatAreNoUtf8Readable) {
    Drawing drawing = frameWithBolts();
    drawing.design.components[1].name = "Bolt \xff </script>";

    EXPECT_EQ(descriptionOf(glbOf(drawing)).at("nodes").at(1).at("name"),
              "Bolt \xEF\xBF\xBD </script>:1");
}

}  // namespace
