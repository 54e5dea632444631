#include "tarnix/bom/model/walk.h"

#include "tests/support/text.h"
#include "tests/tarnix/bom/model/open_design.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <typeinfo>
#include <vector>

namespace tarnix {
namespace {

using test_support::text;

std::string line(const BomRow& row) {
    return std::to_string(row.level) + " | " + row.occurrence->fullPathName() + " | " +
           row.relativePosition + " | " + std::to_string(row.childCount) + " | " + row.pathName;
}

/// Level, path, relative position, child count and path name of each row.
std::string lines(const std::vector<BomRow>& rows) {
    std::string all;
    for (const auto& row : rows) {
        all += (all.empty() ? "" : "\n") + line(row);
    }
    return all;
}

std::vector<BomRow> walk(const OpenDesign& design) {
    BomModel model;
    return walkOccurrences(model, design.occurrences(), 1);
}

TEST(Walk, GoesDepthFirstAndMarksTheEndOfEachSubtree) {
    const OpenDesign design(R"(
        Gearbox
          Housing
          Shaft assembly
            Shaft
            Bearing
        Bolt)");
    EXPECT_EQ(lines(walk(design)), text(R"(
        1 | Gearbox:1 |  | 2 | Gearbox:1
        2 | Gearbox:1+Housing:1 | .1 | 0 | Gearbox:1+Housing:1
        2 | Gearbox:1+Shaft assembly:1 | .2 | 2 | Gearbox:1+Shaft assembly:1
        3 | Gearbox:1+Shaft assembly:1+Shaft:1 | .1 | 0 | Gearbox:1+Shaft assembly:1+Shaft:1
        3 | Gearbox:1+Shaft assembly:1+Bearing:1 | .2 | 0 | -1
        1 | Bolt:1 |  | 0 | Bolt:1)"));
}

TEST(Walk, SkipsAPlaceWithoutOccurrenceAndCountsIt) {
    const OpenDesign design(R"(
        Gearbox
          (absent)
          Housing)");
    EXPECT_EQ(lines(walk(design)), text(R"(
        1 | Gearbox:1 |  | 2 | Gearbox:1
        2 | Gearbox:1+Housing:1 | .2 | 0 | -1)"));
}

TEST(Walk, MarksTheAssemblyItselfWhereNoneOfItsChildrenIsThere) {
    const OpenDesign design(R"(
        Gearbox
          (absent))");
    EXPECT_EQ(lines(walk(design)), "1 | Gearbox:1 |  | 1 | -1");
}

TEST(Walk, ReturnsNoRowsForADesignWithoutOccurrences) {
    const OpenDesign design("");
    EXPECT_TRUE(walk(design).empty());
}

TEST(Walk, AppendsToTheRowsOfTheModelAndReturnsThemAll) {
    const OpenDesign design("Bolt");
    BomModel model;
    walkOccurrences(model, design.occurrences(), 1);
    EXPECT_EQ(walkOccurrences(model, design.occurrences(), 1).size(), 2U);
    EXPECT_EQ(model.rows.size(), 2U);
}

TEST(Walk, ReturnsARowForEveryOccurrence) {
    const OpenDesign design(R"(
        Bolt  number=P description=long
        Screw  number=P description=short)");
    const auto rows = walk(design);
    EXPECT_EQ(rows.at(0).quantity, 1);
    EXPECT_EQ(rows.at(1).quantity, 1);
    EXPECT_FALSE(rows.at(0).combined);
    EXPECT_EQ(design.descriptions(), "Bolt: long\nScrew: short");
}

TEST(Walk, TakesThePropertiesInTheOrderOfTheStore) {
    const OpenDesign design(R"(
        Bolt  number=P description=long property=Colour/red attribute=Other/Name/x)");
    EXPECT_EQ(walk(design).at(0).properties,
              (std::vector<PropertyEntry>{{"QEMA_Part Number", "P"},
                                          {"QEMA_Part Name", "Bolt"},
                                          {"QEMA_Description", "long"},
                                          {"QEMA_Colour", "red"}}));
}

TEST(Walk, OfANullListAddsNothing) {
    BomModel model;
    model.rows.emplace_back();
    EXPECT_EQ(walkOccurrences(model, nullptr, 1).size(), 1U);
}

TEST(MergingWalk, OfANullListThrowsAPlainException) {
    BomModel model;
    try {
        walkOccurrencesMerged(model, nullptr, 1);
        FAIL() << "nothing was thrown";
    } catch (const std::exception& thrown) {
        EXPECT_EQ(typeid(thrown), typeid(std::exception));
    }
}

TEST(MergingWalk, HasTheLengthAndOrderOfThePlainOne) {
    const OpenDesign design(R"(
        Asm
          Bolt
        Asm
        Bolt)");
    BomModel model;
    EXPECT_EQ(lines(walkOccurrencesMerged(model, design.occurrences(), 1)), lines(walk(design)));
    EXPECT_EQ(model.rows.size(), 5U);
}

TEST(UserPropertyNames, AreThoseOfCustomPropertiesInTheOrderOfFirstSight) {
    const OpenDesign design(R"(
        Bolt  property=Size/M8 structure=Buy property=Colour/red
        Nut  property=Colour/blue property=Weight/1)");
    BomModel model;
    walkOccurrences(model, design.occurrences(), 1);
    EXPECT_EQ(model.userPropertyNames, (std::vector<std::string>{"Size", "Colour", "Weight"}));
}

TEST(UserPropertyNames, StayFromOneWalkToTheNext) {
    BomModel model;
    walkOccurrences(model, OpenDesign("Bolt  property=Size/M8").occurrences(), 1);
    walkOccurrences(model, OpenDesign("Nut  property=Colour/red").occurrences(), 1);
    EXPECT_EQ(model.userPropertyNames, (std::vector<std::string>{"Size", "Colour"}));
}

TEST(UserPropertyNames, LoseFiveCharactersWhateverTheyAre) {
    BomModel model;
    collectUserPropertyNames(model, {{"Width of it", ""}, {"QEMA_", ""}, {"produce", ""}});
    EXPECT_EQ(model.userPropertyNames, (std::vector<std::string>{" of it", "", "ce"}));
}

TEST(UserPropertyNames, ThrowForAKeyThatIsShorterThanThePrefix) {
    BomModel model;
    try {
        collectUserPropertyNames(model, {{"Size", "M8"}});
        FAIL() << "nothing was thrown";
    } catch (const std::out_of_range& thrown) {
        EXPECT_STREQ(thrown.what(), "invalid string position");
    }
}

}  // namespace
}  // namespace tarnix
