#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>

namespace {

using nlohmann::json;
using test_support::ProgramResult;
using test_support::readFile;
using test_support::writeFile;
using Names = std::vector<std::string>;

/// Lists of several designs, into several files, by profiles.
class PartsOfFiles : public test_support::Workbench {
protected:
    void SetUp() override {
        Workbench::SetUp();
        std::filesystem::create_directory(folder.path() / "in");
        design("Bolt\nBolt", "in/cart");
        design("Nut", "in/bike");
    }

    /// A profile beside the designs.
    void profile(const std::string& text) const {
        writeFile(folder.path() / "in/tarnix.toml", text);
    }

    /// A list of the two columns that these tests look at.
    ProgramResult list(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"parts", path("in")});
        arguments.insert(arguments.end(), {"--columns", "Part Number,Quantity"});
        return run(arguments);
    }

    [[nodiscard]] std::string written(const std::string& name) const { return folder.read(name); }
};

TEST_F(PartsOfFiles, AFolderIsListedIntoAFileForEachDesign) {
    const ProgramResult result = list({"--output", path("out/{stem}-parts.csv")});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "2 files listed\n");
    EXPECT_EQ(written("out/cart-parts.csv"), "Part Number,Quantity\r\nBolt,2\r\n");
    EXPECT_EQ(written("out/bike-parts.csv"), "Part Number,Quantity\r\nNut,1\r\n");
}

TEST_F(PartsOfFiles, TablesArePrintedBelowTheNamesOfTheirFilesInOrder) {
    const ProgramResult result = list({"--jobs", "2", "--quiet"});

    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output.rfind(path("in/bike.design.json") + "\n\nPart Number  Quantity\n", 0),
              0U)
        << result.output;
    EXPECT_NE(result.output.find("\n\n" + path("in/cart.design.json") + "\n\n"), std::string::npos)
        << result.output;
}

TEST_F(PartsOfFiles, JsonLinesHoldOneListInALine) {
    const ProgramResult result = list({"--output", path("all.jsonl")});

    EXPECT_EQ(result.status, 0) << result.errors;
    std::istringstream lines(written("all.jsonl"));
    Names designs;
    for (std::string line; std::getline(lines, line);) {
        designs.push_back(json::parse(line).at("design"));
    }
    EXPECT_EQ(designs, (Names{"in/bike", "in/cart"}));
}

TEST_F(PartsOfFiles, ARemarkNamesItsFile) {
    design("Set  box=1x1x1 structure=Divided\n  Bolt", "in/kit");

    EXPECT_EQ(list({"--output", path("out/{stem}.csv")}).errors,
              "warning: " + path("in/kit.design.json") +
                  ": \"Set\" is Divided: the bodies of its own are in no line and in no mass\n3 "
                  "files listed\n");
}

TEST_F(PartsOfFiles, ADesignThatFailsIsReportedAndTheOthersAreListed) {
    writeFile(folder.path() / "in/broken.design.json", "{");

    const ProgramResult result = list({"--output", path("out/{stem}.csv")});

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors.rfind("failed: " + path("in/broken.design.json") + ": ", 0), 0U)
        << result.errors;
    EXPECT_NE(result.errors.find("tarnix-workbench: 1 of 3 files could not be listed\n"),
              std::string::npos)
        << result.errors;
    EXPECT_EQ(written("out/cart.csv"), "Part Number,Quantity\r\nBolt,2\r\n");
    EXPECT_EQ(written("out/bike.csv"), "Part Number,Quantity\r\nNut,1\r\n");
    EXPECT_FALSE(folder.has("out/broken.csv"));
}

TEST_F(PartsOfFiles, TheWorstStatusIsThatOfTheRun) {
    writeFile(folder.path() / "in/broken.design.json", "{");
    writeFile(folder.path() / "file", "in the way of a folder");

    EXPECT_EQ(list({"--output", path("file/{stem}.csv")}).status, 5);
}

