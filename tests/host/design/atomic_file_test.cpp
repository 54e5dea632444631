#include "host/design/atomic_file.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <system_error>

namespace host {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

class AtomicFiles : public testing::Test {
protected:
    test_support::TemporaryFolder folder;
};

TEST_F(AtomicFiles, IsCreatedWithItsContent) {
    const std::string content = std::string("a\r\n\0b\n", 6);

    writeFileAtomically(folder.path() / "new", content);

    EXPECT_EQ(folder.read("new"), content);
    EXPECT_EQ(folder.names(), Names{"new"});
}

TEST_F(AtomicFiles, ReplacesTheOldContentAsAWhole) {
    folder.write("file", "a long old content");

    writeFileAtomically(folder.path() / "file", "new");

    EXPECT_EQ(folder.read("file"), "new");
    EXPECT_EQ(folder.names(), Names{"file"});
}

TEST_F(AtomicFiles, NameMayBeAnyText) {
    const fs::path path = folder.path() / fs::path(u8"P\u0159evodovka \u6f22.json");

    writeFileAtomically(path, "x");

    EXPECT_EQ(folder.read(path), "x");
}

TEST_F(AtomicFiles, MissingFolderIsAnError) {
    EXPECT_THROW(writeFileAtomically(folder.path() / "none" / "file", "x"), std::system_error);

    EXPECT_EQ(folder.names(), Names());
}

TEST_F(AtomicFiles, FolderOfTheSameNameIsKeptAndNothingIsLeftBesideIt) {
    fs::create_directory(folder.path() / "taken");

    EXPECT_THROW(writeFileAtomically(folder.path() / "taken", "x"), std::system_error);

    EXPECT_EQ(folder.names(), Names{"taken"});
    EXPECT_TRUE(fs::is_directory(folder.path() / "taken"));
}

TEST_F(AtomicFiles, NothingChangesUntilTheCommit) {
    folder.write("file", "old");

    AtomicFile staged(folder.path() / "file", "new");
    EXPECT_EQ(folder.read("file"), "old");
    staged.commit();

    EXPECT_EQ(folder.read("file"), "new");
    EXPECT_EQ(folder.names(), Names{"file"});
}

TEST_F(AtomicFiles, WithoutACommitNothingIsLeft) {
    folder.write("file", "old");

    { const AtomicFile staged(folder.path() / "file", "new"); }

    EXPECT_EQ(folder.read("file"), "old");
    EXPECT_EQ(folder.names(), Names{"file"});
}

TEST_F(AtomicFiles, WhatAKilledProcessLeftBesideIsRemoved) {
    // No system has a process of this number.
    folder.write("file.new-4294967294-0", "half");

    writeFileAtomically(folder.path() / "file", "new");

    EXPECT_EQ(folder.names(), Names{"file"});
}

TEST_F(AtomicFiles, WhatAnotherStillWritesStays) {
    AtomicFile theirs(folder.path() / "file", "theirs");

    writeFileAtomically(folder.path() / "file", "ours");
    theirs.commit();

    EXPECT_EQ(folder.read("file"), "theirs");
}

TEST_F(AtomicFiles, FilesWithSimilarNamesStay) {
    const Names similar = {"file.new-", "file.new-draft", "my file.new-1-0"};
    for (const std::string& each : similar) {
        folder.write(each, "mine");
    }

    writeFileAtomically(folder.path() / "file", "ours");

    EXPECT_EQ(folder.names(), (Names{"file", "file.new-", "file.new-draft", "my file.new-1-0"}));
}

TEST_F(AtomicFiles, LinkIsFollowed) {
    folder.write("real", "old");
    std::error_code error;
    fs::create_symlink("real", folder.path() / "link", error);
    if (error) GTEST_SKIP() << "no links here";

    writeFileAtomically(folder.path() / "link", "new");

    EXPECT_TRUE(fs::is_symlink(folder.path() / "link"));
    EXPECT_EQ(folder.read("real"), "new");
}

TEST_F(AtomicFiles, PermissionsOfAReplacedFileAreKept) {
    folder.write("file", "old");
    const fs::perms ownerOnly = fs::perms::owner_read | fs::perms::owner_write;
    fs::permissions(folder.path() / "file", ownerOnly);
    const fs::perms before = fs::status(folder.path() / "file").permissions();

    writeFileAtomically(folder.path() / "file", "new");

    EXPECT_EQ(fs::status(folder.path() / "file").permissions(), before);
}

}  // namespace
}  // namespace host
