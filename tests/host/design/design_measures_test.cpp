#include "host/design/design_measures.h"

#include "host/design/geometry.h"
#include "host/design/outline.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace host {
namespace {

class BrokenGeometry final : public Geometry {
public:
    double area() override { throw std::runtime_error("no surface"); }
    double volume() override { throw std::runtime_error("no volume"); }
    std::optional<Box> box(const Transform& /*placement*/) override {
        throw std::runtime_error("no box");
    }
};

TEST(DesignMeasures, AreTheSumOfAllOccurrences) {
    // Two frames with a leg each, and a bolt without material.
    const DesignMeasures measures = measureDesign(parseOutline(R"(
        Frame
          Leg  measures=10:4 material=Steel:0.008
        Frame
        Bolt  measures=3:2 material=none)"));

    EXPECT_DOUBLE_EQ(measures.area, 23);
    EXPECT_DOUBLE_EQ(measures.volume, 10);
    EXPECT_DOUBLE_EQ(measures.mass, 0.064);
    EXPECT_EQ(measures.bodies, 3U);
}

TEST(DesignMeasures, TheBoxIsAroundTheOccurrencesWhereTheyArePlaced) {
    DesignData design = parseOutline(R"(
        Bar  box=1x2x3
        Bar)");
    // A quarter turn around z takes the corner (1, 2, 3) to (-2, 1, 3), then 10 along x.
    design.components[0].children[1].transform = {
        {0, -1, 0, 10, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}};

    EXPECT_EQ(measureDesign(design).box, (Box{.min = {0, 0, 0}, .max = {10, 2, 3}}));
}

TEST(DesignMeasures, BodiesOfAComponentAreCounted) {
    DesignData design = parseOutline("Pair");
    design.components[1].geometry = fixedGeometry(2, 1, std::nullopt, /*bodies=*/2);

    EXPECT_EQ(measureDesign(design).bodies, 2U);
}

TEST(DesignMeasures, WithoutBodiesAreNothing) {
    const DesignMeasures measures = measureDesign(parseOutline("Empty"));

    EXPECT_EQ(measures.area, 0);
    EXPECT_EQ(measures.bodies, 0U);
    EXPECT_EQ(measures.box, std::nullopt);
}

TEST(DesignMeasures, WhatCannotBeMeasuredCountsAsNothingAndIsNamedOnce) {
    DesignData design = parseOutline(R"(
        Good  measures=10:4 material=Steel:0.008
        Bad
        Bad)");
    design.components[2].geometry = std::make_shared<BrokenGeometry>();

    const DesignMeasures measures = measureDesign(design);

    EXPECT_DOUBLE_EQ(measures.volume, 4);
    EXPECT_EQ(measures.unmeasured,
              (std::vector<Unmeasured>{{.component = "Bad", .reason = "no volume"}}));
}

}  // namespace
}  // namespace host
