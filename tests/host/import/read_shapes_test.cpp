#include "host/import/read_shapes.h"

#include "host/design/geometry.h"
#include "host/import/read_design.h"
#include "host/import/reader_connection.h"
#include "host/import/step_geometry.h"

#include "samples/samples.h"
#include "tests/host/import/drafts.h"
#include "tests/host/import/drawn_parts.h"
#include "tests/host/import/step_text_edits.h"
#include "tests/support/real_files.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

using drafts::part;
using drafts::plate;
using host::DesignData;
using host::ShapeData;
using samples::Product;

/// The names that share a class, in the order of the design.
std::vector<std::vector<std::string>> equalOnes(const DesignData& design, const ShapeData& shapes) {
    std::map<int, std::vector<std::string>> classes;
    for (std::size_t at = 0; at < design.components.size(); ++at) {
        if (const std::optional<int> number = shapes.classOf(at)) {
            classes[*number].push_back(design.components[at].name);
        }
    }
    std::vector<std::vector<std::string>> groups;
    for (auto& [number, names] : classes) {
        std::sort(names.begin(), names.end());
        groups.push_back(std::move(names));
    }
    std::sort(groups.begin(), groups.end());
    return groups;
}

class ReadShapes : public testing::Test {
protected:
    DesignData designOf(const std::string& text) {
        return drafts::import(folder.write("Design.step", text));
    }

    test_support::TemporaryFolder folder;
};

TEST_F(ReadShapes, FindsEqualPartsUnderOtherNames) {
    const DesignData design = designOf(samples::stepFile(
        "x", {part("Plate", plate(10, 20, 5)), part("Copy", plate(10, 20, 5, 50)),
              part("On its edge", plate(20, 5, 10)), part("Other", plate(10, 20, 6))}));

    const ShapeData shapes = host::readShapes(design, {.classes = true});

    const std::vector<std::vector<std::string>> expected = {{"Copy", "On its edge", "Plate"},
                                                            {"Other"}};
    EXPECT_EQ(equalOnes(design, shapes), expected);
    EXPECT_FALSE(shapes.classOf(0).has_value());  // the file itself, which has no body
}

/// The same file with its entities from the last to the first; each is a line.
std::string reversed(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    const auto isEntity = [](const std::string& line) { return line.starts_with('#'); };
    const auto first = std::find_if(lines.begin(), lines.end(), isEntity);
    std::reverse(first, std::find_if_not(first, lines.end(), isEntity));
    std::string result;
    for (const std::string& line : lines) {
        result += line + "\n";
    }
    return result;
}

TEST_F(ReadShapes, FindsTheSamePartsInAnyOrderOfTheFile) {
    const std::string text =
        samples::stepFile("x", {part("Plate", plate(10, 20, 5)), part("Copy", plate(10, 20, 5, 50)),
                                part("Other", plate(10, 20, 6)), part("Cube", plate(9, 9, 9))});
    const DesignData forward = designOf(text);
    const DesignData backward = drafts::import(folder.write("Reversed.step", reversed(text)));
    ASSERT_NE(forward.components[1].name, backward.components[1].name);

    EXPECT_EQ(equalOnes(forward, host::readShapes(forward, {.classes = true})),
              equalOnes(backward, host::readShapes(backward, {.classes = true})));
}

TEST_F(ReadShapes, DescribesAPart) {
    const DesignData design = designOf(samples::stepFile("x", {part("Plate", plate(10, 20, 5))}));

    const ShapeData shapes = host::readShapes(design, {.classes = true});

    const host::ShapeInvariants& plate = shapes.of(0)->invariants.value();
    EXPECT_NEAR(plate.volume, 1, 1e-9);
    EXPECT_NEAR(plate.area, 7, 1e-9);
    EXPECT_EQ(plate.faces, 6U);
    EXPECT_EQ(plate.edges, 12U);
    EXPECT_EQ(plate.vertices, 8U);
    // V / 12 times the squares of the sides, in cm.
    EXPECT_NEAR(plate.secondMoments[0], 1.0 / 12 * 0.25, 1e-9);
    EXPECT_NEAR(plate.secondMoments[1], 1.0 / 12, 1e-9);
    EXPECT_NEAR(plate.secondMoments[2], 1.0 / 12 * 4, 1e-9);
    EXPECT_FALSE(shapes.of(0)->mesh.has_value());
}

