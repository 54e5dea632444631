#include "parts/glb_writer.h"

#include "host/design/box_mesh.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdint>
#include <cstring>
#include <sstream>
#include <string>
#include <utility>

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

std::string glbOf(const Drawing& drawing,
                  const parts::GlbOptions& options = {.packing = parts::GlbPacking::Plain}) {
    std::ostringstream stream;
    parts::writeGlb(drawing.design, drawing.shapes, options, stream);
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
    EXPECT_FALSE(nodes[1].contains("translation"));
    EXPECT_EQ(nodes[2].at("translation"), (json{20.0, 0.0, 0.0}));  // in mm
}

TEST(GlbWriter, LeavesOutOccurrencesInWhichNothingCanBeDrawn) {
    Drawing drawing = frameWithBolts();
    std::vector<host::ComponentData>& components = drawing.design.components;
    // The first occurrence becomes a box around a label without a shape, the second stays.
    components.resize(4);
    components[2].name = "Box";
    components[2].children.resize(1);
    components[2].children[0].component = 3;
    components[3].name = "Label";
    components[0].children[0].component = 2;
    drawing.shapes.ofComponent.resize(4);

    const json nodes = descriptionOf(glbOf(drawing)).at("nodes");

    ASSERT_EQ(nodes.size(), 2U);
    EXPECT_EQ(nodes[0].at("children"), json{1});
    EXPECT_EQ(nodes[1].at("name"), "Bolt:2");
}

TEST(GlbWriter, SaysNothingButThePathForAPage) {
    const json nodes =
        descriptionOf(glbOf(frameWithBolts(), {.packing = parts::GlbPacking::Plain,
                                               .extras = parts::GlbExtras::PathAlone}))
            .at("nodes");

    EXPECT_EQ(nodes.at(2).at("extras"), (json{{"path", "Bolt:2"}}));
}

TEST(GlbWriter, TurnsAnOccurrence) {
    Drawing drawing = frameWithBolts();
    // A quarter turn about z, and a half turn about x.
    drawing.design.components[0].children[0].transform.cells = {0, -1, 0, 0, 1, 0, 0, 0,
                                                                0, 0,  1, 0, 0, 0, 0, 1};
    drawing.design.components[0].children[1].transform.cells = {1, 0, 0,  0, 0, -1, 0, 0,
                                                                0, 0, -1, 0, 0, 0,  0, 1};

    const json nodes = descriptionOf(glbOf(drawing)).at("nodes");

    EXPECT_EQ(nodes.at(1).at("rotation"), (json{0.0, 0.0, 0.707106781, 0.707106781}));
    EXPECT_EQ(nodes.at(2).at("rotation"), (json{1.0, 0.0, 0.0, 0.0}));
}

TEST(GlbWriter, HasAMatrixForAMirroredOccurrence) {
    Drawing drawing = frameWithBolts();
    drawing.design.components[0].children[1].transform.cells[0] = -1;

    const json node = descriptionOf(glbOf(drawing)).at("nodes").at(2);

    EXPECT_FALSE(node.contains("rotation"));
    // Column by column: the shift is the last but three of 16 numbers, in mm.
    EXPECT_EQ(node.at("matrix").at(0), -1.0);
    EXPECT_EQ(node.at("matrix").at(12), 20.0);
}

host::Rgba rgb(int red, int green, int blue) {
    return {.red = static_cast<std::uint8_t>(red),
            .green = static_cast<std::uint8_t>(green),
            .blue = static_cast<std::uint8_t>(blue),
            .alpha = 255};
}

/// The colours of the triangles that a node leads to, proportional to light.
json coloursOf(const json& model, std::size_t node) {
    const json& mesh =
        model.at("meshes").at(model.at("nodes").at(node).at("mesh").get<std::size_t>());
    json colours = json::array();
    for (const json& primitive : mesh.at("primitives")) {
        if (!primitive.contains("mode")) {
            colours.push_back(model.at("materials")
                                  .at(primitive.at("material").get<std::size_t>())
                                  .at("pbrMetallicRoughness")
                                  .at("baseColorFactor"));
        }
    }
    return colours;
}

