#include "tests/fuzz/fuzzed_files.h"
#include "tests/fuzz/fuzzed_lists.h"
#include "tests/fuzz/fuzzed_session.h"
#include "tests/support/files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

/// What the fuzzers found worth keeping, and some that chance makes up, in every build.
namespace fuzz {
namespace {

using File = std::filesystem::path;

std::vector<File> corpus(const std::string& name) {
    std::vector<File> files;
    for (const auto& entry : std::filesystem::directory_iterator(File(TEST_CORPUS_FOLDER) / name)) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    EXPECT_FALSE(files.empty()) << name;
    return files;
}

std::vector<std::uint8_t> bytesOf(const File& file) {
    const std::string text = test_support::readFile(file);
    return {text.begin(), text.end()};
}

/// Bytes that depend on the number alone.
std::vector<std::uint8_t> madeUp(unsigned seed) {
    constexpr std::size_t kBytes = 240;
    std::mt19937 random(seed);
    std::vector<std::uint8_t> bytes(kBytes);
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<std::uint8_t>(random()); });
    return bytes;
}

/// The same with some bytes changed, left out or doubled.
std::vector<std::uint8_t> mutated(std::vector<std::uint8_t> bytes, unsigned seed) {
    std::mt19937 random(seed);
    for (int i = 0; i < 3 && !bytes.empty(); ++i) {
        const auto at = bytes.begin() + static_cast<std::ptrdiff_t>(random() % bytes.size());
        switch (random() % 3) {
            case 0:
                *at = static_cast<std::uint8_t>(random());
                break;
            case 1:
                bytes.erase(at, at + static_cast<std::ptrdiff_t>(
                                         random() % static_cast<unsigned>(bytes.end() - at)));
                break;
            default:
                bytes.insert(at, *at);
        }
    }
    return bytes;
}

void replayDialogs(host::CodeChanges reported) {
    FuzzedSession session(reported);
    for (const File& file : corpus("dialog")) {
        EXPECT_EQ(session.useDialog(bytesOf(file)), "") << file;
    }
}

TEST(DialogRuns, KeptOnesFindNothingWhereNoChangesByCodeAreTold) {
    replayDialogs(host::CodeChanges::None);
}

TEST(DialogRuns, KeptOnesFindNothingWhereThoseOfListsAreTold) {
    replayDialogs(host::CodeChanges::Lists);
}

TEST(DialogRuns, KeptOnesFindNothingWhereAllAreTold) { replayDialogs(host::CodeChanges::All); }

TEST(DialogRuns, MadeUpOnesFindNothing) {
    FuzzedSession session;
    for (unsigned seed = 1; seed <= 12; ++seed) {
        EXPECT_EQ(session.useDialog(madeUp(seed)), "") << "seed " << seed;
    }
}

TEST(SettingsRuns, KeptOnesFindNothing) {
    FuzzedSession session;
    for (const File& file : corpus("settings")) {
        EXPECT_EQ(session.useSettings(bytesOf(file)), "") << file;
    }
}

TEST(SettingsRuns, MutatedOnesFindNothing) {
    FuzzedSession session;
    unsigned seed = 0;
    for (const File& file : corpus("settings")) {
        EXPECT_EQ(session.useSettings(mutated(bytesOf(file), ++seed)), "") << file;
    }
}

using ReadFile = std::string (*)(Bytes);

void readMadeUp(ReadFile read, unsigned runs) {
    for (unsigned seed = 1; seed <= runs; ++seed) {
        std::vector<std::uint8_t> bytes = madeUp(seed);
        bytes.resize(4 + seed % 20);  // a few changes: with more, little of the file is left
        EXPECT_EQ(read(bytes), "") << "seed " << seed;
    }
}

void readKept(ReadFile read, const std::string& name) {
    for (const File& file : corpus(name)) {
        EXPECT_EQ(read(bytesOf(file)), "") << file;
    }
}

TEST(DesignFileRuns, FindNothing) {
    readKept(readDesignFile, "design_file");
    readMadeUp(readDesignFile, 300);
}

TEST(StepRuns, FindNothing) {
    readKept(readStep, "step");
    readMadeUp(readStep, 24);
}

TEST(IgesRuns, FindNothing) {
    readKept(readIges, "iges");
    readMadeUp(readIges, 24);
}

TEST(EditedListRuns, FindNothing) {
    readKept(readEditedLists, "edited_list");
    for (unsigned seed = 1; seed <= 300; ++seed) {
        std::vector<std::uint8_t> bytes = madeUp(seed);
        std::ranges::for_each(bytes, [](std::uint8_t& each) { each &= 0x7F; });  // UTF-8
        EXPECT_EQ(readEditedLists(bytes), "") << "seed " << seed;
    }
    for (const File& file : corpus("edited_list")) {
        for (unsigned seed = 1; seed <= 100; ++seed) {
            EXPECT_EQ(readEditedLists(mutated(bytesOf(file), seed)), "") << file << seed;
        }
    }
}

}  // namespace
}  // namespace fuzz