TEST_F(ReadShapes, DrawsAPart) {
    const DesignData design = designOf(samples::stepFile("x", {part("Plate", plate(10, 20, 5))}));

    const ShapeData shapes = host::readShapes(design, {.meshes = true});

    const host::ShapeMesh& mesh = shapes.of(0)->mesh.value();
    EXPECT_EQ(mesh.triangles(), 12U);
    EXPECT_EQ(mesh.edgeEnds.size(), 12U);
    EXPECT_EQ(*std::max_element(mesh.positionsMm.begin(), mesh.positionsMm.end()), 10.0F);
    EXPECT_EQ(shapes.of(0)->problem, "");
    EXPECT_FALSE(shapes.classOf(0).has_value());
}

TEST_F(ReadShapes, WhatTookTooLongIsNotKeptInTheCache) {
    const std::string file =
        folder.write("Design.step", samples::stepFile("x", {part("Plate", plate(10, 20, 5))}));
    const auto kept = [&](double seconds) {
        const host::ReadingCache cache{.folder = folder.path() / "cache"};
        {
            std::vector<host::ReadingWarning> warnings;
            const DesignData design = host::readDesign(file, {}, {}, warnings, cache);
            host::readShapes(design, {.meshes = true, .seconds = seconds});
        }
        const std::filesystem::directory_iterator entry(cache.folder);
        return folder.read("cache/" + entry->path().filename().string());
    };

    const std::string hurried = kept(0);
    EXPECT_NE(hurried.find("\nmeasure 0\n"), std::string::npos);
    EXPECT_EQ(hurried.find("mesh"), std::string::npos);
    EXPECT_NE(kept(60).find("\nmesh 0 "), std::string::npos);
}

/// A style of one colour, for the item; takes ten numbers.
std::string style(int number, const std::string& item, const std::string& surface) {
    const auto label = [number](int offset) { return "#" + std::to_string(number + offset); };
    return label(0) + "=STYLED_ITEM(''," + "(" + label(1) + ")," + item + ");\n" + label(1) +
           "=PRESENTATION_STYLE_ASSIGNMENT((" + label(2) + "));\n" + label(2) +
           "=SURFACE_STYLE_USAGE(.BOTH.," + label(3) + ");\n" + label(3) +
           "=SURFACE_SIDE_STYLE('',(" + label(4) + "));\n" + label(5) +
           "=COLOUR_RGB('',1.,0.5,0.);\n" + surface;
}

TEST_F(ReadShapes, KnowsTheColourOfASolid) {
    std::string text = samples::stepFile("x", {part("Plate", plate(10, 20, 5))});
    const std::string solid = drafts::labelOf(text, "MANIFOLD_SOLID_BREP");
    const DesignData design = designOf(drafts::withEntities(
        text, style(9000, solid,
                    "#9004=SURFACE_STYLE_FILL_AREA(#9006);\n#9006=FILL_AREA_STYLE('',(#9007));\n"
                    "#9007=FILL_AREA_STYLE_COLOUR('',#9005);\n")));

    const ShapeData shapes = host::readShapes(design, {.meshes = true});

    const std::vector<host::MeshGroup> orange = {
        {.firstIndex = 0,
         .indexCount = 36,
         .colour = host::Rgba{.red = 255, .green = 128, .blue = 0, .alpha = 255}}};
    EXPECT_EQ(shapes.of(0)->mesh.value().groups, orange);
}

