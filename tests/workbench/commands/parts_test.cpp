#include "tests/support/text.h"
#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>

#include <string>

using test_support::ProgramResult;
using test_support::text;

class PartsCommand : public test_support::Workbench {};

TEST_F(PartsCommand, PrintsTheItemsOfAllLevels) {
    const ProgramResult result = run({"parts", design(R"(
        Frame  box=10x10x1 material=Sheet:0.01
        Hinge
          Bolt  box=10x5x1 material=Sheet:0.01
          Bolt
        Hinge)")});

    EXPECT_EQ(result.status, 0) << result.errors;
    // 100 cm3 and 4 times 50 cm3 of 0.01 kg/cm3.
    EXPECT_EQ(result.output, text(R"(
        Item  Part Number  Part Name  Quantity  Mass [kg]  Total mass [kg]  Material
        ────  ───────────  ─────────  ────────  ─────────  ───────────────  ────────
           1  Frame        Frame             1          1                1  Sheet
           2  Bolt         Bolt              4        0.5                2  Sheet

        2 rows, 5 items, 3 kg
        )") + "\n");
}

TEST_F(PartsCommand, WritesTheFormatThatTheEndingOfTheOutputNames) {
    const std::string file = path("list.csv");

    const ProgramResult result =
        run({"parts", design("Bolt"), "--columns", "Part Number,Quantity", "--output", file});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(test_support::readFile(file), "Part Number,Quantity\r\nBolt,1\r\n");
}

TEST_F(PartsCommand, AnUnknownColumnIsRefusedWithTheNearestOne) {
    expectFailure(run({"parts", design("Bolt"), "--columns", "Item,Mas"}), 2,
                  "tarnix-workbench: \"Mas\": no such column, and no component has a custom "
                  "property of that name; did you mean \"Mass\"?\n");
}
