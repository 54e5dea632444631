#include "host/session/session_folder.h"

#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

#include "host/session/session_error.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>

namespace fs = std::filesystem;
using host::FolderLock;
using host::SessionFolder;
using namespace std::chrono_literals;

namespace {

class SessionFolders : public testing::Test {
protected:
    test_support::TemporaryFolder place;
};

}  // namespace

TEST_F(SessionFolders, FreshOnesDiffer) {
    const SessionFolder one = SessionFolder::makeFresh(place.path());
    const SessionFolder other = SessionFolder::makeFresh(place.path());

    EXPECT_NE(one.path(), other.path());
    EXPECT_TRUE(fs::is_directory(one.path()));
    EXPECT_TRUE(fs::is_empty(other.path()));
}

TEST_F(SessionFolders, AFreshOneGoesWithAllItHolds) {
    const SessionFolder folder = SessionFolder::makeFresh(place.path());
    fs::create_directories(folder.path() / "a" / "b");

    folder.discard({});

    EXPECT_FALSE(fs::exists(folder.path()));
}

TEST_F(SessionFolders, ASparedFileStays) {
    const SessionFolder folder = SessionFolder::makeFresh(place.path());
    test_support::writeFile(folder.path() / "module", "code");
    test_support::writeFile(folder.path() / "settings", "text");

    folder.discard(folder.path() / "module");

    EXPECT_TRUE(fs::exists(folder.path() / "module"));
    EXPECT_FALSE(fs::exists(folder.path() / "settings"));
}

TEST_F(SessionFolders, WhatAProcessLeftBehindIsRemoved) {
    const fs::path left = place.path() / "standin-123456789";
    fs::create_directories(left / "1");
    test_support::writeFile(left / "lock", "");

    SessionFolder::makeFresh(place.path());

    EXPECT_FALSE(fs::exists(left));
}

TEST_F(SessionFolders, WhatAProcessLeftBehindThatWasKilledBeforeItHadALockIsRemoved) {
    const fs::path left = place.path() / "standin-123456789";
    fs::create_directories(left);

    SessionFolder::makeFresh(place.path());

    EXPECT_FALSE(fs::exists(left));
}

TEST_F(SessionFolders, WhatAnotherUsesIsNotRemoved) {
    const fs::path used = place.path() / "standin-123456789";
    fs::create_directories(used / "1");
    const auto lock = FolderLock::take(used);

    SessionFolder::makeFresh(place.path());

    EXPECT_TRUE(fs::exists(used / "1"));
}

TEST_F(SessionFolders, OthersFoldersAreNotRemoved) {
    fs::create_directories(place.path() / "standin-of-another");
    fs::create_directories(place.path() / "other");
    test_support::writeFile(place.path() / "other" / "lock", "");

    SessionFolder::makeFresh(place.path());

    EXPECT_TRUE(fs::exists(place.path() / "standin-of-another"));
    EXPECT_TRUE(fs::exists(place.path() / "other" / "lock"));
}

TEST_F(SessionFolders, AKeptOneStaysWhenItIsDiscarded) {
    const SessionFolder folder = SessionFolder::keep(place.path() / "home", 0ms);
    test_support::writeFile(folder.path() / "settings", "text");

    folder.discard({});

    EXPECT_TRUE(fs::exists(folder.path() / "settings"));
}

TEST_F(SessionFolders, AKeptOneIsLockedWhileItIsUsed) {
    const SessionFolder folder = SessionFolder::keep(place.path() / "home", 0ms);

    EXPECT_THROW(SessionFolder::keep(place.path() / "home", 50ms), host::SessionError);
}

TEST_F(SessionFolders, AKeptOneIsFreeAgainAfterUse) {
    { const SessionFolder folder = SessionFolder::keep(place.path() / "home", 0ms); }

    EXPECT_NO_THROW(SessionFolder::keep(place.path() / "home", 0ms));
}

TEST_F(SessionFolders, NothingIsLeftWhenTheLastFreshOneHasGone) {
    const SessionFolder one = SessionFolder::makeFresh(place.path());
    const SessionFolder other = SessionFolder::makeFresh(place.path());

    one.discard({});
    EXPECT_FALSE(fs::is_empty(place.path()));
    other.discard({});

    EXPECT_TRUE(fs::is_empty(place.path()));
}
