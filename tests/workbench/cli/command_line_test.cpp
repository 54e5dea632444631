#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>

using test_support::isOneLine;
using test_support::ProgramResult;

using CommandLine = test_support::Workbench;

TEST_F(CommandLine, AnUnknownOptionIsWrongUsage) {
    const ProgramResult result = run({"bom", "--nonsense", "a.step"});

    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(isOneLine(result.errors)) << result.errors;
}

TEST_F(CommandLine, WithoutACommandItIsWrongUsage) {
    const ProgramResult result = run({});

    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(isOneLine(result.errors)) << result.errors;
}

TEST_F(CommandLine, AnUnknownFormatNamesTheOnesThereAre) {
    const ProgramResult result = run({"bom", "a.step", "--format", "xml"});

    EXPECT_EQ(result.status, 2);
    EXPECT_NE(result.errors.find("{table,csv,json}"), std::string::npos) << result.errors;
}

TEST_F(CommandLine, HelpAndVersionSucceed) {
    const ProgramResult help = run({"bom", "--help"});
    const ProgramResult version = run({"--version"});

    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.output.find("--tab"), std::string::npos) << help.output;
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.output.rfind("tarnix-workbench ", 0), 0U) << version.output;
}

TEST_F(CommandLine, AnUnknownOptionNamesTheNearestOneOfItsCommand) {
    const ProgramResult result = run({"bom", "a.step", "--formatt", "json"});

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors,
              "tarnix-workbench: no option --formatt; did you mean --format? See tarnix-workbench "
              "bom --help\n");
}

TEST_F(CommandLine, AnUnknownCommandNamesTheNearestOne) {
    const ProgramResult near = run({"inof", "a.step"});
    const ProgramResult far = run({"assemble"});

    EXPECT_EQ(near.status, 2);
    EXPECT_EQ(near.errors,
              "tarnix-workbench: no command \"inof\"; did you mean info? See tarnix-workbench "
              "--help\n");
    EXPECT_EQ(far.errors,
              "tarnix-workbench: no command \"assemble\"; see tarnix-workbench --help\n");
}

TEST_F(CommandLine, AFileAloneIsOfferedWhatCanBeDoneWithIt) {
    const ProgramResult result = run({"gearbox.STEP"});

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors,
              "tarnix-workbench: what is to be done with gearbox.STEP? \"tarnix-workbench info "
              "gearbox.STEP\" prints what it holds, \"tarnix-workbench bom gearbox.STEP\" its "
              "parts list; see tarnix-workbench --help\n");
}

TEST_F(CommandLine, WhatIsWrongWithAValueSaysWhereToReadOn) {
    const ProgramResult result = run({"info", "a.step", "--max-seconds", "0"});

    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(result.errors.ends_with("; see tarnix-workbench info --help\n")) << result.errors;
}

TEST_F(CommandLine, EveryResultCanGoIntoAFileInANewFolder) {
    const std::string file = design(test_support::kSmallDesign);

    const ProgramResult printed = run({"info", file});
    const ProgramResult written = run({"info", file, "--output", path("new/folder/info.txt")});
    const ProgramResult dash = run({"info", file, "--output", "-"});

    EXPECT_EQ(written.status, 0);
    EXPECT_EQ(written.output, "");
    EXPECT_EQ(test_support::readFile(host::fromUtf8(path("new/folder/info.txt"))), printed.output);
    EXPECT_EQ(dash.output, printed.output);
}

TEST_F(CommandLine, ARunThatFailsLeavesItsOutputFileAsItWas) {
    test_support::writeFile(host::fromUtf8(path("kept.txt")), "before");

    const ProgramResult result = run({"info", path("missing.step"), "--output", path("kept.txt")});
    const ProgramResult fresh = run({"info", path("missing.step"), "--output", path("none.txt")});

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(fresh.status, 1);
    EXPECT_EQ(test_support::readFile(host::fromUtf8(path("kept.txt"))), "before");
    EXPECT_FALSE(std::filesystem::exists(host::fromUtf8(path("none.txt"))));
}

TEST_F(CommandLine, AnOutputFileThatCannotBeWrittenIsNamed) {
    test_support::writeFile(host::fromUtf8(path("file")), "");

    const ProgramResult result = run({"configure", "--output", path("file/below.txt")});

    EXPECT_EQ(result.status, 5);
    EXPECT_EQ(result.errors.rfind("tarnix-workbench: cannot write ", 0), 0U) << result.errors;
    EXPECT_NE(result.errors.find("below.txt"), std::string::npos) << result.errors;
}

TEST_F(CommandLine, AFolderIsNoOutputFile) {
    std::filesystem::create_directories(host::fromUtf8(path("folder")));

    const ProgramResult result = run({"configure", "--output", path("folder")});

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors,
              "tarnix-workbench: --output " + path("folder") + ": it exists and is not a file\n");
}

TEST_F(CommandLine, TheOutputIsNoFileThatIsUsedOtherwise) {
    const std::string file = design(test_support::kSmallDesign);
    const std::string list = path("list.csv");
    const std::string copy = path("copy.design.json");
    const std::string old = test_support::readFile(host::fromUtf8(file));
    test_support::writeFile(host::fromUtf8(list), "Part Number\nBolt\n");

    const ProgramResult input = run({"info", file, "--output", path("sub/../sample.design.json")});
    const ProgramResult edits =
        run({"bom", file, "--set-from", list, "--save", copy, "--output", list});
    const ProgramResult saved = run({"bom", file, "--save", copy, "--output", copy});

    EXPECT_EQ(input.status, 2);
    EXPECT_EQ(input.errors, "tarnix-workbench: --output " + path("sub/../sample.design.json") +
                                ": is also FILE; the output needs a file of its own\n");
    EXPECT_EQ(edits.errors, "tarnix-workbench: --output " + list +
                                ": is also --set-from; the output needs a file of its own\n");
    EXPECT_EQ(saved.errors, "tarnix-workbench: --output " + copy +
                                ": is also --save; the output needs a file of its own\n");
    EXPECT_EQ(test_support::readFile(host::fromUtf8(file)), old);
    EXPECT_EQ(test_support::readFile(host::fromUtf8(list)), "Part Number\nBolt\n");
    EXPECT_FALSE(std::filesystem::exists(host::fromUtf8(copy)));
}

TEST_F(CommandLine, ADensityThatIsNoneIsNamed) {
    for (const char* const density : {"0", "-7850", "nan", "7,85"}) {
        const std::string material = std::string("Steel=") + density;

        const ProgramResult result = run({"info", "a.step", "--material", material});

        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.errors, "tarnix-workbench: --material " + material +
                                     ": expected NAME=DENSITY, with a density of 1 to 25000 "
                                     "kg/m3\n");
    }
}

TEST_F(CommandLine, QuietLeavesTheResultAlone) {
    const std::string file = design(test_support::kSmallDesign);

    const ProgramResult result = run({"bom", file, "--quiet"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_NE(result.output.find("Total mass of structure BOM [kg] : 2.000\n"), std::string::npos);
    EXPECT_EQ(result.output.find("Not opened"), std::string::npos) << result.output;
}
