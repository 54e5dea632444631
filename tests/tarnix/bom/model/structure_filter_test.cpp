#include "tarnix/bom/model/structure_filter.h"

#include "tarnix/bom/model/walk.h"
#include "tests/support/text.h"
#include "tests/tarnix/bom/model/open_design.h"

#include <gtest/gtest.h>

#include <string>

namespace tarnix {
namespace {

using test_support::text;

/// The paths of the shown rows, with "^" before those that were handed up.
std::string shown(const OpenDesign& design) {
    BomModel model;
    StructureFilter filter;
    std::string all;
    for (const auto& row : walkOccurrencesMerged(model, design.occurrences(), 1)) {
        if (filter.accept(row)) {
            all += (all.empty() ? "" : "\n") + std::string(filter.isUnderDivided() ? "^ " : "") +
                   row.occurrence->fullPathName();
        }
    }
    return all;
}

TEST(StructureFilter, ShowsAnAssemblyAsOneLine) {
    EXPECT_EQ(shown(OpenDesign(R"(
        Gearbox
          Shaft assembly
            Shaft
          Housing
        Bolt)")),
              "Gearbox:1\nBolt:1");
}

TEST(StructureFilter, ShowsAnItemOnce) {
    EXPECT_EQ(shown(OpenDesign(R"(
        Asm
          Bolt
        Nut
        Asm
        Nut)")),
              "Asm:1\nNut:1");
}

TEST(StructureFilter, DropsAReferenceWithAllBelowIt) {
    EXPECT_EQ(shown(OpenDesign(R"(
        Stand  structure=Reference
          Foot
            Screw
          Post
        Bolt)")),
              "Bolt:1");
}

TEST(StructureFilter, HandsUpTheDirectChildrenOfADividedAssembly) {
    EXPECT_EQ(shown(OpenDesign(R"(
        Gearbox  structure=Divided
          Housing
          Shaft assembly
            Shaft
            Bearing
        Bolt)")),
              text(R"(
        ^ Gearbox:1+Housing:1
        ^ Gearbox:1+Shaft assembly:1
        Bolt:1)"));
}

TEST(StructureFilter, ForgetsADividedAssemblyOverOneInsideIt) {
    EXPECT_EQ(shown(OpenDesign(R"(
        Gearbox  structure=Divided
          Shaft assembly  structure=Divided
            Shaft
          Housing)")),
              text(R"(
        ^ Gearbox:1+Shaft assembly:1+Shaft:1
        Gearbox:1+Housing:1)"));
}

TEST(StructureFilter, LeavesOtherStructuresAsTheyAre) {
    EXPECT_EQ(shown(OpenDesign(R"(
        Gearbox  structure=Buy
          Housing
        Frame  structure=AsPart
          Tube
        Bolt  structure=Produce)")),
              "Gearbox:1\nFrame:1\nBolt:1");
}

TEST(StructureFilter, ForgetsAStructureThatMergingOverwrote) {
    EXPECT_EQ(shown(OpenDesign(R"(
        Stand  number=P structure=Reference
        Frame  number=P structure=Buy)")),
              "Stand:1");
}

TEST(StructureFilter, TakesACustomPropertyOfOneThatComesFirstForTheStructure) {
    EXPECT_EQ(shown(OpenDesign("Stand  property=Count/1 structure=Reference")), "Stand:1");
}

TEST(StructureFilter, DropsAPathThatHoldsTheWordEmpty) {
    EXPECT_EQ(shown(OpenDesign(R"(
        Non-empty tin
        Tin)")),
              "Tin:1");
}

TEST(StructureFilter, DropsWhatHoldsTheStemOfTheLastAssembly) {
    EXPECT_EQ(shown(OpenDesign(R"(
        Asm
          Bolt
        Foot  structure=Reference
        Big Asm bolt
        Nut)")),
              "Asm:1\nNut:1");
}

TEST(StructureFilter, ShowsWhatHoldsTheStemDirectlyAfterTheAssemblysParts) {
    EXPECT_EQ(shown(OpenDesign(R"(
        Asm
          Bolt
        Big Asm bolt)")),
              "Asm:1\nBig Asm bolt:1");
}

TEST(StructureFilter, DropsADeeperRowAfterTheEndOfASubtree) {
    EXPECT_EQ(shown(OpenDesign(R"(
        Nut
        Frame  structure=Divided
          Stand  structure=Reference
            Foot
          Tube)")),
              "Nut:1");
}

TEST(StructureFilter, CountsARowAboveTheDividedOneAsFarBelowIt) {
    // The last assembly is a further one of "Plate", so it is not shown and has no stem; its child
    // is one level above the divided "C", in whose path it lies by its name.
    EXPECT_EQ(shown(OpenDesign(R"(
        A  structure=Divided
          B  structure=Divided
            Plate  number=P
            C  structure=Divided
        A:1+B:1+C:1 x  number=P
          Nut)")),
              "^ A:1+B:1+Plate:1");
}

TEST(StructureFilter, ThrowsForARowWithoutOccurrence) {
    StructureFilter filter;
    EXPECT_THROW(filter.accept(BomRow()), std::exception);
}

}  // namespace
}  // namespace tarnix
