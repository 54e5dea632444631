#pragma once

#include "tests/support/files.h"
#include "tests/support/run_program.h"
#include "tests/support/temporary_folder.h"

#include "host/session/environment.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// The built program, with a user of its own, whose folder for temporary files is empty, and who
/// stands in a folder with a file. There is no display.
class HelpdeskOfTheWorkbench : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Gives a variable of the person's surroundings a value until the end of the test.
    void set(const std::string& name, const std::optional<std::filesystem::path>& value);

    /// The person's own folder for temporary files.
    [[nodiscard]] std::filesystem::path mine() const { return folder.path() / "mine"; }

    /// Where the person stands.
    [[nodiscard]] std::filesystem::path stand() const { return folder.path() / "stand"; }

    /// The support folder of the workbench.
    [[nodiscard]] std::filesystem::path support() const;

    /// Presses buttons.
    static test_support::ProgramResult helpdesk(std::vector<std::string> arguments);

    test_support::TemporaryFolder folder;

private:
    std::vector<std::pair<host::environment::Text, std::optional<host::environment::Text>>> before_;
    std::filesystem::path startedIn_;
};
