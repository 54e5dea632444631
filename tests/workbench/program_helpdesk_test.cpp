#include "tests/support/files.h"
#include "tests/support/run_program.h"
#include "tests/support/temporary_folder.h"

#include "host/session/environment.h"
#include "host/session/utf8_path.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace fs = std::filesystem;
namespace environment = host::environment;
using test_support::ProgramResult;
using test_support::readFile;
using test_support::writeFile;

namespace {

/// The variables of a person's surroundings that these tests give values of their own.
const std::vector<environment::Text> kVariables = {
    fs::path("XDG_DATA_HOME").native(), fs::path("LOCALAPPDATA").native(),
    fs::path("TMPDIR").native(), fs::path("TMP").native(), fs::path("DISPLAY").native()};

/// The built program, with a user of its own, whose folder for temporary files is empty, and who
/// stands in a folder with a file.
class HelpdeskOfTheWorkbench : public testing::Test {
protected:
    void SetUp() override {
        fs::create_directories(mine());
        fs::create_directories(stand());
        writeFile(stand() / "kept", "x");
        for (const environment::Text& name : kVariables) {
            before.push_back(environment::variable(name));
        }
        set(0, folder.path() / "data");
        set(1, folder.path() / "data");
        set(2, mine());
        set(3, mine());
        environment::setVariable(kVariables[4], std::nullopt);
        startedIn = fs::current_path();
        fs::current_path(stand());
    }

    void TearDown() override {
        fs::current_path(startedIn);
        for (std::size_t i = 0; i < before.size(); ++i) {
            environment::setVariable(kVariables[i], before[i]);
        }
    }

    static void set(std::size_t variable, const fs::path& value) {
        environment::setVariable(kVariables[variable], value.native());
    }

    /// The person's own folder for temporary files.
    [[nodiscard]] fs::path mine() const { return folder.path() / "mine"; }

    /// Where the person stands.
    [[nodiscard]] fs::path stand() const { return folder.path() / "stand"; }

    /// The support folder of the workbench.
    [[nodiscard]] fs::path support() const {
        return folder.path() / "data" / "tarnix-workbench" / "temp" / "Helpdesk";
    }

    static ProgramResult helpdesk(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "helpdesk");
        return test_support::runProgram("tarnix-workbench", arguments);
    }

    test_support::TemporaryFolder folder;
    std::vector<std::optional<environment::Text>> before;
    fs::path startedIn;
};

std::string folderLine(const fs::path& folder) {
    return "Support folder: " + host::toUtf8(fs::path(folder).make_preferred());
}

}  // namespace

TEST_F(HelpdeskOfTheWorkbench, PressesTheButtonsInOrderInOneProcess) {
    const ProgramResult result = helpdesk({"open", "system-info", "clear"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_FALSE(fs::exists(support()));
    EXPECT_NE(result.output.find("The add-in asked to open "), std::string::npos) << result.output;
    EXPECT_NE(result.output.find("Helpdesk\\; use --open to let it\n"), std::string::npos);
    EXPECT_NE(result.output.find(folderLine(support()) + ", not there\n"), std::string::npos)
        << result.output;
    EXPECT_EQ(result.errors, "");
}

TEST_F(HelpdeskOfTheWorkbench, ListsWhatTheSupportFolderHolds) {
    const ProgramResult result = helpdesk({"system-info"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, folderLine(support()) + "\n  SystemInfo.txt\n");
    EXPECT_EQ(readFile(support() / "SystemInfo.txt").rfind("Hardware information: \r\n", 0), 0U);
}

TEST_F(HelpdeskOfTheWorkbench, KeepsTheSupportFolderForTheNextTimeAndDoesNotRememberIt) {
    helpdesk({"open", "system-info"});
    const ProgramResult result = helpdesk({"clear"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(fs::exists(support() / "SystemInfo.txt"));
}

TEST_F(HelpdeskOfTheWorkbench, ClearsNothingOfThePersonsWhenNoFolderIsRemembered) {
    fs::create_directory(mine() / "Helpdesk");
    writeFile(mine() / "Helpdesk" / "kept", "x");

    const ProgramResult result = helpdesk({"clear"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(fs::exists(stand() / "kept"));
    EXPECT_TRUE(fs::exists(mine() / "Helpdesk" / "kept"));
    EXPECT_TRUE(fs::exists(folder.path() / "data" / "tarnix-workbench" / "Tarnix" / "Tarnix.dll"));
}

TEST_F(HelpdeskOfTheWorkbench, UsesThePersonsSupportFolderWhenAskedTo) {
    const ProgramResult result = helpdesk({"system-info", "--here"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(fs::exists(mine() / "Helpdesk" / "SystemInfo.txt"));
    EXPECT_FALSE(fs::exists(support()));
}

TEST_F(HelpdeskOfTheWorkbench, TellsWhatTheAddinSays) {
    const ProgramResult result = helpdesk({"zip"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "the add-in says: Target directory does not exist.\n");
}

TEST_F(HelpdeskOfTheWorkbench, LeavesAnArchiveThatIsComplete) {
    const ProgramResult result = helpdesk({"system-info", "zip"});

    EXPECT_EQ(result.status, 0) << result.errors;
    const std::string archive = readFile(support() / "helpdesk.zip");
    ASSERT_GE(archive.size(), 22U);
    // The end record is the last thing in it.
    EXPECT_EQ(archive.substr(archive.size() - 22, 4), std::string("PK\5\6", 4));
}

TEST_F(HelpdeskOfTheWorkbench, AsksToOpenTheGuideAndTheAddress) {
    const ProgramResult result = helpdesk({"guide", "go"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_NE(result.output.find("_UsersGuide.pdf; use --open to let it\n"), std::string::npos);
    EXPECT_NE(result.output.find("The add-in asked to open http://"), std::string::npos);
}

TEST_F(HelpdeskOfTheWorkbench, RefusesAnUnknownAction) {
    const ProgramResult result = helpdesk({"delete"});

    EXPECT_EQ(result.status, 2);
    EXPECT_NE(result.errors.find("capture-screen"), std::string::npos) << result.errors;
}

TEST_F(HelpdeskOfTheWorkbench, WantsAnAction) { EXPECT_EQ(helpdesk({}).status, 2); }
