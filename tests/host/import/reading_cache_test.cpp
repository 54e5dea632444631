#include "host/import/reading_cache.h"

#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <chrono>

namespace {

namespace fs = std::filesystem;
using host::CacheSize;
using Names = std::vector<std::string>;

class ReadingCache : public testing::Test {
protected:
    /// Makes an entry older than all that are made in the test.
    void age(const std::string& name, int hours) const {
        fs::last_write_time(folder.path() / name,
                            fs::file_time_type::clock::now() - std::chrono::hours(hours));
    }

    test_support::TemporaryFolder folder;
    host::ReadingCache cache{.folder = folder.path(), .limit = 1000};
};

TEST_F(ReadingCache, ReturnsWhatWasKept) {
    keepReading(cache, "ab", "one\ntwo");

    EXPECT_EQ(findReading(cache, "ab"), "one\ntwo");
    EXPECT_EQ(findReading(cache, "cd"), std::nullopt);
    EXPECT_EQ(sizeOf(cache), (CacheSize{.entries = 1, .bytes = 7}));
}

TEST_F(ReadingCache, OnlyTheUserMayLookIntoAFolderThatItMade) {
    cache.folder = folder.path() / "new" / "folder";

    keepReading(cache, "ab", "one");

    EXPECT_EQ(fs::status(cache.folder).permissions(), fs::perms::owner_all);
}

TEST_F(ReadingCache, TheEntriesThatWereNotUsedForTheLongestTimeGo) {
    for (const char* const key : {"a1", "a2", "a3", "a4"}) {
        keepReading(cache, key, std::string(240, 'x'));
    }
    age("a1.reading", 9);
    age("a2.reading", 8);
    age("a3.reading", 7);
    age("a4.reading", 6);
    EXPECT_TRUE(findReading(cache, "a1"));

    keepReading(cache, "a5", std::string(240, 'x'));

    EXPECT_EQ(folder.names(), (Names{"a1.reading", "a3.reading", "a4.reading", "a5.reading"}));
}

TEST_F(ReadingCache, WhatKilledProcessesLeftCountsAfterAnHour) {
    folder.write("aa.reading.new-1-1", std::string(900, 'x'));
    folder.write("bb.reading.new-2-1", std::string(900, 'x'));
    age("aa.reading.new-1-1", 2);

    keepReading(cache, "a1", std::string(240, 'x'));

    EXPECT_EQ(folder.names(), (Names{"a1.reading", "bb.reading.new-2-1"}));
}

TEST_F(ReadingCache, FilesOfOthersNeitherCountNorGo) {
    folder.write("photo.png", std::string(5000, 'x'));

    keepReading(cache, "a1", "one");

    EXPECT_EQ(sizeOf(cache), (CacheSize{.entries = 1, .bytes = 3}));
    EXPECT_EQ(clear(cache), (CacheSize{.entries = 1, .bytes = 3}));
    EXPECT_EQ(folder.names(), Names{"photo.png"});
}

TEST_F(ReadingCache, WhatWouldPushOutTooMuchIsNotKept) {
    keepReading(cache, "a1", std::string(251, 'x'));

    EXPECT_EQ(folder.count(), 0);
}

TEST_F(ReadingCache, WithoutAFolderNothingIsKept) {
    const host::ReadingCache none;

    keepReading(none, "a1", "one");

    EXPECT_EQ(findReading(none, "a1"), std::nullopt);
    EXPECT_EQ(sizeOf(none), CacheSize());
}

TEST_F(ReadingCache, AFolderThatCannotBeMadeIsAsIfThereWereNone) {
    cache.folder = fs::path(folder.write("file", "")) / "below";

    keepReading(cache, "a1", "one");

    EXPECT_EQ(findReading(cache, "a1"), std::nullopt);
    EXPECT_EQ(clear(cache), CacheSize());
}

}  // namespace
