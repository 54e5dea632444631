#include "parts/places.h"

#include "tests/parts/drawn_list.h"
#include "tests/support/text.h"

#include <gtest/gtest.h>

#include <string>

using parts::View;
using test_support::drawn;
using test_support::request;
using test_support::text;

namespace {

constexpr const char* kTrolley = R"(
    Wheel
    Axle assembly
      Axle
      Wheel
      Wheel
    Axle assembly
    Kit  structure=Divided
      Wheel
      Axle assembly
    Jig  structure=Reference
      Wheel
    Motor  structure=Buy
      Shaft)";

/// A line for each row: its number, and where it is. The uses of a component are numbered over the
/// whole design.
std::string places(const host::DesignData& design, const parts::PartsRequest& request) {
    const parts::PartsList list = parts::buildPartsList(design, request);
    parts::PathTable table;
    std::string lines;
    std::size_t row = 0;
    for (const std::vector<std::size_t>& all : parts::placesOf(list, design, table)) {
        lines += (lines.empty() ? "" : "\n") + list.rows.at(row++).item + " |";
        for (const std::size_t place : all) {
            lines += " " + table.paths().at(place);
        }
    }
    return lines;
}

std::string places(const std::string& outline, View view) {
    return places(drawn(outline), request(view, "Item"));
}

}  // namespace

TEST(Places, APartIsWhereverItIsListed) {
    EXPECT_EQ(places(kTrolley, View::Parts), text(R"(
        1 | Wheel:1 Axle assembly:1+Wheel:2 Axle assembly:1+Wheel:3 Axle assembly:2+Wheel:2 Axle assembly:2+Wheel:3 Kit:1+Wheel:4 Kit:1+Axle assembly:3+Wheel:2 Kit:1+Axle assembly:3+Wheel:3
        2 | Axle assembly:1+Axle:1 Axle assembly:2+Axle:1 Kit:1+Axle assembly:3+Axle:1
        3 | Motor:1)"));
}

TEST(Places, AnAssemblyIsAtItsOwnPlacesAlone) {
    EXPECT_EQ(places(kTrolley, View::Top), text(R"(
        1 | Wheel:1 Kit:1+Wheel:4
        2 | Axle assembly:1 Axle assembly:2 Kit:1+Axle assembly:3
        3 | Motor:1)"));
}

TEST(Places, ARowOfTheTreeIsAtThePlacesOfTheRowAboveIt) {
    EXPECT_EQ(places(R"(
        Wheel
        Axle assembly
          Wheel
          Wheel
        Axle assembly
        Frame
          Axle assembly)",
                     View::Indented),
              text(R"(
        1 | Wheel:1
        2 | Axle assembly:1 Axle assembly:2
        2.1 | Axle assembly:1+Wheel:2 Axle assembly:1+Wheel:3 Axle assembly:2+Wheel:2 Axle assembly:2+Wheel:3
        3 | Frame:1
        3.1 | Frame:1+Axle assembly:3
        3.1.1 | Frame:1+Axle assembly:3+Wheel:2 Frame:1+Axle assembly:3+Wheel:3)"));
}

TEST(Places, WhatAFilterDroppedIsNowhereInTheTree) {
    parts::PartsRequest onlyThree = request(View::Indented, "Item");
    onlyThree.filters.push_back(parts::parseFilter("Quantity=3", onlyThree.units));
    EXPECT_EQ(places(drawn(R"(
                  Wheel
                  Wheel
                  Wheel
                  Axle assembly
                    Wheel
                    Wheel)"),
                     onlyThree),
              "1 | Wheel:1 Wheel:2 Wheel:3");
}

TEST(Places, BodiesOfAnAssemblyHaveAPathOfTheirOwn) {
    EXPECT_EQ(places(R"(
        Frame  box=1x1x1
          Wheel)",
                     View::Parts),
              text(R"(
        1 | Frame:1#bodies
        2 | Frame:1+Wheel:1)"));
}

TEST(Places, EachPathIsKeptOnceForAllLists) {
    const host::DesignData design = drawn(kTrolley);
    parts::PathTable table;
    for (const View view : {View::Parts, View::All, View::Parts}) {
        parts::placesOf(parts::buildPartsList(design, request(view, "Item")), design, table);
    }
    EXPECT_EQ(table.paths().size(), 15U);  // 12 of parts, 3 of the assembly
}
