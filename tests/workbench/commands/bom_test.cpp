#include "tests/support/leak_check.h"
#include "tests/support/text.h"
#include "tests/workbench/workbench_fixture.h"

#include "host/base/folder_lock.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <future>
#include <optional>
#include <string>

namespace fs = std::filesystem;
using test_support::firstLines;
using test_support::isOneLine;
using test_support::kSmallDesign;
using test_support::kSmallDesignsList;
using test_support::ProgramResult;
using test_support::readFile;
using test_support::text;
using test_support::writeFile;

using BomCommand = test_support::Workbench;

TEST_F(BomCommand, PrintsTheStructureAndItsMass) {
    const ProgramResult result = run({"bom", design(kSmallDesign)});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(firstLines(result.output, 6), text(R"(
           Pos.  Part Number  BOM Structure  Quantity  Part Name  Mass [kg]  Physical Material
        ─  ────  ───────────  ─────────────  ────────  ─────────  ─────────  ─────────────────
        ·     1  Frame        Produce               1  Frame          1.000  Sheet
        ·     2  Bolt         Produce               2  Bolt           0.500  Sheet

        Total mass of structure BOM [kg] : 2.000
        )") + "\n");
    EXPECT_EQ(result.errors, "");
}

TEST_F(BomCommand, ReportsWhereTheExportIsAndWhatTheShellWasAsked) {
    const ProgramResult result = run({"bom", design(kSmallDesign), "--out", out()});

    const std::string line =
        "TarnixBOM.csv: " + host::toUtf8(folder.path() / "out" / "sample-TarnixBOM.csv") + "\n";
    EXPECT_NE(result.output.find(line), std::string::npos) << result.output;
    // The folder of the run is gone by then.
    EXPECT_TRUE(
        result.output.ends_with("\nNot opened: TarnixBOM.xlsm (--open lets the add-in do that)\n"))
        << result.output;
}

TEST_F(BomCommand, CsvIsTheExportedFileAndNothingElse) {
    const ProgramResult result = run({"bom", design(kSmallDesign), "--format", "csv"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output,
              "Pos.;Part Number;BOM Structure;Quantity;Part Name;Mass [kg];Physical Material;\r\n"
              "1;Frame;Produce;1;Frame;1.000;Sheet;\r\n"
              "2;Bolt;Produce;2;Bolt;0.500;Sheet;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;2.000\r\n");
}

TEST_F(BomCommand, JsonHasAnObjectForEachLineOfTheList) {
    const ProgramResult result =
        run({"bom", design(kSmallDesign), "--format", "json", "--column", "Mass"});

    EXPECT_EQ(result.output, text(R"(
        {
          "rows": [
            {
              "Image": "Part",
              "Pos.": "1",
              "Part Number": "Frame",
              "BOM Structure": "Produce",
              "Mass [kg]": "1.000",
              "Level": 1,
              "Path": "Frame:1",
              "Material assumed": false
            },
            {
              "Image": "Part",
              "Pos.": "2",
              "Part Number": "Bolt",
              "BOM Structure": "Produce",
              "Mass [kg]": "0.500",
              "Level": 1,
              "Path": "Bolt:1",
              "Material assumed": false
            }
          ],
          "total": "2.000",
          "warnings": []
        }
        )") + "\n");
}

TEST_F(BomCommand, ColumnsThatTheUserChoseArePrinted) {
    configure({"QEMA_Quantity;Qty", "QEMA_Mass;Mass"});

    const ProgramResult result = run({"bom", design(kSmallDesign)});

    EXPECT_EQ(firstLines(result.output, 4), text(kSmallDesignsList) + "\n");
}

TEST_F(BomCommand, TheModelTabShowsTheFirstLevel) {
    const ProgramResult result = run({"bom", design(R"(
                                          Frame
                                            Leg
                                          Bolt)"),
                                      "--tab", "model", "--column", "Quantity"});

    EXPECT_EQ(firstLines(result.output, 5), text(R"(
           Part Number  BOM Structure  Quantity
        ─  ───────────  ─────────────  ────────
        ▸  Frame        Produce               1
        ·  Bolt         Produce               1

        )") + "\n");
}

TEST_F(BomCommand, TheModelTabShowsATree) {
    const ProgramResult result = run({"bom", design(R"(
                                          Frame
                                            Leg assembly
                                              Foot
                                            Brace
                                          Bolt)"),
                                      "--tab", "model", "--expand", "2", "--column", "Quantity"});

    EXPECT_EQ(firstLines(result.output, 7), text(R"(
             Part Number   BOM Structure  Quantity
        ───  ────────────  ─────────────  ────────
        ▾    Frame         Produce               1
          ▸  Leg assembly  Produce               1
          ·  Brace         Produce               1
        ·    Bolt          Produce               1

        )") + "\n");
}

TEST_F(BomCommand, NamesOfAllScriptsKeepTheTableInLine) {
    const ProgramResult result = run({"bom",
                                      design(R"(
        鋼板
        Größe  number="Größe 5")",
                                             "プレス"),
                                      "--column", "Quantity"});

    EXPECT_EQ(firstLines(result.output, 4), text(R"(
           Pos.  Part Number  BOM Structure  Quantity
        ─  ────  ───────────  ─────────────  ────────
        ·     1  鋼板         Produce               1
        ·     2  Größe 5      Produce               1
        )") + "\n");
}

TEST_F(BomCommand, OutGetsACopyOfTheExport) {
    const ProgramResult result = run({"bom", design(kSmallDesign), "--out", out()});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(readFile(folder.path() / "out" / "sample-TarnixBOM.csv"),
              run({"bom", design(kSmallDesign), "--format", "csv"}).output);
    EXPECT_NE(result.output.find("TarnixBOM.csv: " + out()), std::string::npos) << result.output;
}

TEST_F(BomCommand, OutHasACopyForEachDesign) {
    run({"bom", design("Frame", "frame v1.2"), "--out", out()});
    run({"bom", design("Bolt", "frame v1.3"), "--out", out()});

    EXPECT_NE(readFile(folder.path() / "out" / "frame v1.2-TarnixBOM.csv").find("Frame"),
              std::string::npos);
    EXPECT_NE(readFile(folder.path() / "out" / "frame v1.3-TarnixBOM.csv").find("Bolt"),
              std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "out" / "TarnixBOM.csv"));
}

TEST_F(BomCommand, AFileInThePlaceOfTheFolderForTheExportIsRefusedWithALine) {
    writeFile(folder.path() / "out", "mine");

    const ProgramResult result = run({"bom", design(kSmallDesign), "--out", out()});

    EXPECT_EQ(result.status, 5);
    EXPECT_TRUE(isOneLine(result.errors)) << result.errors;
    const std::string file = host::toUtf8(folder.path() / "out" / "sample-TarnixBOM.csv");
    EXPECT_EQ(result.errors.rfind("tarnix-workbench: cannot write " + file + ": ", 0), 0U)
        << result.errors;
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(readFile(folder.path() / "out"), "mine");
}

TEST_F(BomCommand, ADesignWithoutOccurrencesHasNothingToExport) {
    const ProgramResult result = run({"bom", design("")});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_NE(result.output.find("TarnixBOM.csv: not written, the table has no rows\n"),
              std::string::npos)
        << result.output;
}

TEST_F(BomCommand, VerboseReportsWhatTheAddinAlwaysThrows) {
    const ProgramResult result = run({"bom", design(kSmallDesign), "--verbose"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors,
              "the add-in threw std::invalid_argument (invalid stoi argument) in OnInputChanged of "
              "QEMA_btnExportXls\n"
              "the add-in threw std::exception in stop\n");
}

TEST_F(BomCommand, WhatTheAddinThrowsOtherwiseFailsWithALine) {
    // A key of a configured column that is shorter than its prefix.
    configure({"Mass;Mass"});

    const ProgramResult result = run({"bom", design(kSmallDesign), "--out", out()});

    expectFailure(
        result, 4,
        "tarnix-workbench: the add-in threw std::out_of_range (invalid string position) in "
        "OnCommandCreated\n");
}

TEST_F(BomCommand, ARunThatStoresColumnsWaitsForTheDataHome) {
    const fs::path home = folder.path() / "shared";
    fs::create_directories(home);
    const auto lock = host::FolderLock::take(home);

    const ProgramResult result =
        run({"bom", design(kSmallDesign), "--column", "Mass", "--keep-columns", "--data-home",
             host::toUtf8(home), "--max-seconds", "1"});

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.errors,
              "tarnix-workbench: another process is using " + host::toUtf8(home) + "\n");
}

TEST_F(BomCommand, ARunThatStoresNothingNeedsNoLock) {
    configure({"QEMA_Mass;Weight"});
    const auto lock = host::FolderLock::take(folder.path() / "data" / "tarnix-workbench");

    const ProgramResult result = run({"bom", design(kSmallDesign)});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_NE(result.output.find("Weight"), std::string::npos) << result.output;
}

TEST_F(BomCommand, NeedsNoFolderForUserData) {
    variables.set("HOME", std::nullopt);
    variables.set("XDG_DATA_HOME", std::nullopt);
    variables.set("LOCALAPPDATA", std::nullopt);

    EXPECT_EQ(run({"bom", design(kSmallDesign)}).status, 0);
}

TEST_F(BomCommand, RunsAtTheSameTimeKeepTheirColumnsApart) {
    const std::string file = design(kSmallDesign);
    const auto inColumn = [&](const char* property) {
        return std::async(std::launch::async, [file, property] {
            return run({"bom", file, "--format", "csv", "--column", property}).output;
        });
    };
    auto mass = inColumn("Mass");
    auto area = inColumn("Area=Paint");
    auto name = inColumn("Part Name");
    auto width = inColumn("Width");

    EXPECT_EQ(firstLines(mass.get(), 1), "Pos.;Part Number;BOM Structure;Mass [kg];\r\n");
    EXPECT_EQ(firstLines(area.get(), 1), "Pos.;Part Number;BOM Structure;Paint;\r\n");
    EXPECT_EQ(firstLines(name.get(), 1), "Pos.;Part Number;BOM Structure;Part Name;\r\n");
    EXPECT_EQ(firstLines(width.get(), 1), "Pos.;Part Number;BOM Structure;Width;\r\n");
}

TEST_F(BomCommand, LeavesNothingInTheFolderForTemporaryFiles) {
    if (test_support::looksForLeaks()) {
        GTEST_SKIP() << "a report of leaks needs the add-in's module, which the next run removes";
    }
    fs::create_directory(folder.path() / "tmp");
    for (const char* const name : {"TMPDIR", "TMP", "TEMP"}) {
        variables.set(name, folder.path() / "tmp");
    }

    run({"bom", design(kSmallDesign), "--column", "Mass"});

    EXPECT_TRUE(fs::is_empty(folder.path() / "tmp"));
}

TEST_F(BomCommand, AMissingAddinIsNamed) {
    const ProgramResult result = run({"bom", design(kSmallDesign), "--addin", out()});

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.errors, "tarnix-workbench: no add-in there: " +
                                 host::toUtf8(folder.path() / "out" / "out.manifest") +
                                 " is missing\n");
}

TEST_F(BomCommand, DamagedSettingsAreNamed) {
    fs::create_directories(addinCopy());
    writeFile(settingsFile(), "<configuration");
    const std::string advice = "; the settings " + host::toUtf8(settingsFile()) +
                               " may be damaged: correct them, or remove them to begin with new "
                               "ones\n";

    const ProgramResult list = run({"bom", design(kSmallDesign), "--out", out()});
    const ProgramResult provider = run({"configure"});

    EXPECT_EQ(list.status, 4);
    EXPECT_EQ(list.errors,
              "tarnix-workbench: the add-in threw _com_error in OnCommandCreated" + advice);
    EXPECT_EQ(readFile(settingsFile()), "<configuration");
    EXPECT_TRUE(isOneLine(list.errors)) << list.errors;
    EXPECT_FALSE(fs::exists(folder.path() / "out"));
    EXPECT_EQ(provider.status, 4);
    EXPECT_TRUE(provider.errors.ends_with(advice)) << provider.errors;
}

TEST_F(BomCommand, SettingsThatCannotBeReadAreNamed) {
    fs::create_directories(settingsFile());

    const ProgramResult result = run({"bom", design(kSmallDesign)});

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.errors.rfind("tarnix-workbench: the settings " + host::toUtf8(settingsFile()) +
                                      " cannot be read (",
                                  0),
              0U)
        << result.errors;
    EXPECT_TRUE(result.errors.ends_with("); remove them to begin with new ones\n"))
        << result.errors;
}

TEST_F(BomCommand, AMissingFileIsRefusedWithALine) {
    const ProgramResult result = run({"bom", "nowhere.step", "--out", out()});

    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(isOneLine(result.errors)) << result.errors;
    EXPECT_EQ(result.errors.rfind("tarnix-workbench: nowhere.step", 0), 0U) << result.errors;
    EXPECT_EQ(result.output, "");
    EXPECT_FALSE(fs::exists(folder.path() / "out"));
}

TEST_F(BomCommand, AFileOfOnePartSaysThatTheListIsEmpty) {
    const ProgramResult result = run({"bom", lonePart(), "--out", out()});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_NE(result.output.find("the file is one part; the list shows what is below the root\n"),
              std::string::npos)
        << result.output;
    EXPECT_FALSE(fs::exists(folder.path() / "out"));
}

TEST_F(BomCommand, AFileOfOnePartSaysSoInJson) {
    const std::string file = lonePart();

    const ProgramResult result = run({"bom", file, "--format", "json"});

    EXPECT_EQ(result.status, 0) << result.errors;
    const auto warnings = nlohmann::json::parse(result.output)["warnings"];
    ASSERT_EQ(warnings.size(), 1U) << result.output;
    EXPECT_EQ(warnings[0]["code"], "lone-part");
    EXPECT_EQ(warnings[0]["text"], file + ": is one part; the list shows what is below the root");
}

TEST_F(BomCommand, AFileOfOnePartIsNoFailureIfStrict) {
    EXPECT_EQ(run({"bom", lonePart(), "--format", "json", "--strict"}).status, 0);
}

TEST_F(BomCommand, MarksRowsWhoseMaterialIsAssumed) {
    host::DesignData data = host::parseOutline(R"(
        Bolt  material=Steel:0.00785 box=10x10x10
        Rail  material=Brass:0.0085 box=10x10x10)");
    data.components[1].material->nameAssumed = true;
    const std::string file = save(data, "bolt");

    const ProgramResult result = run({"bom", file, "--column", "Mass"});

    EXPECT_EQ(firstLines(result.output, 4), text(R"(
           Pos.  Part Number  BOM Structure  Mass [kg]  Material
        ─  ────  ───────────  ─────────────  ─────────  ────────
        ·     1  Bolt         Produce            7.850  assumed
        ·     2  Rail         Produce            8.500
        )") + "\n");
    EXPECT_EQ(run({"bom", file, "--strict", "--out", out()}).status, 1);
    EXPECT_FALSE(fs::exists(folder.path() / "out"));
}
