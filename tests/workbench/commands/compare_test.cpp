#include "tests/support/text.h"
#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using test_support::ProgramResult;
using test_support::text;
using test_support::writeFile;

class CompareCommand : public test_support::Workbench {
protected:
    /// Compares two drawn designs.
    ProgramResult compare(const std::string& before, const std::string& after,
                          std::vector<std::string> options = {}) {
        options.insert(options.begin(), {"compare", design(before, "old"), design(after, "new")});
        return run(options);
    }

    /// A list of a design as CSV, in which some strings are replaced as a user would edit it.
    std::string edited(
        const std::string& file, const std::vector<std::pair<std::string, std::string>>& edits,
        const std::string& columns = "Item,Part Number,Quantity,Mass[g],Description") {
        run({"parts", file, "--columns", columns, "--output", path("list.csv")});
        std::string list = folder.read("list.csv");
        for (const auto& [from, to] : edits) {
            EXPECT_NE(list.find(from), std::string::npos) << from << "\n" << list;
            list.replace(list.find(from), from.size(), to);
        }
        writeFile(folder.path() / "list.csv", list);
        return path("list.csv");
    }
};

constexpr const char* kCart = R"(
    Frame  box=10x10x1 material=Sheet:0.01
    Axle
      Wheel  box=5x5x1 material=Rubber:0.001 property=Colour/black
      Wheel
    Axle)";

TEST_F(CompareCommand, AddedRemovedAndChangedLinesAreListed) {
    // The frame becomes heavier and thicker, a third axle adds two wheels, of other rubber and
    // colour; a bell is new.
    const ProgramResult result = compare(kCart, R"(
        Frame  box=10x10x2 material=Sheet:0.01
        Bell  box=1x1x1 material=Brass:0.008
        Axle
          Wheel  box=5x5x1 material=Latex:0.001 property=Colour/red
          Wheel
        Axle
        Axle)");

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, text(R"(
        Change    Item   What          Old     New
        ────────  ─────  ────────────  ──────  ─────
        added     Bell                         1
        changed   Frame  Mass [kg]     1       2
        shape     Frame  Volume [cm³]  100     200
        quantity  Wheel  Quantity      4       6
        changed   Wheel  Material      Rubber  Latex
        changed   Wheel  Colour        black   red

        1 added, 0 removed, 5 changes in other lines, 0 unchanged
        )") + "\n");
}

TEST_F(CompareCommand, APartBelowAnotherAssemblyHasMoved) {
    const ProgramResult result = compare(R"(
        Left
          Bolt  box=1x1x1 material=Steel:0.008
        Right
          Nut  box=1x1x2 material=Steel:0.008)",
                                         R"(
        Left
          Nut  box=1x1x2 material=Steel:0.008
        Right
          Bolt  box=1x1x1 material=Steel:0.008)",
                                         {"--format", "markdown"});

    EXPECT_EQ(result.output,
              "| Change | Item | What | Old | New |\n"
              "| --- | --- | --- | --- | --- |\n"
              "| moved | Bolt | Used in | Left \\(1\\) | Right \\(1\\) |\n"
              "| moved | Nut | Used in | Right \\(1\\) | Left \\(1\\) |\n\n"
              "0 added, 0 removed, 2 changes in other lines, 0 unchanged\n");
}

TEST_F(CompareCommand, AnotherShapeOfEqualVolumeIsAnotherShape) {
    const ProgramResult result =
        compare("Block  box=4x2x1 material=Steel:0.008", "Block  box=2x2x2 material=Steel:0.008",
                {"--format", "json"});

    const json changes = json::parse(result.output).at("changes");
    ASSERT_EQ(changes.size(), 1U) << result.output;
    // 2 (8 + 4 + 2) and 6 times 4.
    EXPECT_EQ(changes[0], (json{{"change", "shape"},
                                {"item", "Block"},
                                {"column", "Area [cm\xC2\xB2]"},
                                {"old", 28.0},
                                {"new", 24.0}}));
}

TEST_F(CompareCommand, APropertyThatOneDesignAloneHasIsAChange) {
    const char* const change =
        "| Change | Item | What | Old | New |\n"
        "| --- | --- | --- | --- | --- |\n";
    const char* const count = "\n0 added, 0 removed, 1 change in other lines, 0 unchanged\n";
    const std::string plain = "Bolt";
    const std::string red = "Bolt  property=Colour/red";

    const ProgramResult added = compare(plain, red, {"--format", "markdown"});
    EXPECT_EQ(added.output, std::string(change) + "| changed | Bolt | Colour |  | red |\n" + count)
        << added.errors;
    const ProgramResult removed =
        compare(red, plain, {"--format", "markdown", "--columns", "Colour"});
    EXPECT_EQ(removed.output,
              std::string(change) + "| changed | Bolt | Colour | red |  |\n" + count)
        << removed.errors;
    EXPECT_EQ(compare(plain, red, {"--columns", "Color"}).status, 2);
}

