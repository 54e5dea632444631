#include "tests/parts/drawn_list.h"
#include "tests/support/text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using parts::Conflict;
using parts::PartsList;
using parts::PartsRequest;
using parts::View;
using test_support::drawn;
using test_support::request;
using test_support::rowsOf;
using test_support::text;

namespace {

PartsRequest merging(const std::string& by, View view = View::Parts,
                     const std::string& columns = "Item,Part Number,Part Name,Quantity") {
    PartsRequest result = request(view, columns);
    result.merging = parts::parseMerging(by);
    return result;
}

constexpr const char* kScrews = R"(
    Screw  number=S-1 box=1x1x1 material=Steel:0.008
    Cap screw  number=S-1 box=1x1x1 material=Steel:0.008
    Screw)";

}  // namespace

TEST(Merging, ByPartNumberTakesDifferentComponentsTogether) {
    EXPECT_EQ(rowsOf(kScrews, merging("part-number")), "1 | S-1 | Cap screw | 3");
}

TEST(Merging, ByComponentKeepsThemApart) {
    EXPECT_EQ(rowsOf(kScrews, merging("component")), text(R"(
        1 | S-1 | Screw | 2
        2 | S-1 | Cap screw | 1)"));
}

TEST(Merging, ByNameLeavesOutTheNumberThatTheHostAdds) {
    EXPECT_EQ(rowsOf(R"(
        Magnet  number=A
        Magnet (1)  number=B
        Screw (2)  number=C)",
                     merging("name")),
              text(R"(
        1 | A | Magnet | 2
        2 | C | Screw (2) | 1)"));
}

TEST(Merging, ByColumnsLooksAtTheirValues) {
    EXPECT_EQ(rowsOf(R"(
        Red knob  number=K-1 property=Colour/red
        Blue knob  number=K-1 property=Colour/blue
        Other red knob  number=K-1 property=Colour/red)",
                     merging("Part Number,Colour")),
              text(R"(
        1 | K-1 | Other red knob | 2
        2 | K-1 | Blue knob | 1)"));
}

TEST(Merging, ByColumnsLooksAtNumbersWithAllTheirDigits) {
    // 8 g, 8.0001 g, and 8 g as another system would have worked it out.
    EXPECT_EQ(rowsOf(R"(
        A  number=1 box=1x1x1 material=Steel:0.008
        B  number=2 box=1x1x1 material=Steel:0.0080001
        C  number=3 box=1x1x1 material=Steel:0.00800000000001)",
                     merging("Mass")),
              text(R"(
        1 | 1 | A | 2
        2 | 2 | B | 1)"));
    EXPECT_EQ(rowsOf(R"(
        A  number=1 box=1x2x3
        B  number=2 box=1x2.00001x3
        C  number=3 box=3x1x2.0000000001)",
                     merging("Size:0")),
              text(R"(
        1 | 1 | A | 2
        2 | 2 | B | 1)"));
}

TEST(Merging, AnEmptyPartNumberIsReplacedByTheName) {
    EXPECT_EQ(rowsOf(R"(
        Washer  number=""
        Bush  number="")",
                     merging("part-number")),
              text(R"(
        1 | Washer | Washer | 1
        2 | Bush | Bush | 1)"));
}

TEST(Merging, ByShapeWithoutShapesIsRefused) {
    try {
        rowsOf("Bolt", merging("shape"));
        FAIL();
    } catch (const parts::RequestError& error) {
        EXPECT_STREQ(error.what(), "\"shape\": the shapes of this design cannot be compared");
    }
}

TEST(Merging, ByShapeTakesEqualShapesTogetherWhateverTheyAreCalled) {
    const host::DesignData design = drawn(R"(
        Magnet
        Disc
        Rod)");
    const parts::PartShapes shapes{.classOf = {std::nullopt, 4, 4, std::nullopt}};

    const PartsList list = parts::buildPartsList(design, merging("shape"), shapes);

    EXPECT_EQ(rowsOf(list), text(R"(
        1 | Disc | Disc | 2
        2 | Rod | Rod | 1)"));
    // They are one item, and no possible duplicates of one another any more.
    EXPECT_TRUE(list.duplicates.empty());
}

TEST(Merging, PartsOfOneShapeThatAreOtherItemsArePossibleDuplicates) {
    const host::DesignData design = drawn(R"(
        Magnet  number=M-1
        Magnet (1)  number=M-2
        Disc  number=D-1
        Rod  number=R-1)");
    const parts::PartShapes shapes{.classOf = {std::nullopt, 4, 4, 4, std::nullopt}};

    EXPECT_EQ(
        parts::buildPartsList(design, merging("part-number"), shapes).duplicates,
        (std::vector<parts::PossibleDuplicate>{{.shape = 4, .items = {"D-1", "M-1", "M-2"}}}));
    EXPECT_EQ(parts::buildPartsList(design, merging("name"), shapes).duplicates,
              (std::vector<parts::PossibleDuplicate>{{.shape = 4, .items = {"Disc", "Magnet"}}}));
    EXPECT_TRUE(parts::buildPartsList(design, merging("part-number")).duplicates.empty());
}

TEST(Merging, ByShapeLooksAtNoAssembly) {
    const host::DesignData design = drawn(R"(
        Cart  box=1x1x1
          Wheel
        Table  box=1x1x1
          Leg)");
    const parts::PartShapes shapes{.classOf = {std::nullopt, 0, 1, 0, 2}};

    const PartsList list =
        parts::buildPartsList(design, merging("shape", View::All, "Part Name,Quantity"), shapes);

    // Each with the bodies of its own.
    EXPECT_EQ(rowsOf(list), "Cart | 1\nCart | 1\nWheel | 1\nTable | 1\nTable | 1\nLeg | 1");
    EXPECT_TRUE(list.conflicts.empty());
    EXPECT_TRUE(list.duplicates.empty());
}

TEST(Merging, InTheTreeOnlyWhatHoldsTheSameIsOneRow) {
    EXPECT_EQ(rowsOf(R"(
        Box A  number=BOX
          Bolt
        Box B  number=BOX
          Bolt
        Box C  number=BOX
          Bolt
          Bolt)",
                     merging("part-number", View::Indented, "Item,Part Name,Quantity")),
              text(R"(
        1 | Box A | 2
        1.1 | Bolt | 2
        2 | Box C | 1
        2.1 | Bolt | 2)"));
}

TEST(Merging, AnAssemblyAndAPartOfOneNumberStayApart) {
    EXPECT_EQ(rowsOf(R"(
        Lid  number=L
        Hinged lid  number=L
          Hinge)",
                     merging("part-number", View::All, "Part Name,Quantity")),
              text(R"(
        Lid | 1
        Hinged lid | 1
        Hinge | 1)"));
}

TEST(Merging, TextsThatDifferAreShownTogether) {
    EXPECT_EQ(rowsOf(R"(
        Knob  number=K material=Brass:0.0085
        Grip  number=K material=Aluminium:0.0027)",
                     merging("part-number", View::Parts, "Part Number,Description,BOM Structure")),
              "K |  | Produce");
    EXPECT_EQ(rowsOf(R"(
        Knob  number=K description="turned" structure=Buy
        Grip  number=K description="cast")",
                     merging("part-number", View::Parts, "Part Number,Description,BOM Structure")),
              "K | cast; turned | Buy; Produce");
}

