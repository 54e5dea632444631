#include "workbench/output/written_files.h"

#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

using test_support::readFile;
using test_support::writeFile;
using workbench::WrittenFiles;

namespace {

void writeWatched(WrittenFiles& written, const std::filesystem::path& file,
                  const std::string& content) {
    written.watch(file);
    writeFile(file, content);
}

}  // namespace

TEST(WrittenFiles, AFailureRestoresTheOldContentOfAFile) {
    const test_support::TemporaryFolder folder;
    writeFile(folder.path() / "a", "old\r\n");
    {
        WrittenFiles written;
        writeWatched(written, folder.path() / "a", "new");
    }

    EXPECT_EQ(readFile(folder.path() / "a"), "old\r\n");
}

TEST(WrittenFiles, AFailureRemovesANewFile) {
    const test_support::TemporaryFolder folder;
    {
        WrittenFiles written;
        writeWatched(written, folder.path() / "a", "new");
    }

    EXPECT_FALSE(std::filesystem::exists(folder.path() / "a"));
}

TEST(WrittenFiles, WhatIsKeptStaysAsItWasWritten) {
    const test_support::TemporaryFolder folder;
    writeFile(folder.path() / "a", "old");
    {
        WrittenFiles written;
        writeWatched(written, folder.path() / "a", "new");
        written.keep();
    }

    EXPECT_EQ(readFile(folder.path() / "a"), "new");
}
