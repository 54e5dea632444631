#include "workbench/output/staged_files.h"

#include "workbench/cli/exit_code.h"

#include "host/base/utf8_path.h"
#include "host/design/design_file.h"
#include "host/design/outline.h"
#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>

namespace fs = std::filesystem;
using test_support::readFile;
using test_support::writeFile;
using workbench::fingerprintOf;
using workbench::StagedFiles;

namespace {

class Staged : public testing::Test {
protected:
    [[nodiscard]] fs::path file(const std::string& name) const { return folder.path() / name; }

    test_support::TemporaryFolder folder;
};

}  // namespace

TEST_F(Staged, FilesAppearTogetherWithTheCommit) {
    StagedFiles files;
    files.add(file("a"), "new a");
    files.add(file("sub/deep/b"), "new b");
    EXPECT_FALSE(fs::exists(file("a")));
    EXPECT_FALSE(fs::exists(file("sub/deep/b")));

    files.commit();

    EXPECT_EQ(readFile(file("a")), "new a");
    EXPECT_EQ(readFile(file("sub/deep/b")), "new b");
}

TEST_F(Staged, WithoutTheCommitAllIsAsItWas) {
    writeFile(file("a"), "old");
    {
        StagedFiles files;
        files.add(file("a"), "new");
        files.add(file("sub/deep/b"), "new");
    }

    EXPECT_EQ(readFile(file("a")), "old");
    EXPECT_FALSE(fs::exists(file("sub")));
}

TEST_F(Staged, ADesignFileThatAnotherProgramChangedIsNotReplaced) {
    const fs::path path = file("a.design.json");
    writeFile(path, "as it was read");
    const workbench::Fingerprint before = fingerprintOf(path);
    StagedFiles files;
    files.addDesign(path, host::parseOutline("Frame"), before);
    files.add(file("list.csv"), "list");

    writeFile(path, "saved meanwhile");
    try {
        files.commit();
        FAIL() << "replaced what another program saved";
    } catch (const workbench::Failure& failure) {
        EXPECT_EQ(failure.code(), workbench::ExitCode::OutputFailed);
        EXPECT_EQ(std::string(failure.what()),
                  "cannot write " + host::toUtf8(path) +
                      ": another program changed it after it was read; nothing was saved, run "
                      "again");
    }

    EXPECT_EQ(readFile(path), "saved meanwhile");
    EXPECT_FALSE(fs::exists(file("list.csv")));
}

TEST_F(Staged, AChangedDesignFileIsSeenBeforeTheCommit) {
    const fs::path path = file("a.design.json");
    writeFile(path, "as it was read");
    const workbench::Fingerprint before = fingerprintOf(path);
    StagedFiles changed;
    changed.addDesign(path, host::parseOutline("Frame"), before);
    writeFile(path, "saved meanwhile");

    EXPECT_THROW(changed.check(), workbench::Failure);

    // Then the folder is not closed to anyone.
    StagedFiles unchanged;
    unchanged.addDesign(file("b.design.json"), host::parseOutline("Frame"), std::nullopt);
    unchanged.check();
    EXPECT_FALSE(fs::exists(file("b.design.json")));
    unchanged.commit();
    EXPECT_TRUE(fs::exists(file("b.design.json")));
}

TEST_F(Staged, ADesignFileGetsItsFolder) {
    const fs::path path = file("sub/deep/a.design.json");
    {
        StagedFiles files;
        files.addDesign(path, host::parseOutline("Frame"), std::nullopt);
    }
    EXPECT_FALSE(fs::exists(file("sub")));

    StagedFiles files;
    files.addDesign(path, host::parseOutline("Frame"), std::nullopt);
    files.commit();

    EXPECT_TRUE(fs::exists(path));
}

TEST_F(Staged, ADesignFileThatAppearedMeanwhileIsNotReplaced) {
    const fs::path path = file("a.design.json");
    const workbench::Fingerprint before = fingerprintOf(path);
    StagedFiles files;
    files.addDesign(path, host::parseOutline("Frame"), before);

    writeFile(path, "another's");

    EXPECT_THROW(files.commit(), workbench::Failure);
    EXPECT_EQ(readFile(path), "another's");
}

TEST_F(Staged, AFileInThePlaceOfAFolderIsAnError) {
    writeFile(file("out"), "mine");
    StagedFiles files;

    EXPECT_THROW(files.add(file("out") / "list.csv", "list"), workbench::Failure);

    EXPECT_EQ(readFile(file("out")), "mine");
}