TEST_F(ReadShapes, KnowsATransparentFace) {
    std::string text = samples::stepFile("x", {part("Plate", plate(10, 20, 5))});
    const std::string face = drafts::labelOf(text, "ADVANCED_FACE");
    const DesignData design = designOf(drafts::withEntities(
        text,
        style(9000, face,
              "#9004=SURFACE_STYLE_RENDERING_WITH_PROPERTIES(.NORMAL_SHADING.,#9005,(#9006));\n"
              "#9006=SURFACE_STYLE_TRANSPARENT(0.6);\n")));

    const ShapeData shapes = host::readShapes(design, {.meshes = true});

    const std::vector<host::MeshGroup>& groups = shapes.of(0)->mesh.value().groups;
    ASSERT_EQ(groups.size(), 2U);
    EXPECT_EQ(groups[0].indexCount, 6U);
    EXPECT_EQ(groups[0].colour.value().alpha, 102);
    EXPECT_FALSE(groups[1].colour.has_value());
}

TEST_F(ReadShapes, HasNoColourFromAStyleOfCurves) {
    std::string text = samples::stepFile("x", {part("Plate", plate(10, 20, 5))});
    const std::string face = drafts::labelOf(text, "ADVANCED_FACE");
    const DesignData design = designOf(drafts::withEntities(
        text, "#9000=STYLED_ITEM('',(#9001)," + face +
                  ");\n#9001=PRESENTATION_STYLE_ASSIGNMENT((#9002));\n"
                  "#9002=CURVE_STYLE('',#9003,POSITIVE_LENGTH_MEASURE(0.1),#9004);\n"
                  "#9003=DRAUGHTING_PRE_DEFINED_CURVE_FONT('continuous');\n"
                  "#9004=COLOUR_RGB('',1.,0.,0.);\n"));

    const ShapeData shapes = host::readShapes(design, {.meshes = true});

    EXPECT_EQ(shapes.of(0)->problem, "");
    EXPECT_EQ(shapes.of(0)->mesh.value().groups.size(), 1U);
}

constexpr host::Rgba kOrange = {.red = 255, .green = 128, .blue = 0, .alpha = 255};

/// Orange, for the item; takes the numbers from 9100 to 9107.
std::string orange(const std::string& item) {
    return style(9100, item,
                 "#9104=SURFACE_STYLE_FILL_AREA(#9106);\n#9106=FILL_AREA_STYLE('',(#9107));\n"
                 "#9107=FILL_AREA_STYLE_COLOUR('',#9105);\n");
}

/// The same in the context of usages; takes the number 9000 too.
std::string instanceStyle(const std::string& item, const std::string& contexts) {
    return orange(item) + "#9000=CONTEXT_DEPENDENT_OVER_RIDING_STYLED_ITEM('',(#9101)," + item +
           ",#9100,(" + contexts + "));\n";
}

Product assembly(const std::string& name, const std::vector<samples::Use>& uses) {
    return {.key = name, .id = name, .name = name, .description = "", .uses = uses};
}

/// Two frames with two plates each.
std::string frames() {
    return samples::stepFile(
        "x",
        {part("Plate", plate(10, 20, 5)),
         assembly("Frame", {{.key = "Plate", .placement = {}}, {.key = "Plate", .placement = {}}}),
         assembly("Rack", {{.key = "Frame", .placement = {}}, {.key = "Frame", .placement = {}}})});
}

std::string usageOf(const std::string& text, std::size_t which) {
    return drafts::labelOf(text, "CONTEXT_DEPENDENT_SHAPE_REPRESENTATION", which);
}

/// The index of a component.
std::size_t indexOf(const DesignData& design, const std::string& name) {
    const auto found = std::ranges::find(design.components, name, &host::ComponentData::name);
    return static_cast<std::size_t>(found - design.components.begin());
}

