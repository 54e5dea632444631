#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>

using test_support::kSmallDesign;
using test_support::ProgramResult;

using DialogCommand = test_support::Workbench;

TEST_F(DialogCommand, ShowsADialogAsItOpens) {
    const ProgramResult result = run({"dialog", "QM_TX_moveComponentToOrigin"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output,
              "Dialog QM_TX_moveComponentToOrigin \"Move To Origin\"\n"
              "OK     \"OK\" (disabled: the selection \"occurenceInput\" needs 1, and has 0)\n"
              "Cancel \"Cancel\"\n"
              "Selection occurenceInput \"Occurence\" = \"\" (has the focus)\n"
              "CheckBox ground \"Gound selection occurence\" = \"false\"\n");
}

TEST_F(DialogCommand, UsesInputsInTheirOrderAndLeavesTheDesignAlone) {
    const std::string file = design(kSmallDesign);
    const std::string before = test_support::readFile(host::fromUtf8(file));

    const ProgramResult result = run({"dialog", "QM_TX_moveComponentToOrigin", file, "--set",
                                      "occurenceInput=Frame:1", "--set", "ground=true"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output,
              "Dialog QM_TX_moveComponentToOrigin \"Move To Origin\"\n"
              "OK     \"OK\"\n"
              "Cancel \"Cancel\"\n"
              "Selection occurenceInput \"Occurence\" = \"Frame:1\" (has the focus)\n"
              "CheckBox ground \"Gound selection occurence\" = \"true\"\n");
    EXPECT_EQ(test_support::readFile(host::fromUtf8(file)), before);
}

TEST_F(DialogCommand, ShowsWhatAChoiceBringsIntoView) {
    const ProgramResult before = run({"dialog", "QM_TX_configuration"});
    const ProgramResult after =
        run({"dialog", "QM_TX_configuration", "--set", "choiceProvider=Set other support provider",
             "--set", "helpdeskOther=http://help.example/"});

    EXPECT_NE(before.output.find("TextBox helpdeskOther = \"http://helpdesk.tarnix.example/\" "
                                 "(hidden)\n"),
              std::string::npos)
        << before.output;
    EXPECT_NE(after.output.find("TextBox helpdeskOther = \"http://help.example/\"\n"),
              std::string::npos)
        << after.output << after.errors;
}

TEST_F(DialogCommand, ShowsATabWithItsTableAsJson) {
    const ProgramResult result = run({"dialog", "QM_TX_BOM", design(kSmallDesign), "--tab",
                                      "QEMA_tab_structure_BOM", "--format", "json"});

    ASSERT_EQ(result.status, 0) << result.errors;
    const auto view = nlohmann::json::parse(result.output);
    std::string shown;
    for (const auto& each : view["inputs"]) {
        shown += each["active"] == true ? each["id"] : "";
    }
    EXPECT_EQ(shown, "QEMA_tab_structure_BOM");
}

TEST_F(DialogCommand, AnUnknownCommandNamesTheNearestOne) {
    const ProgramResult result = run({"dialog", "QM_TX_BON"});

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors,
              "tarnix-workbench: dialog QM_TX_BON: no such command; did you mean QM_TX_BOM? "
              "\"tarnix-workbench commands\" lists them\n");
}

TEST_F(DialogCommand, AnUnknownCommandThatNoneIsNearIsRefusedToo) {
    EXPECT_EQ(run({"dialog", "zzz"}).errors,
              "tarnix-workbench: dialog zzz: no such command; \"tarnix-workbench commands\" lists "
              "them\n");
}

TEST_F(DialogCommand, ACommandWithoutADialogIsReported) {
    const ProgramResult result = run({"dialog", "QM_TX_unitsConversion"});

    EXPECT_EQ(result.status, 4);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "tarnix-workbench: QM_TX_unitsConversion opened no dialog\n");
}

TEST_F(DialogCommand, WhatAnInputDoesNotTakeIsWrongUsage) {
    const ProgramResult flag =
        run({"dialog", "QM_TX_moveComponentToOrigin", "--set", "ground=maybe"});
    const ProgramResult input = run({"dialog", "QM_TX_moveComponentToOrigin", "--set", "none=1"});
    const ProgramResult tab = run({"dialog", "QM_TX_BOM", "--tab", "none"});

    EXPECT_EQ(flag.status, 2);
    EXPECT_EQ(flag.errors,
              "tarnix-workbench: --set ground=maybe: expected \"true\" or \"false\"\n");
    EXPECT_EQ(input.status, 2);
    EXPECT_EQ(input.errors,
              "tarnix-workbench: --set none=1: the dialog has no input \"none\"; it has "
              "occurenceInput, ground\n");
    EXPECT_EQ(tab.status, 2);
    EXPECT_NE(tab.errors.find("--tab none: no such tab; available: \"QEMA_tab_"), std::string::npos)
        << tab.errors;
}
