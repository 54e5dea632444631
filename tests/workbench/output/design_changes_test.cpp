#include "workbench/output/design_changes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using workbench::changesBetween;

namespace {

using Lines = std::vector<std::string>;

/// An assembly "Top" with one bolt in it.
host::DesignData oneBolt() {
    host::DesignData design;
    design.components.resize(2);
    design.components[0].name = "Top";
    design.components[0].children.resize(1);
    design.components[0].children[0].component = 1;
    design.components[1].name = "Bolt";
    design.components[1].partNumber = "B1";
    return design;
}

TEST(DesignChanges, TheSameDesignHasNone) {
    EXPECT_EQ(changesBetween(oneBolt(), oneBolt()), Lines());
}

TEST(DesignChanges, TextsAreNamedByTheComponentsOldName) {
    host::DesignData after = oneBolt();
    after.components[1].name = "Nut";
    after.components[1].partNumber = "N1";
    after.components[1].description = "M8";
    after.components[1].material.emplace().name = "Brass";

    EXPECT_EQ(changesBetween(oneBolt(), after),
              (Lines{"component \"Bolt\": name \"Bolt\" is now \"Nut\"",
                     "component \"Bolt\": part number \"B1\" is now \"N1\"",
                     "component \"Bolt\": description \"\" is now \"M8\"",
                     "component \"Bolt\": material \"\" is now \"Brass\""}));
}

TEST(DesignChanges, AttributesAreNewChangedOrGone) {
    host::DesignData before = oneBolt();
    before.components[1].attributes = {{"G", "kept", "1"}, {"G", "gone", "2"}};
    host::DesignData after = oneBolt();
    after.components[1].attributes = {{"G", "kept", "3"}, {"G", "new", "4"}};
    after.attributes = {{"D", "whole", "5"}};

    EXPECT_EQ(changesBetween(before, after),
              (Lines{"design: attribute D/whole \"5\" is new",
                     "component \"Bolt\": attribute G/kept \"1\" is now \"3\"",
                     "component \"Bolt\": attribute G/new \"4\" is new",
                     "component \"Bolt\": attribute G/gone is gone"}));
}

TEST(DesignChanges, OccurrencesAreMovedTurnedAndGrounded) {
    host::DesignData moved = oneBolt();
    moved.components[0].children[0].transform.cells[3] = 2.5;
    host::DesignData turned = oneBolt();
    turned.components[0].children[0].transform.cells[0] = -1;
    turned.components[0].children[0].grounded = true;

    EXPECT_EQ(
        changesBetween(oneBolt(), moved),
        (Lines{"occurrence \"Bolt:1\" in \"Top\" is now at 2.5, 0, 0 cm, and was at 0, 0, 0"}));
    EXPECT_EQ(changesBetween(oneBolt(), turned),
              (Lines{"occurrence \"Bolt:1\" in \"Top\" is turned",
                     "occurrence \"Bolt:1\" in \"Top\" is grounded"}));
}

TEST(DesignChanges, AMoveIsNamedHoweverSmallAndBesideATurn) {
    host::DesignData far = oneBolt();
    far.components[0].children[0].transform.cells[3] = 1000;
    host::DesignData farther = far;
    farther.components[0].children[0].transform.cells[3] = 1000.001;
    host::DesignData both = oneBolt();
    both.components[0].children[0].transform.cells[7] = 2;
    both.components[0].children[0].transform.cells[0] = -1;

    EXPECT_EQ(changesBetween(far, farther),
              (Lines{"occurrence \"Bolt:1\" in \"Top\" is now at 1000.001, 0, 0 cm, and was at "
                     "1000, 0, 0"}));
    EXPECT_EQ(changesBetween(oneBolt(), both),
              (Lines{"occurrence \"Bolt:1\" in \"Top\" is now at 0, 2, 0 cm, and was at 0, 0, 0",
                     "occurrence \"Bolt:1\" in \"Top\" is turned"}));
}

TEST(DesignChanges, WhatIsAddedOrMissingIsNamed) {
    host::DesignData after = oneBolt();
    after.components.emplace_back().name = "Nut";
    after.components[0].children.emplace_back().component = 2;
    after.components[1].sketches.emplace_back();

    EXPECT_EQ(changesBetween(oneBolt(), after),
              (Lines{"occurrence \"Nut:1\" in \"Top\" is new",
                     "component \"Bolt\": its sketches are changed", "component \"Nut\" is new"}));
    EXPECT_EQ(changesBetween(after, oneBolt()),
              (Lines{"occurrence \"Nut:1\" in \"Top\" is gone",
                     "component \"Bolt\": its sketches are changed"}));
}

}  // namespace
