#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>

#include <string>

using test_support::ProgramResult;

class CacheCommand : public test_support::Workbench {
protected:
    void SetUp() override {
        Workbench::SetUp();
        variables.setUserCache(folder.path() / "kept");
    }

    /// A file in the folder of the cache.
    [[nodiscard]] std::filesystem::path kept(const std::string& name) const {
        return folder.path() / "kept" / "tarnix-workbench" / "readings" / name;
    }

    void keep(const std::string& name, const std::string& content) const {
        std::filesystem::create_directories(kept(name).parent_path());
        test_support::writeFile(kept(name), content);
    }
};

TEST_F(CacheCommand, NothingIsKeptAtFirst) {
    const ProgramResult result = run({"cache"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, "Folder  " + host::toUtf8(kept("").parent_path()) +
                                 "\n"
                                 "Holds   0 files, 0 kB\n"
                                 "Limit   256 MB, of one file 64 MB\n");
}

TEST_F(CacheCommand, ClearingRemovesWhatItKeepsAndNothingElse) {
    keep("0a.reading", std::string(1500, 'x'));
    keep("0b.reading.new-7-1", "left by a process that was killed");
    keep("notes.txt", "mine");

    const ProgramResult result = run({"cache", "--clear"});

    EXPECT_EQ(result.output, "Removed 2 files, 2 kB\n");
    EXPECT_FALSE(std::filesystem::exists(kept("0a.reading")));
    EXPECT_FALSE(std::filesystem::exists(kept("0b.reading.new-7-1")));
    EXPECT_TRUE(std::filesystem::exists(kept("notes.txt")));
}