TEST_F(PartsOfFiles, TwoOutputsOfOneNameAreRefusedBeforeAnythingIsRead) {
    writeFile(folder.path() / "in/broken.design.json", "{");

    expectFailure(list({"--output", path("out/all.csv")}), 2,
                  "tarnix-workbench: " + path("out/all.csv") + ": would be written twice, for " +
                      path("in/bike.design.json") + " and for " + path("in/broken.design.json") +
                      "; name them differently, as in {dir}/{stem}.csv\n");
    expectFailure(run({"parts", path("in/cart.design.json"), "--output", path("out/a.csv"),
                       "--output", path("out/a.csv")}),
                  2,
                  "tarnix-workbench: " + path("out/a.csv") + ": would be written twice, for " +
                      path("in/cart.design.json") + " and for " + path("in/cart.design.json") +
                      "; name them differently, as in {dir}/{stem}.csv\n");
}

TEST_F(PartsOfFiles, WhatNeedsAFileOfItsOwnIsNotPrintedForSeveral) {
    expectFailure(list({"--format", "csv"}), 2,
                  "tarnix-workbench: several files need a file each, as in --output "
                  "'{stem}-parts.csv', or --format jsonl, a line each\n");
}

TEST_F(PartsOfFiles, AProfileBesideTheDesignHoldsOptionsAndOutputs) {
    profile("columns = [\"Part Number\", \"Quantity\"]\nmultiply = 3\n\n[[output]]\nfile = '" +
            path("out/{stem}.csv") + "'\n\n[[output]]\nfile = '" + path("out/{stem}.tsv") +
            "'\ncolumns = \"Quantity\"\n");

    const ProgramResult result = run({"parts", path("in/cart.design.json")});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(written("out/cart.csv"), "Part Number,Quantity\r\nBolt,6\r\n");
    EXPECT_EQ(written("out/cart.tsv"), "Quantity\n6\n");
}

TEST_F(PartsOfFiles, AnOutputMaySwitchOffWhatHoldsForAll) {
    profile("columns = \"Part Number,Quantity\"\nbom = true\n\n[[output]]\nfile = '" +
            path("out/{stem}.csv") + "'\nbom = false\n");

    EXPECT_EQ(run({"parts", path("in/cart.design.json")}).status, 0);
    EXPECT_EQ(written("out/cart.csv"), "Part Number,Quantity\r\nBolt,2\r\n");

    EXPECT_EQ(run({"parts", path("in/cart.design.json"), "--bom"}).status, 0);
    EXPECT_EQ(written("out/cart.csv"), "\xEF\xBB\xBFPart Number,Quantity\r\nBolt,2\r\n");
}

