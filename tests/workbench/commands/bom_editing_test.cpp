#include "tests/support/text.h"
#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace fs = std::filesystem;
using test_support::firstLines;
using test_support::isOneLine;
using test_support::kSmallDesign;
using test_support::loadDesign;
using test_support::ProgramResult;
using test_support::readFile;
using test_support::text;

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

}  // namespace

using BomEditing = test_support::Workbench;

TEST_F(BomEditing, ColumnsAreChosenAndSaved) {
    const std::string file = design(kSmallDesign);

    const ProgramResult result = run({"bom", file, "--column", "Quantity=Qty", "--column", "Mass"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(firstLines(result.output, 4), text(R"(
              Pos.  Part Number  BOM Structure  Qty  Mass [kg]
        ────  ────  ───────────  ─────────────  ───  ─────────
        Part     1  Frame        Produce          1      1.000
        Part     2  Bolt         Produce          2      0.500
        )") + "\n");
    EXPECT_EQ(firstLines(run({"bom", file}).output, 4), firstLines(result.output, 4));
}

TEST_F(BomEditing, NewColumnsReplaceTheOldOnesAndTheirCaptions) {
    configure({"QEMA_Mass;Weight", "QEMA_Area;Area"});

    const ProgramResult result = run({"bom", design(kSmallDesign), "--column", "Mass"});

    EXPECT_EQ(firstLines(result.output, 3), text(R"(
              Pos.  Part Number  BOM Structure  Mass [kg]
        ────  ────  ───────────  ─────────────  ─────────
        Part     1  Frame        Produce            1.000
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
    const ProgramResult result = run({"bom", design(kSmallDesign), "--sort", "Part Number"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(firstLines(result.output, 4), text(R"(
              Pos.  Part Number  BOM Structure
        ────  ────  ───────────  ─────────────
        Part     2  Bolt         Produce
        Part     1  Frame        Produce
        )") + "\n");
}

TEST_F(BomEditing, RowsAreSortedByAPropertyInDescendingOrder) {
    configure({"QEMA_Quantity;How many"});

    const ProgramResult result = run({"bom", design(kSmallDesign), "--sort", "Quantity:desc"});

    EXPECT_EQ(firstLines(result.output, 4), text(R"(
              Pos.  Part Number  BOM Structure  How many
        ────  ────  ───────────  ─────────────  ────────
        Part     2  Bolt         Produce               2
        Part     1  Frame        Produce               1
        )") + "\n");
}

TEST_F(BomEditing, ASortOfNamesThatTheAddinTakesForNumbersFails) {
    configure({"QEMA_Part Name;Name"});

    const ProgramResult result =
        run({"bom", design(kSmallDesign), "--sort", "Name", "--out", out()});

    EXPECT_EQ(result.status, 4);
    EXPECT_EQ(result.errors,
              "tarnix-workbench: cannot sort by \"Name\": the add-in threw std::invalid_argument "
              "(invalid stod argument) in OnInputChanged of QEMA_Part Name_0\n");
    EXPECT_EQ(result.output, "");
    EXPECT_FALSE(fs::exists(folder.path() / "out"));
}

TEST_F(BomEditing, TheWholeTreeIsShown) {
    const ProgramResult result =
        run({"bom", design(kTree), "--tab", "model", "--expand", "all", "--format", "csv"});

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
    const ProgramResult result =
        run({"bom", design(kTree), "--tab", "model", "--expand", "2", "--format", "csv"});

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

    const ProgramResult result =
        run({"bom", file, "--set", "2:Part Number=B-2", "--set", "1:BOM Structure=Buy", "--save"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(firstLines(result.output, 4), text(R"(
              Pos.  Part Number  BOM Structure
        ────  ────  ───────────  ─────────────
        Part     1  Frame        Buy
        Part     2  B-2          Produce
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
             "1:Part Number=F", "--save", "--format", "csv"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output,
              "Pos.;Part Number;BOM Structure;Mass [kg];\r\n"
              "1;F;Produce;1.000;\r\n"
              "2;Bolt;Produce;0.500;\r\n"
              "3;Bolt;Produce;0.500;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;\r\n");
}

TEST_F(BomEditing, AnUnknownCellListsTheKnownOnesAndWritesNothing) {
    const std::string file = design(kSmallDesign);
    const std::string old = readFile(host::fromUtf8(file));

    const ProgramResult column = run({"bom", file, "--set", "1:Pos.=7", "--save"});
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
              "tarnix-workbench: --set 1:BOM Structure=Bought: no such choice; available: "
              "\"Produce\", \"Buy\", \"AsPart\", \"Divided\", \"Reference\"\n");
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

TEST_F(BomEditing, ASaveIntoAnotherKindOfFileIsRefused) {
    const ProgramResult result = run({"bom", design(kSmallDesign), "--save", "frame.step"});

    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(isOneLine(result.errors)) << result.errors;
    EXPECT_NE(result.errors.find("must end in .json"), std::string::npos) << result.errors;
}
