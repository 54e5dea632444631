#include "tests/workbench/workbench_fixture.h"

#include "host/session/environment.h"

#include <gtest/gtest.h>

#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using test_support::ProgramResult;
using test_support::readFile;

class UnreadableFolder : public test_support::Workbench {
protected:
    void SetUp() override {
        Workbench::SetUp();
        fs::create_directories(locked());
        design("Bolt", "in/a");
        design("Nut", "in/locked/b");
    }

    void TearDown() override { fs::permissions(locked(), fs::perms::owner_all); }

    [[nodiscard]] fs::path locked() const { return folder.path() / "in" / "locked"; }

    [[nodiscard]] std::string why() const {
        return "failed: " + path("in/locked") +
               ": cannot be read (Permission denied); a folder that you may read is needed\n"
               "tarnix-workbench: 1 folder could not be read\n";
    }

    /// Lists the part numbers of a pattern or a folder.
    [[nodiscard]] ProgramResult list(const std::string& argument) const {
        const fs::path program = host::environment::programFolder() / "tarnix-workbench";
        const fs::path output = folder.path() / "output";
        const fs::path errors = folder.path() / "errors";
        std::vector<std::string> arguments = {program.string(), "parts",    argument, "--columns",
                                              "Part Number",    "--format", "tsv"};
        // The superuser may read everything, unless this right is taken away.
        if (::geteuid() == 0) {
            arguments.insert(arguments.begin(),
                             {"setpriv", "--bounding-set", "-dac_override,-dac_read_search"});
        }
        const int status = test_support::runRedirected("/usr/bin/env", arguments, output, errors);
        return {status, readFile(output), readFile(errors)};
    }
};

TEST_F(UnreadableFolder, IsReportedAndTheOthersAreListed) {
    fs::permissions(locked(), fs::perms::none);
    for (const char* const argument : {"in", "in/**/*.json"}) {
        const ProgramResult result = list(path(argument));

        EXPECT_EQ(result.status, 1) << argument;
        EXPECT_EQ(result.output, "Part Number\nBolt\n") << argument;
        EXPECT_EQ(result.errors, why()) << argument;
    }
}

TEST_F(UnreadableFolder, WhoseNamesAloneMayBeReadIsReportedToo) {
    fs::permissions(locked(), fs::perms::owner_read);
    const ProgramResult result = list(path("in"));

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "Part Number\nBolt\n");
    EXPECT_EQ(result.errors, why());
}

TEST_F(UnreadableFolder, ThatIsTheOnlyOneIsRefused) {
    fs::permissions(locked(), fs::perms::none);
    expectFailure(list(path("in/locked")), 1,
                  "tarnix-workbench: " + path("in/locked") +
                      ": cannot be read (Permission denied); a folder that you may read is "
                      "needed\n");
}

}  // namespace