TEST_F(CompareCommand, JsonHasAllDigitsWhateverDecimalsAreShown) {
    const ProgramResult result =
        compare("Block  box=1x1x1 material=Steel:1.25", "Block  box=1x1x1 material=Steel:1.75",
                {"--format", "json", "--columns", "Mass:0"});

    const json changes = json::parse(result.output).at("changes");
    ASSERT_EQ(changes.size(), 1U) << result.output;
    EXPECT_EQ(changes[0].at("old"), 1.25);
    EXPECT_EQ(changes[0].at("new"), 1.75);
}

TEST_F(CompareCommand, TheStatusSaysWhetherThereAreDifferencesWhenAsked) {
    EXPECT_EQ(compare("Bolt", "Bolt\nBolt").status, 0);
    EXPECT_EQ(compare("Bolt", "Bolt", {"--exit-code"}).status, 0);
    const ProgramResult different =
        compare("Bolt", "Bolt\nBolt", {"--exit-code", "--output", path("differences.txt")});

    EXPECT_EQ(different.status, 6);
    EXPECT_EQ(different.errors, "");
    EXPECT_NE(folder.read("differences.txt").find("quantity  Bolt  Quantity    1    2\n"),
              std::string::npos);
}

TEST_F(CompareCommand, TheEndingOfTheOutputNamesTheFormat) {
    for (const auto& [ending, format] :
         {std::pair("md", "markdown"), std::pair("json", "json"), std::pair("txt", "table")}) {
        const std::string file = std::string("changes.") + ending;
        EXPECT_EQ(compare("Bolt", "Bolt\nBolt", {"--output", path(file)}).status, 0);
        EXPECT_EQ(folder.read(file), compare("Bolt", "Bolt\nBolt", {"--format", format}).output);
    }
    EXPECT_EQ(folder.read("changes.md").rfind("| Change |", 0), 0U);
}

TEST_F(CompareCommand, WithoutDifferencesOneLineSaysSo) {
    EXPECT_EQ(compare(kCart, kCart).output, "No differences, 2 lines\n");
}

TEST_F(CompareCommand, AListThatWasNotEditedIsThatOfTheDesign) {
    const std::string file = design(kCart);
    const std::string columns =
        "Part Number,Part Name,Description,Quantity,Mass,Total mass,Material,X,Size,Used in,Colour";

    EXPECT_EQ(run({"compare", edited(file, {}, columns), file}).output,
              "No differences, 2 lines\n");
    EXPECT_EQ(run({"compare", file, edited(file, {}, columns)}).output,
              "No differences, 2 lines\n");
}

TEST_F(CompareCommand, EditsOfAListAreFoundByItsPartNumbers) {
    const std::string file = design(R"(
        Axle  box=1x1x10 material=Steel:0.008123456
        Bolt  box=1x1x1 material=Steel:0.008 description==danger
        Bolt
        Nut  box=1x1x1 material=Steel:0.008)");
    // 81.23456 g were shown as 81.23; lines change their order; a line is new.
    const std::string list = edited(file, {{"1,Axle,1,81.23", "9,Axle,1,81.2"},
                                           {"2,Bolt,2,8,", "7,Bolt,3,8,"},
                                           {"3,Nut,1,8,\r\n", "1,Washer,4,1,round\r\n"}});

    const ProgramResult result = run({"compare", file, list});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, text(R"(
        Change    Item    What           Old   New
        ────────  ──────  ────────  ────────  ────
        changed   Axle    Mass [g]  81.23456  81.2
        quantity  Bolt    Quantity         2     3
        removed   Nut                      1
        added     Washer                         4

        1 added, 1 removed, 2 changes in other lines, 0 unchanged
        )") + "\n");
}

TEST_F(CompareCommand, AListIsComparedInTheDigitsThatItWasWrittenWith) {
    const std::string file = design("Axle  box=1x1x1 material=Steel:1.23456");
    const std::string list = edited(file, {{"1.235", "1.2346"}}, "Part Number,Mass");

    EXPECT_EQ(run({"compare", file, list}).output, "No differences, 1 line\n");
    EXPECT_EQ(run({"compare", file, list, "--digits", "5"}).output, "No differences, 1 line\n");
    EXPECT_EQ(run({"compare", file, list, "--digits", "6", "--exit-code"}).status, 6);
}