TEST_F(PartsOfFiles, OptionsWinOverTheProfile) {
    profile("columns = \"Item\"\nmultiply = 3\n[[output]]\nfile = '" + path("out/never.csv") +
            "'\nmultiply = 9\n");

    const ProgramResult result =
        list({"--output", path("out/{stem}.csv"), "--multiply", "2", "--quiet"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(written("out/cart.csv"), "Part Number,Quantity\r\nBolt,4\r\n");
    EXPECT_FALSE(folder.has("out/never.csv"));
}

TEST_F(PartsOfFiles, ANamedProfileTakesThePlaceOfTheOneBesideTheDesign) {
    profile("view = \"nonsense\"\n");
    writeFile(folder.path() / "mine.toml", "multiply = 5\n");

    const ProgramResult result = list({"--profile", path("mine.toml"), "--quiet"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_NE(result.output.find("Bolt               10\n"), std::string::npos) << result.output;
    EXPECT_EQ(list({"--no-profile"}).status, 0);
}

TEST_F(PartsOfFiles, AProfileThatWasFoundIsNamed) {
    profile("multiply = 2\n");
    const std::string cart = path("in/cart.design.json");

    EXPECT_EQ(run({"parts", cart}).errors, "profile: " + path("in/tarnix.toml") + "\n");
    EXPECT_EQ(run({"parts", cart, "--quiet"}).errors, "");
    EXPECT_EQ(run({"parts", cart, "--profile", path("in/tarnix.toml")}).errors, "");
    EXPECT_EQ(run({"parts", cart, "--no-profile"}).errors, "");
}

TEST_F(PartsOfFiles, AProfileIsFoundBesideTheFirstDesignOfAPattern) {
    profile("columns = \"Part Number,Quantity\"\nmultiply = 4\n");

    const ProgramResult result = run({"parts", path("*/cart*"), "--format", "tsv"});

    EXPECT_EQ(result.errors, "profile: " + path("in/tarnix.toml") + "\n");
    EXPECT_EQ(result.output, "Part Number\tQuantity\nBolt\t8\n");
}

TEST_F(PartsOfFiles, AProfileIsFoundInTheFolderBeforeTheOneBesideADesignInIt) {
    profile("multiply = 4\n");
    EXPECT_EQ(run({"parts", path(""), "--output", path("a.jsonl")}).errors,
              "profile: " + path("in/tarnix.toml") + "\n2 files listed\n");

    writeFile(folder.path() / "tarnix.toml", "multiply = 5\n");
    EXPECT_EQ(run({"parts", path(""), "--output", path("b.jsonl")}).errors,
              "profile: " + path("tarnix.toml") + "\n2 files listed\n");
}

TEST_F(PartsOfFiles, ABadProfileIsRefusedWithItsLineBeforeAnythingIsWritten) {
    profile("multiply = 2\n\n[[output]]\nfile = '" + path("out/a.csv") + "'\nvew = \"all\"\n");

    expectFailure(run({"parts", path("in/cart.design.json")}), 1,
                  "tarnix-workbench: " + path("in/tarnix.toml") +
                      ":5: no key \"vew\"; did you mean \"view\"?\n");
    profile("view = \"tree\"\n");
    expectFailure(run({"parts", path("in/cart.design.json")}), 1,
                  "tarnix-workbench: " + path("in/tarnix.toml") +
                      ":1: view: tree not in {parts,indented,top,all}\n");
}

TEST_F(PartsOfFiles, ABadOutputOfAProfileIsRefusedAlsoWhereAnotherTakesItsPlace) {
    profile("[[output]]\nfile = 'a.csv'\nvew = \"all\"\n");

    expectFailure(run({"parts", path("in/cart.design.json"), "--output", path("out/b.csv")}), 1,
                  "tarnix-workbench: " + path("in/tarnix.toml") +
                      ":3: no key \"vew\"; did you mean \"view\"?\n");
}

TEST_F(PartsOfFiles, ThePrintedProfileHasTheOutputsThatHold) {
    profile("[[output]]\nfile = 'profile.csv'\nmultiply = 2\n");
    const std::string cart = path("in/cart.design.json");
    const auto outputs = [&](const std::vector<std::string>& chosen) {
        std::vector<std::string> arguments = {"parts", cart, "--print-profile"};
        arguments.insert(arguments.end(), chosen.begin(), chosen.end());
        const std::string text = run(arguments).output;
        return text.substr(std::min(text.find("\n[["), text.size()));
    };

    EXPECT_EQ(outputs({}), "\n[[output]]\nfile = 'profile.csv'\nmultiply = 2\n");
    EXPECT_EQ(outputs({"--output", "q.csv", "--output", "-"}),
              "\n[[output]]\nfile = 'q.csv'\n\n[[output]]\nfile = '-'\n");
}

TEST_F(PartsOfFiles, AnOutputOfAProfileMayBePrinted) {
    profile("columns = \"Quantity\"\n[[output]]\nfile = '-'\nformat = \"tsv\"\n");

    EXPECT_EQ(run({"parts", path("in/cart.design.json")}).output, "Quantity\n2\n");
}

TEST_F(PartsOfFiles, ThePrintedProfileReadsBackTheSame) {
    profile(
        "columns = [\"Part Number\", \"Quantity\"]\nfilter = [\"Quantity>1\"]\n"
        "decimal-comma = true\n[[output]]\nfile = \"{stem}.csv\"\nmultiply = 2\n");
    const ProgramResult first =
        run({"parts", path("in/cart.design.json"), "--view", "all", "--print-profile"});
    writeFile(folder.path() / "printed.toml", first.output);

    const ProgramResult second = run({"parts", path("in/cart.design.json"), "--profile",
                                      path("printed.toml"), "--print-profile"});

    EXPECT_EQ(first.status, 0) << first.errors;
    EXPECT_EQ(second.output, first.output);
    EXPECT_NE(first.output.find("view = 'all'\n"), std::string::npos) << first.output;
    EXPECT_NE(first.output.find("columns = ['Part Number', 'Quantity']\n"), std::string::npos);
    EXPECT_NE(first.output.find("\n[[output]]\nfile = '{stem}.csv'\nmultiply = 2\n"),
              std::string::npos)
        << first.output;
}

}  // namespace
