#pragma once

#include "tests/support/files.h"
#include "tests/support/run_program.h"
#include "tests/support/temporary_folder.h"
#include "tests/workbench/environment_variables.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

/// The built program and its helpdesk, with a user of its own whose folder for temporary files is
/// empty, and whose working directory holds a file. There is no display.
class Helpdesk : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    /// The user's own folder for temporary files.
    [[nodiscard]] std::filesystem::path userTemp() const { return folder.path() / "temp"; }

    [[nodiscard]] std::filesystem::path workingDirectory() const { return folder.path() / "work"; }

    /// The support folder of the workbench.
    [[nodiscard]] std::filesystem::path support() const;

    /// Presses buttons.
    static test_support::ProgramResult helpdesk(std::vector<std::string> arguments);

    test_support::TemporaryFolder folder;
    test_support::EnvironmentVariables variables;

private:
    std::filesystem::path startedIn_;
};
