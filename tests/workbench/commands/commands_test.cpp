#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>

using test_support::ProgramResult;

using CommandsCommand = test_support::Workbench;

TEST_F(CommandsCommand, ListsWorkspacesPanelsAndCommands) {
    const ProgramResult result = run({"commands"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    const std::size_t workspace =
        result.output.find("Workspace FusionSolidEnvironment \"Design\" (active)\n");
    const std::size_t panel =
        result.output.find("Panel QM_Tarnix_AlfaFusionSolidEnvironment \"QM Tarnix\"\n");
    const std::size_t command = result.output.find("QM_TX_moveComponentToOrigin");
    const std::size_t other = result.output.find("\nCommands without a button\n");
    const std::size_t local = result.output.find("QEMA_OpenLocalCmd_QAT");
    EXPECT_LT(workspace, panel);
    EXPECT_LT(panel, command);
    EXPECT_LT(command, other);
    EXPECT_LT(other, local);
    EXPECT_NE(local, std::string::npos);
}

TEST_F(CommandsCommand, WritesJsonIntoAFileInANewFolder) {
    const ProgramResult result =
        run({"commands", "--format", "json", "--output", path("new/commands.json")});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "");
    const auto view =
        nlohmann::json::parse(test_support::readFile(host::fromUtf8(path("new/commands.json"))));
    EXPECT_EQ(view["workspaces"][0]["id"], "FusionSolidEnvironment");
    EXPECT_EQ(view["workspaces"][0]["active"], true);
}

TEST_F(CommandsCommand, NamesWhatAFolderLacksToBeAnAddin) {
    const ProgramResult result = run({"commands", "--addin", path("nothing")});

    EXPECT_EQ(result.status, 3);
    EXPECT_NE(result.errors.find("nothing.manifest is missing"), std::string::npos)
        << result.errors;
}
