#include "workbench/output/written_files.h"

#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

using test_support::readFile;
using test_support::writeFile;
using workbench::WrittenFiles;

TEST(WrittenFiles, AFailureGivesAFileItsOldContent) {
    const test_support::TemporaryFolder folder;
    writeFile(folder.path() / "a", "old\r\n");
    {
        WrittenFiles written;
        written.watch(folder.path() / "a");
        writeFile(folder.path() / "a", "new");
    }

    EXPECT_EQ(readFile(folder.path() / "a"), "old\r\n");
}

TEST(WrittenFiles, AFailureRemovesANewFile) {
    const test_support::TemporaryFolder folder;
    {
        WrittenFiles written;
        written.watch(folder.path() / "a");
        writeFile(folder.path() / "a", "new");
    }

    EXPECT_FALSE(std::filesystem::exists(folder.path() / "a"));
}

TEST(WrittenFiles, WhatIsKeptStaysAsItWasWritten) {
    const test_support::TemporaryFolder folder;
    writeFile(folder.path() / "a", "old");
    {
        WrittenFiles written;
        written.watch(folder.path() / "a");
        writeFile(folder.path() / "a", "new");
        written.keep();
    }

    EXPECT_EQ(readFile(folder.path() / "a"), "new");
}
