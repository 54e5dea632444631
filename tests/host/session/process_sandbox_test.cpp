#include "host/session/process_sandbox.h"

#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

namespace fs = std::filesystem;
using host::ProcessSandbox;

namespace {

class ProcessSandboxTest : public testing::Test {
protected:
    test_support::TemporaryFolder folder;
};

/// The variable that decides first about the folder for temporary files.
std::optional<host::environment::Text> temporaryFolderVariable() {
    return host::environment::variable(host::environment::temporaryFolderNames().front());
}

}  // namespace

TEST_F(ProcessSandboxTest, TheWorkingDirectoryIsPrivateAndEmpty) {
    const ProcessSandbox sandbox(folder.path());

    EXPECT_TRUE(fs::equivalent(fs::current_path(), folder.path() / "work"));
    EXPECT_TRUE(fs::is_empty(fs::current_path()));
}

TEST_F(ProcessSandboxTest, TemporaryFilesGoIntoThePrivateFolder) {
    const ProcessSandbox sandbox(folder.path());

    // Windows returns the folder with a backslash at its end, which is no name of a file there.
    const fs::path temporary = (fs::temp_directory_path() / "").parent_path();
    EXPECT_TRUE(fs::equivalent(temporary, folder.path() / "temp")) << temporary;
}

TEST_F(ProcessSandboxTest, WhatARunBeforeLeftInTheWorkingDirectoryGoes) {
    fs::create_directories(folder.path() / "work" / "sub");
    test_support::writeFile(folder.path() / "work" / "left", "text");

    const ProcessSandbox sandbox(folder.path());

    EXPECT_TRUE(fs::is_empty(fs::current_path()));
}

TEST_F(ProcessSandboxTest, TemporaryFilesOfARunBeforeStay) {
    fs::create_directories(folder.path() / "temp");
    test_support::writeFile(folder.path() / "temp" / "screen", "picture");

    const ProcessSandbox sandbox(folder.path());

    EXPECT_TRUE(fs::exists(folder.path() / "temp" / "screen"));
}

TEST_F(ProcessSandboxTest, AllIsAsItWasInTheEnd) {
    const fs::path before = fs::current_path();
    const auto variable = temporaryFolderVariable();

    { const ProcessSandbox sandbox(folder.path()); }

    EXPECT_EQ(fs::current_path(), before);
    EXPECT_EQ(temporaryFolderVariable(), variable);
    EXPECT_FALSE(fs::exists(folder.path() / "work"));
}

TEST_F(ProcessSandboxTest, KnowsWhereTheProcessStood) {
    const fs::path before = fs::current_path();

    const ProcessSandbox sandbox(folder.path());

    EXPECT_EQ(sandbox.startedIn(), before);
}