TEST_F(ReadShapes, KnowsTheColourOfAnInstance) {
    const std::string text = frames();
    // The usages of the frame are written first.
    const DesignData design = designOf(drafts::withEntities(
        text, instanceStyle(drafts::labelOf(text, "MANIFOLD_SOLID_BREP"), usageOf(text, 1))));

    const ShapeData shapes = host::readShapes(design, {.meshes = true});

    const std::vector<host::InstanceColour> expected = {
        {.path = {{.component = indexOf(design, "Frame"), .child = 1}}, .colour = kOrange}};
    EXPECT_EQ(shapes.instanceColours, expected);
}

TEST_F(ReadShapes, KnowsTheColourOfAnInstanceByItsWholePath) {
    const std::string text = frames();
    const std::string solid = drafts::labelOf(text, "MANIFOLD_SOLID_BREP");
    const std::string outer = usageOf(text, 3);
    const std::string inner = usageOf(text, 0);
    const DesignData outwards =
        designOf(drafts::withEntities(text, instanceStyle(solid, inner + "," + outer)));
    const DesignData inwards =
        designOf(drafts::withEntities(text, instanceStyle(solid, outer + "," + inner)));

    const std::vector<host::InstanceColour> expected = {
        {.path = {{.component = indexOf(inwards, "Rack"), .child = 1},
                  {.component = indexOf(inwards, "Frame"), .child = 0}},
         .colour = kOrange}};
    EXPECT_EQ(host::readShapes(inwards, {.meshes = true}).instanceColours, expected);
    EXPECT_EQ(host::readShapes(outwards, {.meshes = true}).instanceColours, expected);
}

// As programs that use Open CASCADE write it: in the context of a representation of the usage.
TEST_F(ReadShapes, KnowsTheColourOfAnInstanceByItsRepresentation) {
    const std::string text = frames();
    const std::string usage = drafts::labelOf(text, "NEXT_ASSEMBLY_USAGE_OCCURRENCE", 1);
    const std::string solid = drafts::labelOf(text, "MANIFOLD_SOLID_BREP");
    const DesignData design = designOf(
        drafts::withEntities(text, "#9000=STYLED_ITEM('',(#9001)," + solid +
                                       ");\n#9001=PRESENTATION_STYLE_BY_CONTEXT((#9102),#9011);\n"
                                       "#9010=PRODUCT_DEFINITION_SHAPE('',''," +
                                       usage +
                                       ");\n#9011=SHAPE_REPRESENTATION('',(),#9);\n"
                                       "#9012=SHAPE_DEFINITION_REPRESENTATION(#9010,#9011);\n" +
                                       orange(solid)));

    const ShapeData shapes = host::readShapes(design, {.meshes = true});

    const std::vector<host::InstanceColour> expected = {
        {.path = {{.component = indexOf(design, "Frame"), .child = 1}}, .colour = kOrange}};
    EXPECT_EQ(shapes.instanceColours, expected);
}

// Two solids of one shell: what a part of several bodies is like, as far as colours go.
TEST_F(ReadShapes, KnowsTheColourOfOneBodyOfAnInstance) {
    std::string text = frames();
    const std::size_t at = text.find("MANIFOLD_SOLID_BREP(");
    const std::string copy = "#9500=" + text.substr(at, text.find(';', at) + 1 - at) + "\n";
    drafts::damage(text, "ADVANCED_BREP_SHAPE_REPRESENTATION('Plate',(", "'Plate',(",
                   "ADVANCED_BREP_SHAPE_REPRESENTATION('Plate',(#9500,");
    const DesignData design =
        designOf(drafts::withEntities(text, copy + instanceStyle("#9500", usageOf(text, 1))));

    const ShapeData shapes = host::readShapes(design, {.meshes = true});

    const std::vector<host::InstanceColour> expected = {
        {.path = {{.component = indexOf(design, "Frame"), .child = 1}},
         .colour = kOrange,
         .body = 0}};
    EXPECT_EQ(shapes.instanceColours, expected);
    // Each body has six sides of two triangles.
    const std::vector<host::MeshGroup>& groups =
        shapes.of(indexOf(design, "Plate"))->mesh.value().groups;
    ASSERT_EQ(groups.size(), 2U);
    EXPECT_EQ(groups[0].indexCount, 36U);
    EXPECT_EQ(groups[1].indexCount, 36U);
    EXPECT_EQ(std::ranges::count(groups, std::optional<std::size_t>(0), &host::MeshGroup::body), 1);
}

