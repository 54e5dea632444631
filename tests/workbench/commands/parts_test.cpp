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

TEST_F(PartsCommand, AnEndingThatNoFormatHasIsRefusedWithThoseThatOneHas) {
    const std::string file = design("Bolt");

    for (const std::string ending : {".xls", ".ods", ".xlsm"}) {
        expectFailure(run({"parts", file, "--output", path("list" + ending)}), 2,
                      "tarnix-workbench: " + path("list" + ending) + ": no format has the ending " +
                          ending +
                          "; name one with --format, or end with .txt, .csv, .tsv, .md, .xlsx, "
                          ".json, .jsonl, .glb, .html\n");
        EXPECT_FALSE(folder.has("list" + ending));
    }
    EXPECT_EQ(run({"parts", file, "--output", path("list")}).status, 0);
    EXPECT_EQ(run({"parts", file, "--output", path("list.TXT")}).status, 0);
    EXPECT_EQ(folder.read("list"), folder.read("list.TXT"));
    EXPECT_EQ(run({"parts", file, "--format", "csv", "--output", path("list.dat")}).status, 0);
}

TEST_F(PartsCommand, AFilterThatNothingMatchesIsSaidOnStderrForEachFile) {
    const std::string none = design("Bolt", "a");
    const std::string some = design("Nut", "b");

    const ProgramResult one = run({"parts", none, "--format", "csv", "--columns", "Part Number",
                                   "--filter", "Part Number=Nut", "--filter", "Quantity>1"});
    const ProgramResult both =
        run({"parts", none, some, "--columns", "Part Number", "--filter", "Part Number=Nut"});

    EXPECT_EQ(one.status, 0);
    EXPECT_EQ(one.output, "Part Number\r\n");
    EXPECT_EQ(one.errors,
              "warning: nothing matches --filter \"Part Number=Nut\" and \"Quantity>1\"\n");
    EXPECT_EQ(both.status, 0);
    EXPECT_EQ(both.errors, "warning: " + none +
                               ": nothing matches --filter \"Part Number=Nut\"\n2 files "
                               "listed\n");
}

TEST_F(PartsCommand, ListsWhatSeveralOfTheDesignNeed) {
    const ProgramResult result =
        run({"parts", design("Bolt\nBolt\nNut"), "--multiply", "5", "--format", "csv", "--columns",
             "Part Number=Number", "--columns", "Quantity", "--sort", "Quantity"});

    EXPECT_EQ(result.output, "Number,Quantity\r\nNut,5\r\nBolt,10\r\n") << result.errors;
}

TEST_F(PartsCommand, TakesUnitsAndADecimalComma) {
    const ProgramResult result =
        run({"parts", design("Bolt  box=1x1x1 material=Sheet:0.0105"), "--format", "csv",
             "--columns", "Part Number,Mass,Size", "--units", "g,cm", "--decimal-comma"});

    EXPECT_EQ(result.output, "Part Number;Mass [g];Size [cm]\r\nBolt;10,5;1 x 1 x 1\r\n")
        << result.errors;
}

TEST_F(PartsCommand, ReportsWhatIsInNoLine) {
    const ProgramResult result = run({"parts", design(R"(
        Set  box=1x1x1 structure=Divided
          Bolt)"),
                                      "--columns", "Part Number"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors,
              "warning: \"Set\" is Divided: the bodies of its own are in no line and in no mass\n");
}

TEST_F(PartsCommand, RefusesWhatMakesNoSenseWithTheOptionAndWhatWouldBeRight) {
    const std::string file = design("Bolt");

    expectFailure(run({"parts", file, "--columns", "Mass[mm]"}), 2,
                  "tarnix-workbench: --columns \"Mass[mm]\": no unit of Mass; expected one of kg, "
                  "g, mg, t, lb, oz\n");
    expectFailure(run({"parts", file, "--filter", "Mass>heavy"}), 2,
                  "tarnix-workbench: --filter \"Mass>heavy\": expected a number, with one of the "
                  "units kg, g, mg, t, lb, oz or none\n");
    expectFailure(run({"parts", file, "--sort", "Item"}), 2,
                  "tarnix-workbench: --sort \"Item\": a list cannot be sorted by Item\n");
    expectFailure(run({"parts", file, "--format", "csv", "--delimiter", "::"}), 2,
                  "tarnix-workbench: --delimiter ::: expected one character, such as ; but no "
                  "quote\n");
    EXPECT_EQ(run({"parts", file, "--multiply", "0"}).status, 2);
    EXPECT_EQ(run({"parts", file, "--view", "flat"}).status, 2);
}

TEST_F(PartsCommand, WritesNothingWhereItFails) {
    const std::string file = path("list.csv");
    test_support::writeFile(file, "old");

    const ProgramResult result =
        run({"parts", design("Bolt"), "--columns", "Mas", "--output", file});

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(test_support::readFile(file), "old");
}

TEST_F(PartsCommand, AnUnknownColumnIsRefusedWithTheNearestOne) {
    expectFailure(run({"parts", design("Bolt"), "--columns", "Item,Mas"}), 2,
                  "tarnix-workbench: \"Mas\": no such column, and no component has a custom "
                  "property of that name; did you mean \"Mass\"?\n");
}