TEST(Merging, TheMassOfAMergedRowIsTheMean) {
    // 10 g and twice 40 g.
    EXPECT_EQ(rowsOf(R"(
        Knob  number=K box=1x1x1 material=A:0.01
        Grip  number=K box=4x1x1 material=A:0.01
        Grip)",
                     merging("part-number", View::Parts, "Quantity,Mass[g],Total mass[g],Volume")),
              "3 | 30 | 90 | 3");
}

TEST(Conflicts, NameWhatDiffersInOneItem) {
    const PartsList list = parts::buildPartsList(drawn(R"(
        Screw  number=S-1 box=1x1x1 material=Steel:0.008
        Cap screw  number=S-1 box=2x1x1 material=Brass:0.008)"),
                                                 merging("part-number", View::Parts, "Mass"));

    EXPECT_EQ(list.conflicts, (std::vector<Conflict>{{.what = "name",
                                                      .item = "S-1",
                                                      .values = {"Cap screw", "Screw"},
                                                      .components = {"Cap screw", "Screw"}},
                                                     {.what = "material",
                                                      .item = "S-1",
                                                      .values = {"Brass", "Steel"},
                                                      .components = {"Cap screw", "Screw"}},
                                                     {.what = "mass",
                                                      .item = "S-1",
                                                      .values = {"0.008 kg", "0.016 kg"},
                                                      .components = {"Cap screw", "Screw"}}}));
}