TEST_F(ReadShapes, SurvivesAStyleThatNamesNoContext) {
    const std::string text = frames();
    const std::string solid = drafts::labelOf(text, "MANIFOLD_SOLID_BREP");
    const DesignData design = designOf(drafts::withEntities(text, instanceStyle(solid, "")));

    const ShapeData shapes = host::readShapes(design, {.meshes = true});

    EXPECT_TRUE(shapes.instanceColours.empty());
    // The style that it overrides holds.
    EXPECT_EQ(shapes.of(indexOf(design, "Plate"))->mesh.value().groups.at(0).colour, kOrange);
}

TEST_F(ReadShapes, IgnoresTheColourOfUsagesThatAreNoWay) {
    const std::string text = frames();
    const DesignData design = designOf(
        drafts::withEntities(text, instanceStyle(drafts::labelOf(text, "MANIFOLD_SOLID_BREP"),
                                                 usageOf(text, 0) + "," + usageOf(text, 1))));

    EXPECT_TRUE(host::readShapes(design, {.meshes = true}).instanceColours.empty());
}

/// A part of curves alone: two lines, 10 and 5 mm long.
std::string wireFile() {
    std::string text = samples::stepFile("x", {part("Wire", plate(10, 20, 5))});
    drafts::damage(text, "ADVANCED_BREP_SHAPE_REPRESENTATION('Wire',(", ")",
                   "GEOMETRICALLY_BOUNDED_WIREFRAME_SHAPE_REPRESENTATION('Wire',(#9000)");
    return drafts::withEntities(
        text,
        "#9000=GEOMETRIC_CURVE_SET('',(#9001));\n#9001=POLYLINE('',(#9002,#9003,#9004));\n"
        "#9002=CARTESIAN_POINT('',(0.,0.,0.));\n#9003=CARTESIAN_POINT('',(10.,0.,0.));\n"
        "#9004=CARTESIAN_POINT('',(10.,5.,0.));\n");
}

TEST_F(ReadShapes, DrawsTheCurvesOfAPartWithoutBodies) {
    const DesignData design = designOf(wireFile());

    const ShapeData shapes = host::readShapes(design, {.classes = true, .meshes = true});

    EXPECT_EQ(design.components[0].geometry, nullptr);
    ASSERT_NE(shapes.of(0), nullptr);
    const host::ShapeMesh& mesh = shapes.of(0)->mesh.value();
    EXPECT_EQ(mesh.triangles(), 0U);
    const std::vector<float> corners = {0, 0, 0, 10, 0, 0, 10, 5, 0};
    EXPECT_EQ(mesh.edgePointsMm, corners);
    EXPECT_FALSE(shapes.classOf(0).has_value());
}

TEST_F(ReadShapes, SharesAShapeThatPartsHaveInCommon) {
    const DesignData design = designOf(
        samples::stepFile("x", {part("Plate", plate(10, 20, 5)), part("Cube", plate(10, 10, 10))}));

    const ShapeData shapes = host::readShapes(design, {.classes = true, .meshes = true});

    EXPECT_EQ(shapes.shapes.size(), 2U);
    EXPECT_EQ(shapes.ofComponent.size(), design.components.size());
}

TEST_F(ReadShapes, HasNoneOfADesignWithDeclaredMeasures) {
    DesignData design;
    design.components.emplace_back().geometry = host::boxGeometry(1, 2, 3);

    const ShapeData shapes = host::readShapes(design, {.classes = true, .meshes = true});

    EXPECT_EQ(shapes.of(0), nullptr);
    EXPECT_EQ(shapes.ofComponent.size(), 1U);
}

