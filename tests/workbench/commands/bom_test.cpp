#include "host/session/folder_lock.h"
#include "tests/support/text.h"
#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace fs = std::filesystem;
using test_support::firstLines;
using test_support::isOneLine;
using test_support::kSmallDesign;
using test_support::ProgramResult;
using test_support::readFile;
using test_support::text;
using test_support::writeFile;

using BomCommand = test_support::Workbench;

TEST_F(BomCommand, PrintsTheStructureAndItsMass) {
    const ProgramResult result = run({"bom", design(kSmallDesign)});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(firstLines(result.output, 6), text(R"(
              Pos.  Part Number  BOM Structure
        ────  ────  ───────────  ─────────────
        Part     1  Frame        Produce
        Part     2  Bolt         Produce

        Total mass of structure BOM [kg] : 2.000
        )") + "\n");
    EXPECT_EQ(result.errors, "");
}

TEST_F(BomCommand, ReportsWhereTheExportIsAndWhatTheShellWasAsked) {
    const ProgramResult result = run({"bom", design(kSmallDesign)});

    const std::string line = "TarnixBOM.csv: " + host::toUtf8(addinCopy() / "TarnixBOM.csv") + "\n";
    EXPECT_NE(result.output.find(line), std::string::npos) << result.output;
    const std::string workbook = host::toUtf8(std::filesystem::path("Tarnix") / "TarnixBOM.xlsm");
    EXPECT_NE(result.output.find("\nNot opened: "), std::string::npos) << result.output;
    EXPECT_TRUE(result.output.ends_with(workbook + " (--open lets the add-in do that)\n"))
        << result.output;
}

TEST_F(BomCommand, CsvIsTheExportedFileAndNothingElse) {
    const ProgramResult result = run({"bom", design(kSmallDesign), "--format", "csv"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output,
              "Pos.;Part Number;BOM Structure;\r\n"
              "1;Frame;Produce;\r\n"
              "2;Bolt;Produce;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;2.000\r\n");
    EXPECT_EQ(result.output, readFile(addinCopy() / "TarnixBOM.csv"));
}

TEST_F(BomCommand, JsonHasAnObjectForEachLineOfTheList) {
    const ProgramResult result = run({"bom", design(kSmallDesign), "--format", "json"});

    EXPECT_EQ(result.output, text(R"(
        [
          {
            "Image": "Part",
            "Pos.": "1",
            "Part Number": "Frame",
            "BOM Structure": "Produce"
          },
          {
            "Image": "Part",
            "Pos.": "2",
            "Part Number": "Bolt",
            "BOM Structure": "Produce"
          }
        ]
        )") + "\n");
}

TEST_F(BomCommand, ColumnsThatTheUserChoseArePrinted) {
    configure({"QEMA_Quantity;Qty", "QEMA_Mass;Mass"});

    const ProgramResult result = run({"bom", design(kSmallDesign)});

    EXPECT_EQ(firstLines(result.output, 4), text(R"(
              Pos.  Part Number  BOM Structure  Qty  Mass [kg]
        ────  ────  ───────────  ─────────────  ───  ─────────
        Part     1  Frame        Produce          1      1.000
        Part     2  Bolt         Produce          2      0.500
        )") + "\n");
}

TEST_F(BomCommand, TheModelTabShowsTheFirstLevel) {
    const ProgramResult result = run({"bom", design(R"(
                                          Frame
                                            Leg
                                          Bolt)"),
                                      "--tab", "model"});

    EXPECT_EQ(firstLines(result.output, 5), text(R"(
                      Part Number  BOM Structure
        ──────────    ───────────  ─────────────
        ColapseAsm    Frame        Produce
        Part          Bolt         Produce

        )") + "\n");
}

TEST_F(BomCommand, NamesOfAllScriptsKeepTheTableInLine) {
    const ProgramResult result = run({"bom", design(R"(
        鋼板
        Größe  number="Größe 5")",
                                                    "プレス")});

    EXPECT_EQ(firstLines(result.output, 4), text(R"(
              Pos.  Part Number  BOM Structure
        ────  ────  ───────────  ─────────────
        Part     1  鋼板         Produce
        Part     2  Größe 5      Produce
        )") + "\n");
}

TEST_F(BomCommand, OutGetsACopyOfTheExport) {
    const ProgramResult result = run({"bom", design(kSmallDesign), "--out", out()});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(readFile(folder.path() / "out" / "TarnixBOM.csv"),
              readFile(addinCopy() / "TarnixBOM.csv"));
    EXPECT_NE(result.output.find("TarnixBOM.csv: " + out()), std::string::npos) << result.output;
    EXPECT_FALSE(fs::exists(folder.path() / "out" / "TarnixBOM.csv.new"));
}

TEST_F(BomCommand, AFileInThePlaceOfTheFolderForTheExportIsRefusedWithALine) {
    writeFile(folder.path() / "out", "mine");

    const ProgramResult result = run({"bom", design(kSmallDesign), "--out", out()});

    EXPECT_EQ(result.status, 5);
    EXPECT_TRUE(isOneLine(result.errors)) << result.errors;
    const std::string file = host::toUtf8(folder.path() / "out" / "TarnixBOM.csv");
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

TEST_F(BomCommand, AnOldExportIsNotTakenForANewOne) {
    run({"bom", design(kSmallDesign)});

    const ProgramResult result = run({"bom", design(""), "--out", out()});

    EXPECT_EQ(result.status, 5);
    EXPECT_EQ(result.errors,
              "tarnix-workbench: the add-in exported nothing: the table has no rows\n");
    EXPECT_FALSE(fs::exists(folder.path() / "out"));
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

    EXPECT_EQ(result.status, 4);
    EXPECT_EQ(result.errors,
              "tarnix-workbench: the add-in threw std::out_of_range (invalid string position) in "
              "OnCommandCreated\n");
    EXPECT_EQ(result.output, "");
    EXPECT_FALSE(fs::exists(folder.path() / "out"));
}

TEST_F(BomCommand, SettingsThatAreNotXmlFailWithALine) {
    configure({});
    writeFile(addinCopy() / "Tarnix_configuration.xml", "<configuration");

    const ProgramResult result = run({"bom", design(kSmallDesign)});

    EXPECT_EQ(result.status, 4);
    EXPECT_EQ(result.errors, "tarnix-workbench: the add-in threw _com_error in OnCommandCreated\n");
    EXPECT_EQ(readFile(addinCopy() / "Tarnix_configuration.xml"), "<configuration");
}

TEST_F(BomCommand, AUserFolderInUseIsRefusedWithALine) {
    const fs::path home = folder.path() / "data" / "tarnix-workbench";
    fs::create_directories(home);
    const auto lock = host::FolderLock::take(home);

    const ProgramResult result = run({"bom", design(kSmallDesign)});

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.errors,
              "tarnix-workbench: another process is using " + host::toUtf8(home) + "\n");
}

TEST_F(BomCommand, AMissingAddinIsNamed) {
    const ProgramResult result = run({"bom", design(kSmallDesign), "--addin", out()});

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.errors, "tarnix-workbench: no add-in there: " +
                                 host::toUtf8(folder.path() / "out" / "out.manifest") +
                                 " is missing\n");
}

TEST_F(BomCommand, AMissingFileIsRefusedWithALine) {
    const ProgramResult result = run({"bom", "nowhere.step", "--out", out()});

    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(isOneLine(result.errors)) << result.errors;
    EXPECT_EQ(result.errors.rfind("tarnix-workbench: nowhere.step", 0), 0U) << result.errors;
    EXPECT_EQ(result.output, "");
    EXPECT_FALSE(fs::exists(folder.path() / "out"));
}
