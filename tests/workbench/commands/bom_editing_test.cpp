#include "tests/support/text.h"
#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <future>
#include <string>
#include <vector>

namespace fs = std::filesystem;
using test_support::firstLines;
using test_support::isOneLine;
using test_support::kKnownStructures;
using test_support::kSmallDesign;
using test_support::kSmallDesignsList;
using test_support::loadDesign;
using test_support::ProgramResult;
using test_support::readFile;
using test_support::text;
using test_support::writeFile;

namespace {

/// An assembly in an assembly, and a part. An export of the model has no mass, since the
/// structure was never shown.
constexpr const char* kTree = R"(
    Frame
      Leg assembly
        Foot
      Brace
    Bolt)";

/// Two components of one part number, which make one line.
constexpr const char* kMerged = R"(
    Bolt  number=B-1
    Screw  number=B-1)";

/// One component twice.
constexpr const char* kTwice = R"(
    Bolt
    Bolt)";

}  // namespace

using BomEditing = test_support::Workbench;

TEST_F(BomEditing, ColumnsAreChosenAndStored) {
    const std::string file = design(kSmallDesign);

    const ProgramResult result =
        run({"bom", file, "--column", "Quantity=Qty", "--column", "Mass", "--keep-columns"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(firstLines(result.output, 4), text(kSmallDesignsList) + "\n");
    EXPECT_EQ(firstLines(run({"bom", file}).output, 4), firstLines(result.output, 4));
}

TEST_F(BomEditing, ColumnsThatAreNotToBeKeptHoldForOneRun) {
    configure({"QEMA_Area;Area"});
    const std::string old = readFile(settingsFile());

    run({"bom", design(kSmallDesign), "--column", "Mass"});

    EXPECT_EQ(readFile(settingsFile()), old);
}

TEST_F(BomEditing, StoredColumnsAreRemovedAgain) {
    configure({"QEMA_Area;Area"});

    const ProgramResult result =
        run({"bom", design(kSmallDesign), "--no-columns", "--format", "csv"});

    EXPECT_EQ(firstLines(result.output, 1), "Pos.;Part Number;BOM Structure;\r\n");
    EXPECT_EQ(firstLines(run({"bom", design(kSmallDesign), "--format", "csv"}).output, 1),
              "Pos.;Part Number;BOM Structure;Quantity;Part Name;Mass [kg];Physical Material;\r\n");
}

TEST_F(BomEditing, ADataHomeHasSettingsOfItsOwn) {
    configure({"QEMA_Area;Area"});
    const std::string file = design(kSmallDesign);

    run({"bom", file, "--column", "Mass", "--keep-columns", "--data-home", path("home")});

    EXPECT_EQ(
        firstLines(run({"bom", file, "--format", "csv", "--data-home", path("home")}).output, 1),
        "Pos.;Part Number;BOM Structure;Mass [kg];\r\n");
    EXPECT_EQ(firstLines(run({"bom", file, "--format", "csv"}).output, 1),
              "Pos.;Part Number;BOM Structure;Area [cm\u00B2];\r\n");
}

TEST_F(BomEditing, AColumnMayBeAPropertyWithAnEqualSign) {
    const ProgramResult result =
        run({"bom", design("Frame  property=a=b/Yes"), "--column", "a=b", "--format", "csv"});

    EXPECT_EQ(firstLines(result.output, 2),
              "Pos.;Part Number;BOM Structure;a=b;\r\n1;Frame;Produce;Yes;\r\n");
}

TEST_F(BomEditing, NewColumnsReplaceTheOldOnesAndTheirCaptions) {
    configure({"QEMA_Mass;Weight", "QEMA_Area;Area"});

    const ProgramResult result = run({"bom", design(kSmallDesign), "--column", "Mass"});

    EXPECT_EQ(firstLines(result.output, 3), text(R"(
           Pos.  Part Number  BOM Structure  Mass [kg]
        ─  ────  ───────────  ─────────────  ─────────
        ·     1  Frame        Produce            1.000
        )") + "\n");
}

TEST_F(BomEditing, AnUnknownPropertyListsTheKnownOnesAndChangesNothing) {
    configure({"QEMA_Mass;Mass"});
    const std::string old = readFile(settingsFile());

    const ProgramResult result =
        run({"bom", design("Frame  property=Supplier/Acme"), "--column", "Weight", "--out", out()});

    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(result.errors.starts_with(
        "tarnix-workbench: --column Weight: no such property; available: \"Quantity\", "
        "\"Part Name\", "))
        << result.errors;
    EXPECT_TRUE(result.errors.ends_with(", \"Supplier\"\n")) << result.errors;
    EXPECT_TRUE(isOneLine(result.errors)) << result.errors;
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(readFile(settingsFile()), old);
    EXPECT_FALSE(fs::exists(folder.path() / "out"));
}

TEST_F(BomEditing, AnUnknownSortColumnLeavesTheSettingsAsTheyWere) {
    configure({"QEMA_Area;Area"});
    const std::string old = readFile(settingsFile());

    const ProgramResult result =
        run({"bom", design(kSmallDesign), "--column", "Mass", "--sort", "Area"});

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors,
              "tarnix-workbench: --sort Area: no such column; available: \"Pos.\", \"Part "
              "Number\", \"BOM Structure\", \"Mass [kg]\"\n");
    EXPECT_EQ(readFile(settingsFile()), old);
}

TEST_F(BomEditing, RowsAreSortedByACaption) {
    const ProgramResult result =
        run({"bom", design(kSmallDesign), "--no-columns", "--sort", "Part Number"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(firstLines(result.output, 4), text(R"(
           Pos.  Part Number  BOM Structure
        ─  ────  ───────────  ─────────────
        ·     2  Bolt         Produce
        ·     1  Frame        Produce
        )") + "\n");
}

TEST_F(BomEditing, RowsAreSortedByAPropertyInDescendingOrder) {
    configure({"QEMA_Quantity;How many"});

    const ProgramResult result = run({"bom", design(kSmallDesign), "--sort", "Quantity:desc"});

    EXPECT_EQ(firstLines(result.output, 4), text(R"(
           Pos.  Part Number  BOM Structure  How many
        ─  ────  ───────────  ─────────────  ────────
        ·     2  Bolt         Produce               2
        ·     1  Frame        Produce               1
        )") + "\n");
}

TEST_F(BomEditing, ASortOfNamesThatTheAddinTakesForNumbersFails) {
    configure({"QEMA_Part Name;Name"});

    const ProgramResult result =
        run({"bom", design(kSmallDesign), "--sort", "Name", "--out", out()});

    expectFailure(
        result, 4,
        "tarnix-workbench: cannot sort by \"Name\": the add-in threw std::invalid_argument "
        "(invalid stod argument) in OnInputChanged of QEMA_Part Name_0\n");
}

TEST_F(BomEditing, TheWholeTreeIsShown) {
    const ProgramResult result = run({"bom", design(kTree), "--tab", "model", "--expand", "all",
                                      "--format", "csv", "--no-columns"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output,
              "Pos.;Part Number;BOM Structure;\r\n"
              "1;Frame;Produce;\r\n"
              "1.1;Leg assembly;Produce;\r\n"
              "1.1.1;Foot;Produce;\r\n"
              "1.2;Brace;Produce;\r\n"
              "2;Bolt;Produce;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;\r\n");
}

TEST_F(BomEditing, TheTreeIsShownDownToALevel) {
    const ProgramResult result = run({"bom", design(kTree), "--tab", "model", "--expand", "2",
                                      "--format", "csv", "--no-columns"});

    EXPECT_EQ(result.output,
              "Pos.;Part Number;BOM Structure;\r\n"
              "1;Frame;Produce;\r\n"
              "1.1;Leg assembly;Produce;\r\n"
              "1.2;Brace;Produce;\r\n"
              "2;Bolt;Produce;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;\r\n");
}

TEST_F(BomEditing, EditedCellsAreSavedAndPrintedFromANewOpening) {
    const std::string file = design(kSmallDesign);

    const ProgramResult result = run({"bom", file, "--no-columns", "--set", "2:Part Number=B-2",
                                      "--set", "1:BOM Structure=Buy", "--save"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(firstLines(result.output, 4), text(R"(
           Pos.  Part Number  BOM Structure
        ─  ────  ───────────  ─────────────
        ·     1  Frame        Buy
        ·     2  B-2          Produce
        )") + "\n");
    EXPECT_NE(result.output.find("Saved: " + file + "\n"), std::string::npos) << result.output;
    EXPECT_EQ(loadDesign(file).components[2].partNumber, "B-2");
}

TEST_F(BomEditing, ANamedFileGetsTheDesignAndTheOpenedOneStays) {
    const std::string file = design(kSmallDesign);
    const std::string old = readFile(host::fromUtf8(file));
    const std::string copy = host::toUtf8(folder.path() / "copy.design.json");

    const ProgramResult result = run({"bom", file, "--set", "1:Part Number=F", "--save", copy});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(loadDesign(copy).components[1].partNumber, "F");
    EXPECT_EQ(readFile(host::fromUtf8(file)), old);
}

TEST_F(BomEditing, RowsOfCellsAreThoseOfTheSortedList) {
    const std::string file = design(kSmallDesign);

    run({"bom", file, "--sort", "Part Number", "--set", "1:Part Number=Z", "--save"});

    EXPECT_EQ(loadDesign(file).components[2].partNumber, "Z");
}

TEST_F(BomEditing, LineNumbersStartAtOneAfterSaving) {
    const ProgramResult result =
        run({"bom", design(kSmallDesign), "--column", "Mass", "--tab", "model", "--set",
             "1:Part Number=F", "--set", "Bolt:BOM Structure=Buy", "--save", "--format", "csv"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output,
              "Pos.;Part Number;BOM Structure;Mass [kg];\r\n"
              "1;F;Produce;1.000;\r\n"
              "2;Bolt;Buy;0.500;\r\n"
              "3;Bolt;Buy;0.500;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;\r\n");
}

TEST_F(BomEditing, AnUnknownCellListsTheKnownOnesAndWritesNothing) {
    const std::string file = design(kSmallDesign);
    const std::string old = readFile(host::fromUtf8(file));

    const ProgramResult column = run({"bom", file, "--no-columns", "--set", "1:Pos.=7", "--save"});
    const ProgramResult row =
        run({"bom", file, "--set", "1:Part Number=F", "--set", "3:Part Number=B", "--save"});

    EXPECT_EQ(column.status, 2);
    EXPECT_EQ(column.errors,
              "tarnix-workbench: --set 1:Pos.: no such column; available: \"Part Number\", "
              "\"BOM Structure\"\n");
    EXPECT_EQ(row.status, 2);
    EXPECT_EQ(row.errors,
              "tarnix-workbench: --set 3:Part Number: row 3 is out of range (1 to 2)\n");
    EXPECT_EQ(readFile(host::fromUtf8(file)), old);
}

TEST_F(BomEditing, AnUnknownChoiceListsTheKnownOnes) {
    const ProgramResult result =
        run({"bom", design(kSmallDesign), "--set", "1:BOM Structure=Bought", "--save"});

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors,
              std::string("tarnix-workbench: --set 1:BOM Structure=Bought: ") + kKnownStructures);
}

TEST_F(BomEditing, ASaveInWhichTheAddinThrowsFailsAndWritesNothing) {
    // Equal descriptions get no marker, and accepting cuts a marker's length off all the same.
    const std::string file = design(kMerged);
    host::DesignData data = loadDesign(file);
    data.components[1].description = "Short";
    data.components[2].description = "Short";
    host::saveDesignFile(host::fromUtf8(file), data);
    const std::string old = readFile(host::fromUtf8(file));

    const ProgramResult result = run({"bom", file, "--save"});

    EXPECT_EQ(result.status, 4);
    EXPECT_EQ(result.errors,
              "tarnix-workbench: cannot save the structure tab: the add-in threw "
              "std::out_of_range (invalid string position) in OnExecute\n");
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(readFile(host::fromUtf8(file)), old);
}

TEST_F(BomEditing, ASavedDesignGetsItsFolder) {
    const std::string copy = path("new/folder/copy.design.json");

    const ProgramResult result = run({"bom", design(kSmallDesign), "--save", copy});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(loadDesign(copy).components.size(), 3U);
}

TEST_F(BomEditing, ASaveIntoAnotherKindOfFileIsRefused) {
    const ProgramResult result = run({"bom", design(kSmallDesign), "--save", "frame.step"});

    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(isOneLine(result.errors)) << result.errors;
    EXPECT_NE(result.errors.find("must end in .json"), std::string::npos) << result.errors;
}

TEST_F(BomEditing, APartNumberNamesAllItsRows) {
    const std::string file = design(kTwice);

    const ProgramResult result =
        run({"bom", file, "--tab", "model", "--set", "Bolt:Part Number=B-2", "--save"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(loadDesign(file).components[1].partNumber, "B-2");
}

TEST_F(BomEditing, ANumberThatIsALineIsNoPartNumber) {
    const std::string file = design(R"(
        Frame  number=2
        Bolt  number=20)");

    run({"bom", file, "--set", "2:BOM Structure=Buy", "--save"});
    const ProgramResult result = run({"bom", file, "--set", "20:BOM Structure=AsPart",
                                      "--no-columns", "--format", "csv", "--save"});

    EXPECT_EQ(firstLines(result.output, 3),
              "Pos.;Part Number;BOM Structure;\r\n1;2;Produce;\r\n2;20;AsPart;\r\n")
        << result.errors;
}

TEST_F(BomEditing, APathNamesTheRowOfAnOccurrence) {
    const std::string file = design(kTree);

    const ProgramResult result = run({"bom", file, "--tab", "model", "--expand", "all", "--set",
                                      "Frame:1+Brace:1:Part Number=B:1=2", "--save"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_NE(result.output.find("B:1=2"), std::string::npos) << result.output;
}

TEST_F(BomEditing, ANameOfNoRowIsRefused) {
    const std::string file = design(kTree);

    EXPECT_EQ(run({"bom", file, "--set", "Nut:Part Number=N", "--save"}).errors,
              "tarnix-workbench: --set Nut:Part Number: no row \"Nut\"; expected the number of a "
              "line, the path of an occurrence or a part number\n");
    EXPECT_EQ(
        run({"bom", file, "--tab", "model", "--set", "Frame:1+Brace:1:Part Number=N", "--save"})
            .errors,
        "tarnix-workbench: --set Frame:1+Brace:1:Part Number: the row of Frame:1+Brace:1 is "
        "not shown; --expand all shows it\n");
}

TEST_F(BomEditing, OfTwoAtOnceNoneIsLostWithStatusZero) {
    const std::string file = design(kSmallDesign);
    const auto edit = [&](const std::string& cell) {
        return std::async(std::launch::async, [file, cell] {
            return run({"bom", file, "--set", cell, "--save"});
        });
    };
    auto first = edit("1:Part Number=F-2");
    auto second = edit("2:Part Number=B-2");
    const ProgramResult one = first.get();
    const ProgramResult other = second.get();

    const host::DesignData saved = loadDesign(file);
    EXPECT_EQ(one.status, saved.components[1].partNumber == "F-2" ? 0 : 5) << one.errors;
    EXPECT_EQ(other.status, saved.components[2].partNumber == "B-2" ? 0 : 5) << other.errors;
    EXPECT_TRUE(one.status == 0 || other.status == 0);
    EXPECT_EQ(one.output.empty(), one.status != 0) << one.output;
    EXPECT_EQ(other.output.empty(), other.status != 0) << other.output;
}

/// An edit that the add-in loses, and the line that reports it.
class LostEdit : public test_support::Workbench {
protected:
    void expectLost(const std::string& file, std::vector<std::string> options,
                    const std::string& line) {
        const std::string old = readFile(host::fromUtf8(file));
        options.insert(options.begin(), {"bom", file});
        options.insert(options.end(), {"--save", "--out", out()});

        const ProgramResult result = run(options);

        EXPECT_EQ(result.status, 4);
        EXPECT_EQ(result.errors, "tarnix-workbench: " + line + "\n");
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(readFile(host::fromUtf8(file)), old);
        EXPECT_FALSE(fs::exists(folder.path() / "out"));
    }
};

TEST_F(LostEdit, OfAComponentThatIsUsedAgainLaterIsReported) {
    expectLost(design(kTwice), {"--tab", "model", "--set", "1:Part Number=B-2"},
               "row 1: Part Number stays \"Bolt\": row 2 is the same component, and is written "
               "after it");
}

TEST_F(LostEdit, OfAComponentWithAHiddenRowIsReported) {
    expectLost(design(R"(
                   Bolt
                   Frame
                     Bolt)"),
               {"--tab", "model", "--set", "1:Part Number=B-2"},
               "row 1: Part Number stays \"Bolt\": the hidden row of Frame:1+Bolt:2 is the same "
               "component, and is written after it");
}

TEST_F(LostEdit, OfAPropertyThatTheComponentLacksIsReported) {
    expectLost(design(R"(
                   Frame
                   Bolt  property=Supplier/Acme)"),
               {"--column", "Supplier", "--set", "1:Supplier=Acme"},
               "row 1: Supplier stays \"\": \"Frame\" lacks that property; the subcommand "
               "\"properties\" adds it");
}

TEST_F(LostEdit, OfAMeasuredColumnIsReported) {
    expectLost(design(kSmallDesign), {"--set", "1:Mass=5"},
               "row 1: Mass [kg] stays \"1.000\": the add-in works it out");
}

TEST_F(LostEdit, OfTheStructureOfAPartInSeveralRowsIsReported) {
    expectLost(design(R"(
                   Left  structure=Divided
                     Bolt
                   Right  structure=Divided
                     Bolt)"),
               {"--set", "1:BOM Structure=Divided"},
               "row 1: BOM Structure stays \"Produce\": row 2 is the same component, and is "
               "written after it");
}

TEST_F(LostEdit, OfACombinedRowIsReported) {
    expectLost(design(kMerged), {"--set", "1:Part Number=B-2"},
               "row 1: Part Number stays \"B-1\": the row combines differently named components; "
               "edit them with --tab model");
}

TEST_F(LostEdit, OnesAreAllReported) {
    const ProgramResult result =
        run({"bom", design(kSmallDesign), "--set", "1:Mass=5", "--set", "2:Quantity=7", "--save"});

    EXPECT_EQ(result.status, 4);
    EXPECT_EQ(result.errors,
              "tarnix-workbench: row 1: Mass [kg] stays \"1.000\": the add-in works it out\n"
              "tarnix-workbench: row 2: Quantity stays \"1\": the add-in works it out\n");
}

/// A list that was exported, edited, and is taken back.
class EditedListOption : public test_support::Workbench {
protected:
    ProgramResult setFrom(const std::string& file, const std::string& list,
                          std::vector<std::string> options = {}) {
        writeFile(folder.path() / "edited.csv", list);
        options.insert(options.begin(), {"bom", file, "--set-from", path("edited.csv"), "--save"});
        return run(options);
    }

    /// A design whose components have these values of the property "Note".
    std::string withNotes(const std::string& outline, const std::vector<std::string>& notes) {
        std::string file = design(outline);
        host::DesignData data = loadDesign(file);
        for (std::size_t i = 0; i < notes.size(); ++i) {
            data.components[i + 1].attributes.push_back({.group = "QEMA_PropertiesAttributesGroup",
                                                         .name = "QEMA_Note",
                                                         .value = notes[i]});
        }
        host::saveDesignFile(host::fromUtf8(file), data);
        return file;
    }

    [[nodiscard]] std::string line(int number) const {
        return "tarnix-workbench: " + path("edited.csv") + ", line " + std::to_string(number) +
               ": ";
    }
};

TEST_F(EditedListOption, ChangesTheCellsThatDiffer) {
    const std::string file = design(kSmallDesign);

    const ProgramResult result =
        setFrom(file,
                "Pos.;Part Number;BOM Structure;Quantity;Part Name;Mass [kg];Physical Material;\r\n"
                "1;Frame;Produce;1;Frame;1,0;Sheet;\r\n"
                "2;Bolt;Buy;2;Screw;0.500;Sheet;\r\n"
                "\r\n"
                ";Total mass of structure BOM [kg]: ;2.000\r\n");

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(loadDesign(file).components[2].name, "Screw");
    EXPECT_NE(result.output.find("Buy"), std::string::npos) << result.output;
}

TEST_F(EditedListOption, MayNamePathsAndChangePartNumbers) {
    const std::string file = design(kTree);

    const ProgramResult result = setFrom(file,
                                         "\xEF\xBB\xBFPath,Part Number\n"
                                         "Frame:1+Brace:1,\"B, \"\"2\"\"\"\n",
                                         {"--tab", "model", "--expand", "all"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_NE(result.output.find("B, \"2\""), std::string::npos) << result.output;
}

TEST_F(EditedListOption, ReportsAllThatCannotBeAppliedAndSavesNothing) {
    const std::string file = design(kSmallDesign);
    const std::string old = readFile(host::fromUtf8(file));

    const ProgramResult result = setFrom(file,
                                         "Part Number;BOM Structure;Mass;Colour\n"
                                         "Frame;Bought;2.5;\n"
                                         "Nut;Buy;;\n"
                                         "Bolt;Buy;0.5;\n");

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              line(1) + "the list has no column \"Colour\"\n" + line(2) +
                  "BOM Structure \"Bought\": no such choice; available: \"Produce\", \"Buy\", "
                  "\"AsPart\", \"Divided\", \"Reference\"\n" +
                  line(2) + "Mass [kg] \"2.5\": the add-in works it out, here \"1.000\"\n" +
                  line(3) + "the list has no row of the part number \"Nut\"\n");
    EXPECT_EQ(readFile(host::fromUtf8(file)), old);
}

TEST_F(EditedListOption, OfRowsWithEqualPartNumbersEachHasItsOwnLine) {
    const std::string file = design(R"(
        Left  number=P-1
        Right  number=P-1)");

    const ProgramResult result = setFrom(file,
                                         "Part Number;BOM Structure;Part Name\n"
                                         "P-1;Produce;Left\n"
                                         "P-1;Buy;Right part\n",
                                         {"--tab", "model"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(loadDesign(file).components[1].name, "Left");
    EXPECT_EQ(loadDesign(file).components[2].name, "Right part");
}

TEST_F(EditedListOption, LinesThatWereNotEditedLeaveTheirRowsToTheOthers) {
    const std::string file = design(R"(
        Left  number=P-1
        Right  number=P-1)");

    const ProgramResult result = setFrom(file,
                                         "Pos.;Part Number;BOM Structure;Part Name;\n"
                                         "2;P-1;Produce;Right;\n"
                                         "1;P-1;Produce;Left part;\n",
                                         {"--tab", "model", "--column", "Part Name"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(loadDesign(file).components[1].name, "Left part");
    EXPECT_EQ(loadDesign(file).components[2].name, "Right");
}

TEST_F(EditedListOption, LinesThatAreNotAsManyAsTheirRowsAreRefused) {
    const std::string file = design(kTwice);
    const std::string old = readFile(host::fromUtf8(file));

    const ProgramResult few =
        setFrom(file, "Part Number;BOM Structure\nBolt;Buy\n", {"--tab", "model"});
    const ProgramResult many = setFrom(file, "Part Number;BOM Structure\nBolt;Buy\nBolt;AsPart\n");

    EXPECT_EQ(few.status, 1);
    EXPECT_EQ(few.errors, line(2) +
                              "1 line of the part number \"Bolt\" for 2 rows; a line for each is "
                              "needed, or a column \"Path\"\n");
    EXPECT_EQ(many.errors, line(2) +
                               "2 lines of the part number \"Bolt\" for 1 row; a line for each is "
                               "needed, or a column \"Path\"\n");
    EXPECT_EQ(readFile(host::fromUtf8(file)), old);
}

TEST_F(EditedListOption, ALineWithMoreFieldsThanCaptionsIsRefused) {
    const std::string file = design(kSmallDesign);
    const std::string old = readFile(host::fromUtf8(file));

    const ProgramResult result = setFrom(file,
                                         "Part Number;Part Name\n"
                                         "Frame;Frame\n"
                                         "Bolt;Screw; long\n");

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, line(3) +
                                 "has 3 fields for 2 captions; a value with a separator in it "
                                 "needs quotes\n");
    EXPECT_EQ(readFile(host::fromUtf8(file)), old);
}

/// What an export cannot keep apart: the list is accepted as it is, and changes nothing.
TEST_F(EditedListOption, ThatWasNotEditedChangesNothing) {
    const std::string file = withNotes(R"(
        Left  number=P-1
        Right  number=P-1
        Pipe  number="\"2"
        Bolt  number=7
        Frame
          Bolt)",
                                       {"soft; black", "\"quoted\"", "2\"", "two\nlines; more"});
    const std::vector<std::string> options = {"--tab",    "model", "--expand", "all",
                                              "--column", "Note",  "--column", "Description",
                                              "--format", "csv"};
    std::vector<std::string> list = {"bom", file};
    list.insert(list.end(), options.begin(), options.end());
    const std::string exported = run(list).output;
    list.insert(list.end(), {"--save", path("saved.design.json")});
    run(list);

    std::vector<std::string> again = options;
    again.insert(again.end(), {"--save", path("again.design.json")});
    again.insert(again.begin(), {"bom", file, "--set-from", path("edited.csv")});
    writeFile(folder.path() / "edited.csv", exported);
    const ProgramResult result = run(again);

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, exported);
    EXPECT_EQ(readFile(folder.path() / "again.design.json"),
              readFile(folder.path() / "saved.design.json"));
}

TEST_F(EditedListOption, EditsALineBesideOthersThatCannotBeTakenApart) {
    const std::string file = withNotes("Foot\nBolt", {"soft; black", "old"});

    const ProgramResult result = setFrom(file,
                                         "Pos.;Part Number;BOM Structure;Note;\r\n"
                                         "1;Foot;Produce;soft; black;\r\n"
                                         "2;Bolt;Produce;new;\r\n",
                                         {"--column", "Note", "--format", "csv"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(firstLines(result.output, 3),
              "Pos.;Part Number;BOM Structure;Note;\r\n"
              "1;Foot;Produce;soft; black;\r\n"
              "2;Bolt;Produce;new;\r\n");
}

TEST_F(EditedListOption, NeedsAColumnThatNamesTheRows) {
    const ProgramResult result = setFrom(design(kSmallDesign), "Name;Mass\nFrame;1\n");

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "tarnix-workbench: " + path("edited.csv") +
                                 ": has neither a column \"Part Number\" nor a column \"Path\"\n");
}
