#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>

#include <string>

using test_support::ProgramResult;

using ProjectToConstruction = test_support::Workbench;

TEST_F(ProjectToConstruction, ChangesEverySketch) {
    host::DesignData data = host::parseOutline("Plate\n");
    data.name = "plate";
    data.components.at(0).sketches = {{"Outline", {{true, false}, {false, false}}}};
    data.components.at(1).sketches = {{"Holes", {{true, true}}}, {"Slots", {{true, false}}}};
    const std::string file = path("plate.design.json");
    host::saveDesignFile(host::fromUtf8(file), data);

    const ProgramResult result = run({"project-to-construction", file});

    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, "Curves made construction geometry: 2\nSaved: " + file + "\n");
    const host::DesignData saved = test_support::loadDesign(file);
    EXPECT_EQ(saved.components.at(0).sketches.at(0).curves,
              (std::vector<host::SketchCurveData>{{true, true}, {false, false}}));
    EXPECT_EQ(saved.components.at(1).sketches.at(1).curves,
              (std::vector<host::SketchCurveData>{{true, true}}));
}