/// Answers every request alike; without an answer it has crashed.
class ScriptedReader final : public host::ReaderConnection {
public:
    explicit ScriptedReader(std::string answer) : answer_(std::move(answer)) {}

    void startClock() override {}
    void send(const std::string& /*line*/) override {}
    std::string receive() override {
        if (answer_.empty()) {
            throw host::ReaderFailure("the reader crashed (Aborted)");
        }
        return answer_;
    }

private:
    std::string answer_;
};

host::Shape shapeFrom(const std::string& answer, const host::ShapeRequest& request) {
    DesignData design;
    design.components.emplace_back().geometry =
        std::make_shared<host::StepGeometry>(std::make_shared<ScriptedReader>(answer), 0, "x.step");
    return host::readShapes(design, request).shapes.at(0);
}

TEST(ShapesOfAReader, ThatCrashedAreReported) {
    const host::Shape shape = shapeFrom("", {.classes = true, .meshes = true});

    EXPECT_EQ(shape.problem,
              "cannot be compared: the reader crashed (Aborted); "
              "cannot be drawn: the reader crashed (Aborted)");
    EXPECT_FALSE(shape.shapeClass.has_value());
    EXPECT_FALSE(shape.mesh.has_value());
}

TEST(ShapesOfAReader, ThatDrawsBeyondItsPointsAreReported) {
    // One point, and a triangle of the points 0, 1 and 2.
    const std::string answer =
        R"({"detail":0,"positionsMm":"AAAAAAAAAAAAAAAA","normals":"AAAAAAAAAAAAAAAA",)"
        R"("indices":"AAAAAAEAAAACAAAA","groups":[{"indexCount":3,"colour":null}],)"
        R"("edgePointsMm":"","edgeEnds":""})";

    EXPECT_EQ(shapeFrom(answer, {.meshes = true}).problem,
              "cannot be drawn: the reader's mesh is damaged");
}

TEST(ShapesOfAReader, ThatCannotDrawAllAreReported) {
    const host::Shape shape =
        shapeFrom(R"({"problem":"it has no extent that could be found"})", {.meshes = true});

    EXPECT_EQ(shape.problem, "it has no extent that could be found");
    EXPECT_FALSE(shape.mesh.has_value());
}

class ShapesOfRealFiles : public testing::Test {
protected:
    void SetUp() override { test_support::needRealFiles(); }

    static ShapeData shapesOf(const DesignData& design) {
        return host::readShapes(design, {.classes = true});
    }
};

// Each of the five parts is one product; none equals another.
TEST_F(ShapesOfRealFiles, FindTheFivePartsOfTheCommonAssembly) {
    const DesignData design =
        drafts::import((test_support::realFiles() / "as1-oc-214.stp").string());

    EXPECT_EQ(equalOnes(design, shapesOf(design)).size(), 5U);
}

// 64 products are called "Document". Volumes and areas alone tell which cannot be equal.
TEST_F(ShapesOfRealFiles, FindEqualPartsAmongProductsOfOneName) {
    const DesignData design =
        drafts::import((test_support::realFiles() / "PushDevice-Assembly.step").string());

    const ShapeData shapes = shapesOf(design);

    std::map<int, std::set<long>> volumes;
    std::set<long> allVolumes;
    for (std::size_t at = 0; at < design.components.size(); ++at) {
        if (const std::optional<int> number = shapes.classOf(at)) {
            const long volume = std::lround(design.components[at].geometry->volume() * 1e4);
            volumes[*number].insert(volume);
            allVolumes.insert(volume);
        }
    }
    EXPECT_GE(volumes.size(), allVolumes.size());
    for (const auto& [number, each] : volumes) {
        EXPECT_EQ(each.size(), 1U) << number;
    }
    EXPECT_LT(volumes.size(), 67U);
}

}  // namespace