json colourOf(const json& model, std::size_t node) { return coloursOf(model, node).at(0); }

TEST(GlbWriter, GivesAnInstanceAMeshOfItsOwnForItsColour) {
    Drawing drawing = frameWithBolts();
    drawing.shapes.instanceColours = {
        {.path = {{.component = 0, .child = 1}}, .colour = rgb(255, 0, 0)}};

    const json model = descriptionOf(glbOf(drawing));

    EXPECT_EQ(model.at("meshes").size(), 2U);
    EXPECT_NE(colourOf(model, 1), (json{1.0, 0.0, 0.0, 1.0}));
    EXPECT_EQ(colourOf(model, 2), (json{1.0, 0.0, 0.0, 1.0}));
    // The numbers are there once.
    EXPECT_EQ(model["meshes"][0].at("primitives")[0].at("attributes"),
              model["meshes"][1].at("primitives")[0].at("attributes"));
}

TEST(GlbWriter, LeavesTheColourOfAFaceInAnInstance) {
    Drawing drawing = frameWithBolts();
    host::ShapeMesh& mesh = *drawing.shapes.shapes[0].mesh;
    mesh.groups = {{.firstIndex = 0, .indexCount = 6, .colour = rgb(0, 0, 255), .ofFaces = true},
                   {.firstIndex = 6, .indexCount = 30, .colour = rgb(0, 255, 0)}};
    drawing.shapes.instanceColours = {
        {.path = {{.component = 0, .child = 0}}, .colour = rgb(255, 0, 0)}};

    const json model = descriptionOf(glbOf(drawing));

    EXPECT_EQ(colourOf(model, 1), (json{0.0, 0.0, 1.0, 1.0}));
    const json& primitives =
        model["meshes"][model["nodes"][1].at("mesh").get<std::size_t>()].at("primitives");
    EXPECT_EQ(model["materials"][primitives[1].at("material").get<std::size_t>()]
                  .at("pbrMetallicRoughness")
                  .at("baseColorFactor"),
              (json{1.0, 0.0, 0.0, 1.0}));
}

TEST(GlbWriter, ColoursOneBodyOfAnInstanceAlone) {
    Drawing drawing = frameWithBolts();
    host::ShapeMesh& mesh = *drawing.shapes.shapes[0].mesh;
    mesh.groups = {{.firstIndex = 0, .indexCount = 6, .colour = rgb(0, 0, 255), .body = 0},
                   {.firstIndex = 6, .indexCount = 30, .colour = rgb(0, 255, 0)}};
    drawing.shapes.instanceColours = {
        {.path = {{.component = 0, .child = 0}}, .colour = rgb(255, 0, 0), .body = 0}};

    const json model = descriptionOf(glbOf(drawing));

    EXPECT_EQ(coloursOf(model, 1), (json{{1.0, 0.0, 0.0, 1.0}, {0.0, 1.0, 0.0, 1.0}}));
    EXPECT_EQ(coloursOf(model, 2), (json{{0.0, 0.0, 1.0, 1.0}, {0.0, 1.0, 0.0, 1.0}}));
}

TEST(GlbWriter, AnOuterInstanceColoursBodiesToo) {
    Drawing drawing = frameWithBolts();
    drawing.shapes.shapes[0].mesh->groups[0].body = 0;
    drawing.design.components.resize(3);
    drawing.design.components[2].name = "Rack";
    std::swap(drawing.design.components[0], drawing.design.components[2]);
    drawing.design.components[0].children = {drawing.design.components[2].children[0]};
    drawing.design.components[0].children[0].component = 2;
    drawing.shapes.ofComponent = {std::nullopt, 0, std::nullopt};
    drawing.shapes.instanceColours = {
        {.path = {{.component = 2, .child = 0}}, .colour = rgb(255, 0, 0), .body = 0},
        {.path = {{.component = 0, .child = 0}}, .colour = rgb(0, 0, 255)}};

    // Nodes: rack, frame, bolt.
    EXPECT_EQ(colourOf(descriptionOf(glbOf(drawing)), 2), (json{0.0, 0.0, 1.0, 1.0}));
}