TEST(Conflicts, PartNumbersThatDifferInOneItem) {
    const host::DesignData design = drawn(R"(
        Bolt  number=B-1
        Bolt (1)  number=B-2
        Bolt (2)  number=""
        Bolt (3))");
    const parts::PartShapes shapes{.classOf = {std::nullopt, 4, 4, 4, 4}};
    for (const char* const by : {"name", "shape", "BOM Structure"}) {
        const PartsList list =
            parts::buildPartsList(design, merging(by, View::Parts, "Part Number,Quantity"), shapes);

        EXPECT_EQ(rowsOf(list), "B-1 | 4") << by;
        ASSERT_EQ(list.conflicts.size(), 1U) << by;
        EXPECT_EQ(list.conflicts[0].what, "part number");
        EXPECT_EQ(list.conflicts[0].values, (std::vector<std::string>{"B-1", "B-2"}));
    }
    EXPECT_TRUE(parts::buildPartsList(design, merging("component")).conflicts.empty());
}

TEST(Conflicts, PartNumbersThatAreTheNamesDoNotDiffer) {
    EXPECT_TRUE(parts::buildPartsList(drawn("Pin  number=Pin\nPin (1)  number=\"Pin (1)\""),
                                      merging("name"))
                    .conflicts.empty());
}

TEST(Conflicts, MassesWithinATenthOfAPercentAreEqual) {
    const auto conflicts = [](const std::string& lengths) {
        return parts::buildPartsList(
                   drawn("Pin  number=P box=1x1x1\nPin (1)  number=P box=" + lengths + "x1x1"),
                   merging("part-number", View::Parts, "Mass"))
            .conflicts.size();
    };

    EXPECT_EQ(conflicts("1.0009"), 0U);
    EXPECT_EQ(conflicts("1.0012"), 1U);
}

TEST(Conflicts, AreNotAboutTheNumberThatTheHostAddsToAName) {
    EXPECT_TRUE(parts::buildPartsList(drawn(R"(
        Pin  number=P
        Pin (1)  number=P)"),
                                      merging("part-number"))
                    .conflicts.empty());
}

TEST(Conflicts, AnAssemblyAndAPartOfOneNumber) {
    const PartsList list = parts::buildPartsList(drawn(R"(
        Lid  number=L
        Lid (1)  number=L
          Hinge)"),
                                                 merging("part-number"));

    ASSERT_EQ(list.conflicts.size(), 1U);
    EXPECT_EQ(list.conflicts[0].what, "kind");
    EXPECT_EQ(list.conflicts[0].values, (std::vector<std::string>{"assembly", "part"}));
}

TEST(Conflicts, AssembliesOfOneNumberThatHoldDifferentThings) {
    const PartsList list = parts::buildPartsList(drawn(R"(
        Box  number=BOX
          Bolt
        Box (1)  number=BOX
          Nut)"),
                                                 merging("part-number"));

    ASSERT_EQ(list.conflicts.size(), 1U);
    EXPECT_EQ(list.conflicts[0].what, "contents");
    EXPECT_EQ(list.conflicts[0].components, (std::vector<std::string>{"Box", "Box (1)"}));
}

TEST(Conflicts, ShapesThatDifferUnderOneNumber) {
    const host::DesignData design = drawn("Pin  number=P\nPin (1)  number=P");
    const parts::PartShapes shapes{.classOf = {std::nullopt, 0, 1}};

    const PartsList list = parts::buildPartsList(design, merging("part-number"), shapes);

    ASSERT_EQ(list.conflicts.size(), 1U);
    EXPECT_EQ(list.conflicts[0].what, "shape");
}