TEST_F(CompareCommand, AListWithoutPartNumbersOrWithForeignColumnsIsRefused) {
    const std::string file = design("Bolt");

    expectFailure(run({"compare", file, edited(file, {}, "Quantity,Mass")}), 1,
                  "tarnix-workbench: " + path("list.csv") +
                      ": has no column \"Part Number\", by which lines are matched; where it has "
                      "another caption, give --columns as the list was written with\n");
    expectFailure(run({"compare", file, edited(file, {{"Item", "Price"}})}), 2,
                  "tarnix-workbench: \"Price\": no such column, and no component has a custom "
                  "property of that name; property:NAME shows one that a design need not have\n");
}

TEST_F(CompareCommand, ChosenCaptionsAreUnderstoodWithTheSameColumns) {
    const std::string file = design("Bolt\nBolt");
    const std::string columns = "Part Number=Number,Quantity=Pieces";

    EXPECT_EQ(run({"compare", edited(file, {{"Bolt,2", "Bolt,5"}}, columns), file, "--columns",
                   columns, "--format", "markdown"})
                  .output,
              "| Change | Item | What | Old | New |\n"
              "| --- | --- | --- | --- | --- |\n"
              "| quantity | Bolt | Pieces | 5 | 2 |\n\n"
              "0 added, 0 removed, 1 change in other lines, 0 unchanged\n");
}

TEST_F(CompareCommand, ByNameTheLinesOfAListAreMatchedByTheirNames) {
    const std::string columns = "Part Number,Part Name,Quantity";
    const std::string file = design("Bolt  number=B-1\nNut  number=N-1");
    const std::string list = edited(file, {{"B-1,", "B-9,"}}, columns);

    EXPECT_EQ(run({"compare", file, list, "--merge-by", "name", "--format", "markdown"}).output,
              "| Change | Item | What | Old | New |\n"
              "| --- | --- | --- | --- | --- |\n"
              "| changed | Bolt | Part Number | B-1 | B-9 |\n\n"
              "0 added, 0 removed, 1 change in other lines, 1 unchanged\n");
    expectFailure(run({"compare", file, edited(file, {}, "Part Number"), "--merge-by", "name"}), 1,
                  "tarnix-workbench: " + path("list.csv") +
                      ": has no column \"Part Name\", by which lines are matched; where it has "
                      "another caption, give --columns as the list was written with\n");
}

TEST_F(CompareCommand, ByColumnsTheLinesOfAListAreMatchedByTheirValues) {
    const std::string file =
        design("Red knob  number=K property=Colour/red\nBlue knob  number=K property=Colour/blue");
    run({"parts", file, "--merge-by", "Part Number,Colour", "--columns",
         "Part Number,Colour,Quantity", "--output", path("list.csv")});
    writeFile(folder.path() / "list.csv", "Part Number,Colour,Quantity\r\nK,blue,1\r\nK,red,2\r\n");

    EXPECT_EQ(run({"compare", file, path("list.csv"), "--merge-by", "Part Number,Colour",
                   "--format", "markdown"})
                  .output,
              "| Change | Item | What | Old | New |\n"
              "| --- | --- | --- | --- | --- |\n"
              "| quantity | K, red | Quantity | 1 | 2 |\n\n"
              "0 added, 0 removed, 1 change in other lines, 1 unchanged\n");
}

TEST_F(CompareCommand, AListWithADecimalCommaIsThatOfTheDesign) {
    const std::string file = design("Bolt  box=1.25x1x0.5 material=Steel:0.0081234");
    run({"parts", file, "--columns", "Part Number,Mass[g],X,Size", "--decimal-comma", "--output",
         path("list.csv")});

    EXPECT_NE(folder.read("list.csv").find("12,5 x 10 x 5"), std::string::npos)
        << folder.read("list.csv");
    EXPECT_EQ(run({"compare", file, path("list.csv")}).output, "No differences, 1 line\n");
}

