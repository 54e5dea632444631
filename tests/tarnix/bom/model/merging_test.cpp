#include "tarnix/bom/model/merging.h"
#include "tarnix/bom/model/walk.h"

#include "tests/support/text.h"
#include "tests/tarnix/bom/model/open_design.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarnix {
namespace {

using test_support::text;

std::vector<BomRow> merge(const OpenDesign& design) {
    BomModel model;
    return walkOccurrencesMerged(model, design.occurrences(), 1);
}

/// Quantity and path of each row of a drawn design, and whether it was combined.
std::string merged(const std::string& outline) {
    const OpenDesign design(outline);
    std::string all;
    for (const auto& row : merge(design)) {
        all += (all.empty() ? "" : "\n") + std::to_string(row.quantity) + " " +
               row.occurrence->fullPathName() + (row.combined ? " combined" : "");
    }
    return all;
}

/// The properties of the first row, after the part number.
std::string firstProperties(const OpenDesign& design) {
    const BomRow row = merge(design).at(0);
    std::string all;
    for (const auto& entry : row.properties) {
        if (entry.name != kPartNumberKey) {
            all += (all.empty() ? "" : "\n") + entry.name + "=" + entry.value;
        }
    }
    return all;
}

TEST(Merging, CountsOccurrencesOfOneComponent) {
    EXPECT_EQ(merged(R"(
        Bolt
        Nut
        Bolt
        Bolt)"),
              text(R"(
        3 Bolt:1
        1 Nut:1
        1 Bolt:2
        1 Bolt:3)"));
}

TEST(Merging, AtTheTopTakesEqualNumbersForOneItemWhateverTheirNames) {
    EXPECT_EQ(merged("Bolt  number=P\nScrew  number=P"), "2 Bolt:1 combined\n1 Screw:1");
}

TEST(Merging, KeepsTheItemsOfTwoAssembliesApart) {
    EXPECT_EQ(merged(R"(
        Asm  number=A1
          Bolt
          Bolt
        Asm)"),
              text(R"(
        2 Asm:1
        2 Asm:1+Bolt:1
        1 Asm:1+Bolt:2
        1 Asm:2
        2 Asm:2+Bolt:1
        1 Asm:2+Bolt:2)"));
}

TEST(Merging, TakesAllEmptyNumbersUnderOneParentForOneItem) {
    EXPECT_EQ(merged(R"(
        Asm
          Bolt  number=""
          Nut  number=""
          Washer  number=""
        Bolt)"),
              text(R"(
        1 Asm:1
        3 Asm:1+Bolt:1 combined
        1 Asm:1+Nut:1
        1 Asm:1+Washer:1
        1 Bolt:2)"));
}

TEST(Merging, TakesAChildWithTheNumberOfItsTopAssemblyForThatAssembly) {
    EXPECT_EQ(merged("Asm  number=P\n  Bolt  number=P"), "2 Asm:1 combined\n1 Asm:1+Bolt:1");
}

TEST(Merging, WritesTheMarkerOnceBeforeTheFirstOfThreeDescriptions) {
    const OpenDesign design(R"(
        Bolt  number=P description=long
        Screw  number=P description=short
        Stud  number=P description=middle)");
    merge(design);
    EXPECT_EQ(design.descriptions(), text(R"(
        Bolt: ***different***long
        Screw: short
        Stud: middle)"));
}

TEST(Merging, LeavesEqualDescriptionsAlone) {
    const OpenDesign design(R"(
        Bolt  number=P description=long
        Screw  number=P description=long)");
    merge(design);
    EXPECT_EQ(design.descriptions(), "Bolt: long\nScrew: long");
}

TEST(Merging, LeavesADescriptionAloneThatHoldsTheMarkerAnywhere) {
    const OpenDesign design(R"(
        Bolt  number=P description="a ***different*** bolt"
        Screw  number=P description=short)");
    merge(design);
    EXPECT_EQ(design.descriptions(), "Bolt: a ***different*** bolt\nScrew: short");
}

TEST(Merging, ComparesWithDescriptionsAsEarlierMergesLeftThem) {
    // Under the first assembly the bolt is marked; under the second one the stud, equal to what the
    // bolt once had, is compared with the marked text and gets the marker.
    const OpenDesign design(R"(
        First
          Bolt  number=P description=long
          Screw  number=P description=short
        Second
          Stud  number=P description=long
          Bolt)");
    merge(design);
    EXPECT_EQ(design.descriptions(), text(R"(
        Bolt: ***different***long
        Screw: short
        Stud: ***different***long)"));
}

TEST(Merging, MarksPropertiesThatDiffer) {
    const OpenDesign design(R"(
        Bolt  number=P property=Colour/red property=Size/M8
        Screw  number=P property=Colour/blue property=Size/M8)");
    EXPECT_EQ(firstProperties(design), text(R"(
        QEMA_Part Name=***different***
        QEMA_Description=
        QEMA_Colour=***different***
        QEMA_Size=M8)"));
}

TEST(Merging, ComparesPropertiesByPlaceAndNotByKey) {
    const OpenDesign design(R"(
        Bolt  number=P property=Colour/red property=Size/M8
        Screw  number=P property=Size/M8 property=Colour/red)");
    EXPECT_EQ(firstProperties(design), text(R"(
        QEMA_Part Name=***different***
        QEMA_Description=
        QEMA_Colour=***different***
        QEMA_Size=***different***)"));
}

TEST(Merging, KeepsAMarkerThatIsThereAlready) {
    const OpenDesign design(R"(
        Bolt  number=P property=Colour/***different***
        Screw  number=P property=Colour/red)");
    EXPECT_EQ(merge(design).at(0).properties.at(3).value, "***different***");
}

TEST(Merging, MarksAPropertyThatOnlyTheFirstOneHasUnlessItIsEmpty) {
    const OpenDesign design(R"(
        Bolt  number=P property=Colour/ property=Size/M8
        Screw  number=P)");
    EXPECT_EQ(firstProperties(design), text(R"(
        QEMA_Part Name=***different***
        QEMA_Description=
        QEMA_Colour=
        QEMA_Size=***different***)"));
}

TEST(Merging, AppendsAPropertyThatOnlyAFurtherOneHasUnlessItIsEmpty) {
    const OpenDesign design(R"(
        Bolt  number=P
        Screw  number=P property=Colour/ property=Size/M8)");
    EXPECT_EQ(firstProperties(design), text(R"(
        QEMA_Part Name=***different***
        QEMA_Description=
        QEMA_Size=***different***)"));
}

TEST(Merging, LeavesTheAttributesOfTheDesignAlone) {
    const OpenDesign design(R"(
        Bolt  number=P property=Colour/red
        Screw  number=P property=Colour/blue)");
    merge(design);
    EXPECT_EQ(findProperty(readComponentProperties(design.component("Bolt")), "QEMA_Colour"),
              "red");
}

TEST(Merging, CountsTheSameWhereRowsDropTheirProperties) {
    const OpenDesign design(R"(
        Bolt  number=B description=long
        Screw  number=B description=short
        Nut  number=N)");
    BomModel model;

    walkOccurrencesMerged(model, design.occurrences(), 1, RowProperties::Dropped);

    ASSERT_EQ(model.rows.size(), 3U);
    EXPECT_EQ(model.rows[0].quantity, 2);
    EXPECT_TRUE(model.rows[0].combined);
    EXPECT_EQ(model.rows[0].component->description(), "***different***long");
    EXPECT_EQ(model.rows[2].quantity, 1);
    EXPECT_TRUE(model.rows[0].properties.empty());
    EXPECT_TRUE(model.rows[2].properties.empty());
}

TEST(FindBomRow, ReturnsTheFirstRowOfTheItemOrNone) {
    const OpenDesign design(R"(
        Nut
        Bolt
        Bolt)");
    BomModel model;
    const auto rows = walkOccurrences(model, design.occurrences(), 1);
    EXPECT_EQ(findBomRow(rows, rows.at(2).occurrence), 1);
    EXPECT_EQ(findBomRow({rows.at(0)}, rows.at(2).occurrence), -1);
}

}  // namespace
}  // namespace tarnix