TEST(GlbWriter, ColoursTheInstanceThatAWholePathNames) {
    Drawing drawing = frameWithBolts();
    // Two frames in a rack; the first bolt of the second one is red.
    drawing.design.components.resize(3);
    drawing.design.components[2].name = "Rack";
    std::swap(drawing.design.components[0], drawing.design.components[2]);
    drawing.design.components[0].children.resize(2);
    drawing.design.components[0].children[0].component = 2;
    drawing.design.components[0].children[1].component = 2;
    drawing.design.components[0].children[1].instance = 2;
    drawing.shapes.ofComponent = {std::nullopt, 0, std::nullopt};
    drawing.shapes.instanceColours = {
        {.path = {{.component = 0, .child = 1}, {.component = 2, .child = 0}},
         .colour = rgb(255, 0, 0)}};

    const json model = descriptionOf(glbOf(drawing));

    // Nodes: rack, frame, its bolts, frame, its bolts.
    const json red = {1.0, 0.0, 0.0, 1.0};
    EXPECT_NE(colourOf(model, 2), red);
    EXPECT_EQ(colourOf(model, 5), red);
    EXPECT_NE(colourOf(model, 6), red);
}

TEST(GlbWriter, ColoursByMaterialWhatHasNoColour) {
    Drawing drawing = frameWithBolts();
    drawing.design.components[1].material = {.name = "Brass, naval", .density = 0.0084};
    const json brass = colourOf(descriptionOf(glbOf(drawing)), 1);
    drawing.design.components[1].material->name = "CuZn37 brass";

    EXPECT_EQ(colourOf(descriptionOf(glbOf(drawing)), 1), brass);

    drawing.design.components[1].material->nameAssumed = true;
    EXPECT_NE(colourOf(descriptionOf(glbOf(drawing)), 1), brass);
}

TEST(GlbWriter, DrawsEdgesAlongTheCornersOfTriangles) {
    const json model = descriptionOf(glbOf(frameWithBolts()));

    // Twelve edges of two points, in the 24 corners of the sides.
    const json& lines = model.at("meshes")[0].at("primitives")[1];
    EXPECT_EQ(lines.at("attributes").at("POSITION"),
              model["meshes"][0]["primitives"][0].at("attributes").at("POSITION"));
    EXPECT_EQ(model.at("accessors").at(lines.at("indices").get<std::size_t>()).at("count"), 24);
    EXPECT_EQ(model["accessors"][lines["attributes"]["POSITION"].get<std::size_t>()].at("count"),
              24);
}

TEST(GlbWriter, DrawsCurvesWithoutTriangles) {
    Drawing drawing = frameWithBolts();
    host::ShapeMesh wire;
    wire.edgePointsMm = {0, 0, 0, 10, 0, 0, 10, 5, 0};
    wire.edgeEnds = {3};
    drawing.shapes.shapes[0].mesh = wire;

    const json model = descriptionOf(glbOf(drawing));

    const json& primitives = model.at("meshes").at(0).at("primitives");
    ASSERT_EQ(primitives.size(), 1U);
    EXPECT_EQ(primitives[0].at("mode"), 1);
    EXPECT_EQ(model.at("accessors").at(primitives[0].at("indices").get<std::size_t>()).at("count"),
              4);
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

TEST(GlbWriter, CountsEachMeshOnce) {
    Drawing drawing = frameWithBolts();
    std::ostringstream stream;
    const parts::GlbOptions plain = {.packing = parts::GlbPacking::Plain};
    const parts::GlbCounts once = {.meshes = 1, .triangles = 12};
    EXPECT_EQ(parts::writeGlb(drawing.design, drawing.shapes, plain, stream), once);

    drawing.shapes.instanceColours = {
        {.path = {{.component = 0, .child = 1}}, .colour = rgb(255, 0, 0)}};
    const parts::GlbCounts twice = {.meshes = 2, .triangles = 24};
    EXPECT_EQ(parts::writeGlb(drawing.design, drawing.shapes, plain, stream), twice);
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
