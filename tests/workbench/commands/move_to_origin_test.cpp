#include "tests/workbench/placed_design.h"

#include <gtest/gtest.h>

#include <string>

using test_support::kPlaced;
using test_support::places;
using test_support::ProgramResult;
using test_support::readFile;

using MoveToOrigin = test_support::Workbench;

TEST_F(MoveToOrigin, PlacesAllUnderTheRootAndSaves) {
    const std::string file = design(kPlaced);

    const ProgramResult result = run({"move-to-origin", file});

    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, "Moved to the origin: 3\nSaved: " + file + "\n");
    EXPECT_EQ(places(file), "0 0 0 ");
}

TEST_F(MoveToOrigin, TakesNamedOccurrencesAndGroundsThem) {
    const std::string file = design(kPlaced);
    const std::string target = path("moved.design.json");

    const ProgramResult result = run({"move-to-origin", file, "--occurrence", "Bolt:1",
                                      "--occurrence", "Drive:1", "--ground", "--save", target});

    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(places(target), "1 0g 0g ");
    EXPECT_EQ(places(file), "1 2 3 ");
}

TEST_F(MoveToOrigin, OfAnUnknownOccurrenceSavesNothing) {
    const std::string file = design(kPlaced);
    const std::string bytes = readFile(host::fromUtf8(file));

    const ProgramResult result = run({"move-to-origin", file, "--occurrence", "Wheel:1"});

    EXPECT_NE(result.status, 0);
    EXPECT_TRUE(test_support::isOneLine(result.errors)) << result.errors;
    EXPECT_EQ(readFile(host::fromUtf8(file)), bytes);
}

TEST_F(MoveToOrigin, MovesAnOccurrenceThatIsNamedTwice) {
    const std::string file = design(kPlaced);

    const ProgramResult result =
        run({"move-to-origin", file, "--occurrence", "Bolt:1", "--occurrence", "Bolt:1"});

    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(places(file), "1 0 3 ");
}

TEST_F(MoveToOrigin, RefusesADesignWithoutOccurrences) {
    host::DesignData data;
    data.name = "plate";
    data.components.emplace_back().name = "plate";
    const std::string file = path("plate.design.json");
    host::saveDesignFile(host::fromUtf8(file), data);

    const ProgramResult result = run({"move-to-origin", file});

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "tarnix-workbench: " + file + ": has no occurrences to move\n");
}