TEST_F(CompareCommand, WhatTheListsWarnOfIsPrintedWithItsFile) {
    const std::string set = "Set  box=1x1x1 structure=Divided\n  Bolt";
    const std::string warning =
        ": \"Set\" is Divided: the bodies of its own are in no line and in no mass\n";

    EXPECT_EQ(compare("Bolt", set).errors, "warning: " + path("new.design.json") + warning);
    EXPECT_EQ(compare("Bolt", set, {"--quiet"}).errors, "");
    EXPECT_EQ(run({"compare", edited(design(set), {}), design(set)}).errors,
              "warning: " + path("sample.design.json") + warning);
}

TEST_F(CompareCommand, ByNameAPartWithAnotherNumberIsTheSame) {
    const std::string before = "Axle  number=A-1\n  Wheel  number=W-1";
    const std::string after = "Axle  number=A-2\n  Wheel  number=W-2";

    EXPECT_EQ(
        compare(before, after,
                {"--merge-by", "name", "--format", "markdown", "--columns", "Part Number,Quantity"})
            .output,
        "| Change | Item | What | Old | New |\n"
        "| --- | --- | --- | --- | --- |\n"
        "| changed | Wheel | Part Number | W-1 | W-2 |\n\n"
        "0 added, 0 removed, 1 change in other lines, 0 unchanged\n");
    EXPECT_EQ(compare(before, after, {"--merge-by", "name"}).output, "No differences, 1 line\n");
}

TEST_F(CompareCommand, ByColumnsTheirValuesMatchLines) {
    EXPECT_EQ(compare("Bolt  number=B-1 property=Norm/933\nBolt (1)  number=B-2 property=Norm/931",
                      "Screw  number=S-1 property=Norm/931\nPin  number=S-2 property=Norm/933\nPin",
                      {"--merge-by", "Norm,BOM Structure", "--columns", "Quantity", "--format",
                       "markdown"})
                  .output,
              "| Change | Item | What | Old | New |\n"
              "| --- | --- | --- | --- | --- |\n"
              "| quantity | 933, Produce | Quantity | 1 | 2 |\n\n"
              "0 added, 0 removed, 1 change in other lines, 1 unchanged\n");
}

TEST_F(CompareCommand, TheTreeIsComparedPlaceByPlace) {
    const ProgramResult result = compare(R"(
        Left
          Bolt
        Right
          Bolt)",
                                         R"(
        Right
          Nut
        Left
          Bolt
          Bolt)",
                                         {"--view", "indented", "--format", "markdown"});

    EXPECT_EQ(result.output,
              "| Change | Item | What | Old | New |\n"
              "| --- | --- | --- | --- | --- |\n"
              "| quantity | Left / Bolt | Quantity per parent | 1 | 2 |\n"
              "| removed | Right / Bolt |  | 1 |  |\n"
              "| added | Right / Nut |  |  | 1 |\n\n"
              "1 added, 1 removed, 1 change in other lines, 2 unchanged\n")
        << result.errors;
}

TEST_F(CompareCommand, MoreOfAnAssemblyIsNoChangeOfWhatIsInIt) {
    EXPECT_EQ(compare("Axle\n  Wheel", "Axle\n  Wheel\nAxle",
                      {"--view", "indented", "--format", "markdown"})
                  .output,
              "| Change | Item | What | Old | New |\n"
              "| --- | --- | --- | --- | --- |\n"
              "| quantity | Axle | Quantity per parent | 1 | 2 |\n\n"
              "0 added, 0 removed, 1 change in other lines, 1 unchanged\n");
}

TEST_F(CompareCommand, AListIsNotComparedWithATree) {
    const std::string file = design("Bolt");
    const std::string list = edited(file, {});

    expectFailure(
        run({"compare", file, list, "--view", "indented"}), 2,
        "tarnix-workbench: --view indented: compares two designs, by what their lines are "
        "in; for a list there are parts, top, all\n");
}

TEST_F(CompareCommand, AnotherShapeIsInMarkdownToo) {
    EXPECT_EQ(compare("Block  box=4x2x1 material=Steel:0.008",
                      "Block  box=2x2x2 material=Steel:0.008", {"--format", "markdown"})
                  .output,
              "| Change | Item | What | Old | New |\n"
              "| --- | --- | --- | --- | --- |\n"
              "| shape | Block | Area \\[cm\xC2\xB2\\] | 28 | 24 |\n\n"
              "0 added, 0 removed, 1 change in other lines, 0 unchanged\n");
}

TEST_F(CompareCommand, TwoListsAreRefused) {
    expectFailure(run({"compare", "a.csv", "b.csv"}), 2,
                  "tarnix-workbench: OLD and NEW are both lists; one of them has to be a design\n");
}

}  // namespace
