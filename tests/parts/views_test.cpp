#include "tests/parts/drawn_list.h"
#include "tests/support/text.h"

#include <gtest/gtest.h>

#include <string>

using parts::View;
using test_support::request;
using test_support::rowsOf;
using test_support::text;

namespace {

/// The assembly that many systems were tested with: 6 bolts and 8 nuts.
constexpr const char* kBracket = R"(
    Plate
    Bracket assembly
      Bracket
      Nut-bolt
        Bolt
        Nut
      Nut-bolt
      Nut-bolt
    Bracket assembly
    Rod assembly
      Rod
      Nut
      Nut)";

std::string quantities(const std::string& outline, View view = View::Parts) {
    return rowsOf(outline, request(view, "Item,Part Number,Quantity"));
}

std::string tree(const std::string& outline) {
    return rowsOf(outline,
                  request(View::Indented, "Item,Part Number,Quantity per parent,Quantity"));
}

}  // namespace

TEST(PartsView, ListsTheItemsOfAllLevelsWithTheirTotals) {
    EXPECT_EQ(quantities(kBracket), text(R"(
        1 | Plate | 1
        2 | Bracket | 2
        3 | Bolt | 6
        4 | Nut | 8
        5 | Rod | 1)"));
}

TEST(IndentedView, ListsEachIdenticalAssemblyOncePerPlace) {
    EXPECT_EQ(tree(kBracket), text(R"(
        1 | Plate | 1 | 1
        2 | Bracket assembly | 2 | 2
        2.1 | Bracket | 1 | 2
        2.2 | Nut-bolt | 3 | 6
        2.2.1 | Bolt | 1 | 6
        2.2.2 | Nut | 1 | 6
        3 | Rod assembly | 1 | 1
        3.1 | Rod | 1 | 1
        3.2 | Nut | 2 | 2)"));
}

TEST(TopView, ListsTheFirstLevel) {
    EXPECT_EQ(quantities(kBracket, View::Top), text(R"(
        1 | Plate | 1
        2 | Bracket assembly | 2
        3 | Rod assembly | 1)"));
}

TEST(AllView, ListsPartsAndAssembliesWithTheirParents) {
    EXPECT_EQ(rowsOf(kBracket, request(View::All, "Item,Part Number,Quantity,Used in")), text(R"(
        1 | Plate | 1 | Design (1)
        2 | Bracket assembly | 2 | Design (2)
        3 | Bracket | 2 | Bracket assembly (1)
        4 | Nut-bolt | 6 | Bracket assembly (3)
        5 | Bolt | 6 | Nut-bolt (1)
        6 | Nut | 8 | Nut-bolt (1); Rod assembly (2)
        7 | Rod assembly | 1 | Design (1)
        8 | Rod | 1 | Rod assembly (1))"));
}

TEST(PartsView, ReferenceDropsOutWithEverythingBelow) {
    EXPECT_EQ(quantities(R"(
        Frame
        Fixture  structure=Reference
          Clamp
          Bolt
        Bolt)"),
              text(R"(
        1 | Frame | 1
        2 | Bolt | 1)"));
}

TEST(PartsView, DividedHandsUpItsChildrenMultiplied) {
    EXPECT_EQ(quantities(R"(
        Set  structure=Divided
          Bolt
          Bolt
          Washer
        Set
        Bolt)"),
              text(R"(
        1 | Bolt | 5
        2 | Washer | 2)"));
}

TEST(PartsView, DividedInDividedMultipliesBoth) {
    // 2 boxes of 3 bags of 2 bolts.
    EXPECT_EQ(tree(R"(
        Box  structure=Divided
          Bag  structure=Divided
            Bolt
            Bolt
          Bag
          Bag
        Box)"),
              "1 | Bolt | 12 | 12");
}

TEST(PartsView, DividedWithNothingInItIsNoLine) {
    EXPECT_EQ(quantities(R"(
        Empty  structure=Divided
        Bolt)"),
              "1 | Bolt | 1");
}

TEST(PartsView, BuyAndAsPartAreOneLine) {
    EXPECT_EQ(quantities(R"(
        Motor  structure=Buy
          Rotor
        Valve  structure=AsPart
          Spring)"),
              text(R"(
        1 | Motor | 1
        2 | Valve | 1)"));
}

TEST(PartsView, AnAssemblyOfReferencesAloneIsAnItem) {
    EXPECT_EQ(quantities(R"(
        Station
          Robot  structure=Reference)"),
              "1 | Station | 1");
}

TEST(PartsView, AnAbsentPlaceCountsForNothing) {
    EXPECT_EQ(quantities(R"(
        Bolt
        (absent))"),
              "1 | Bolt | 1");
}
