#include "host/design/outline.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace host {
namespace {

/// What is wrong with an outline.
std::string complaint(const std::string& outline) {
    try {
        parseOutline(outline);
    } catch (const std::invalid_argument& error) {
        return error.what();
    }
    return "none";
}

TEST(Outline, LinesAreUsesAndIndentIsContainment) {
    const DesignData data = parseOutline(R"(
        Gearbox
          Housing
          Shaft assembly
            Shaft
        Bolt)");

    ASSERT_EQ(data.components.size(), 6u);
    EXPECT_EQ(data.components[0].name, "Design");
    EXPECT_EQ(data.components[3].name, "Shaft assembly");
    EXPECT_EQ(data.components[0].children.size(), 2u);
    EXPECT_EQ(data.components[0].children[1].component, 5u);
    EXPECT_EQ(data.components[1].children[1].component, 3u);
    EXPECT_EQ(data.components[3].children[0].component, 4u);
}

TEST(Outline, EmptyTextIsADesignWithoutOccurrences) {
    const DesignData data = parseOutline("\n   \n");

    ASSERT_EQ(data.components.size(), 1u);
    EXPECT_TRUE(data.components[0].children.empty());
}

TEST(Outline, ComponentWithoutKeysIsSteelAndNumberedAfterItsName) {
    const DesignData data = parseOutline("Bolt");

    EXPECT_EQ(data.components[1].partNumber, "Bolt");
    EXPECT_EQ(data.components[1].description, "");
    EXPECT_EQ(data.components[1].material, (MaterialData{.name = "Steel", .density = 0.00785}));
    EXPECT_EQ(data.components[1].geometry, nullptr);
    EXPECT_TRUE(data.components[1].children.empty());
}

TEST(Outline, KeysDescribeTheComponent) {
    const DesignData data = parseOutline(
        R"(Key  name=Bolt number="M 8" description="say \"hi\" \\" material=Zinc:0.007 attribute="G/QEMA_Part Type/a/b" attribute=G/n/ document=Other)");

    const ComponentData& bolt = data.components[1];
    EXPECT_EQ(bolt.name, "Bolt");
    EXPECT_EQ(bolt.partNumber, "M 8");
    EXPECT_EQ(bolt.description, "say \"hi\" \\");
    EXPECT_EQ(bolt.material, (MaterialData{.name = "Zinc", .density = 0.007}));
    EXPECT_EQ(bolt.attributes,
              (std::vector<AttributeData>{{"G", "QEMA_Part Type", "a/b"}, {"G", "n", ""}}));
    EXPECT_EQ(bolt.document, "Other");
}

TEST(Outline, PartNumberMayBeEmpty) {
    EXPECT_EQ(parseOutline("Bolt  number=").components[1].partNumber, "");
}

TEST(Outline, BoxAndMeasuresAreItsGeometry) {
    const DesignData data = parseOutline(R"(
        Box   box=1x2x3.5
        Declared  measures=10:2.5
        Both  measures=10:2.5 box=4x5x6)");

    Geometry& box = *data.components[1].geometry;
    EXPECT_DOUBLE_EQ(box.area(), 25);
    EXPECT_DOUBLE_EQ(box.volume(), 7);
    EXPECT_EQ(box.box({}), (Box{{0, 0, 0}, {1, 2, 3.5}}));
    Geometry& declared = *data.components[2].geometry;
    EXPECT_EQ(declared.area(), 10);
    EXPECT_EQ(declared.volume(), 2.5);
    EXPECT_EQ(declared.box({}), std::nullopt);
    EXPECT_EQ(data.components[3].geometry->box({}), (Box{{0, 0, 0}, {4, 5, 6}}));
}

TEST(Outline, PlaceAndGroundingDescribeTheUse) {
    const DesignData data = parseOutline(R"(
        Bolt  at=1,-2.5,3e1 grounded
        Bolt)");

    const std::vector<OccurrenceData>& uses = data.components[0].children;
    EXPECT_EQ(uses[0].transform.cells[3], 1);
    EXPECT_EQ(uses[0].transform.cells[7], -2.5);
    EXPECT_EQ(uses[0].transform.cells[11], 30);
    EXPECT_TRUE(uses[0].grounded);
    EXPECT_EQ(uses[1].transform, Transform());
    EXPECT_FALSE(uses[1].grounded);
}

TEST(Outline, TheSameNameIsTheSameComponentWithItsChildrenGivenOnce) {
    const DesignData data = parseOutline(R"(
        Axle
        Axle  number=7
          Bolt
        Axle
          Bolt)");

    ASSERT_EQ(data.components.size(), 3u);
    EXPECT_EQ(data.components[0].children.size(), 3u);
    EXPECT_EQ(data.components[1].children.size(), 1u);
    EXPECT_EQ(data.components[1].partNumber, "7");
    EXPECT_EQ(data.components[0].children[2].instance, 3);
}

TEST(Outline, AbsentPlaceIsOne) {
    const DesignData data = parseOutline("(absent)");

    ASSERT_EQ(data.components.size(), 1u);
    EXPECT_TRUE(data.components[0].children.at(0).absent);
}

TEST(Outline, ErrorsNameLineAndReason) {
    EXPECT_EQ(complaint("A\n  B\n     C"),
              "line 3: the indent should be that of the first line and two spaces more for each "
              "level");
    EXPECT_EQ(complaint("  A\nB"),
              "line 2: the indent should be that of the first line and two spaces more for each "
              "level");
    EXPECT_EQ(complaint("A\n    B"), "line 2: nothing is at the level above");
    EXPECT_EQ(complaint("(absent)\n  B"), "line 2: nothing is at the level above");
    EXPECT_EQ(complaint("A  colour=red"), "line 1: \"colour=red\" is none of the keys");
    EXPECT_EQ(complaint("A box=1x1x1"),
              "line 1: two spaces are needed between the name and what describes it");
    EXPECT_EQ(complaint("A  box=1x1"),
              "line 1: \"1x1\" should be 3 numbers with \"x\" between them");
    EXPECT_EQ(complaint("A  at=1,2,inf"),
              "line 1: \"1,2,inf\" should be 3 numbers with \",\" between them");
    EXPECT_EQ(complaint("A  material=Steel"),
              "line 1: a material is written material=Name:density or material=none");
    EXPECT_EQ(complaint("A  number=1 number=2"), "line 1: number= appears twice");
    EXPECT_EQ(complaint("A  number=\"1"), "line 1: a text that begins with \" has no end");
    EXPECT_EQ(complaint("A  attribute=G/n"),
              "line 1: an attribute is written attribute=group/name/value");
    EXPECT_EQ(complaint("A  attribute=/n/v"), "line 1: an attribute needs a group and a name");
    EXPECT_EQ(complaint("(absent)  grounded"), "line 1: what is absent has no properties");
    EXPECT_EQ(complaint("A\tB"), "line 1: tabs are not understood, only spaces");
}

TEST(Outline, ContradictoryLinesOfOneComponentAreRefused) {
    EXPECT_EQ(complaint("A  number=1\nA  number=2"),
              "line 2: number= differs from what an earlier line gives for \"A\"");
    EXPECT_EQ(complaint("A  attribute=G/n/1\nA  attribute=G/n/2"),
              "line 2: the attributes differ from those that an earlier line gives for \"A\"");
    EXPECT_EQ(complaint("A\n  B\nA\n  C"),
              "line 3: what is in \"A\" differs from what is in it at line 1");
}

TEST(Outline, AssemblyThatContainsItselfIsRefused) {
    EXPECT_EQ(complaint("A\n  A"), "line 1: \"A\" contains itself");
    EXPECT_EQ(complaint("A\n  B\nB\n  A"), "line 1: \"A\" contains itself");
}

}  // namespace
}  // namespace host
