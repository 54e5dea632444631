#include "tests/fuzz/fuzzed_protocol.h"
#include "tests/support/files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <vector>

/// Actions of pages that were found worth keeping, and what chance makes of them, in every build.
namespace fuzz {
namespace {

std::vector<std::filesystem::path> corpus() {
    std::vector<std::filesystem::path> files;
    for (const auto& each : std::filesystem::directory_iterator(TEST_CORPUS_FOLDER "/protocol")) {
        files.push_back(each.path());
    }
    std::ranges::sort(files);
    EXPECT_FALSE(files.empty());
    return files;
}

std::vector<std::uint8_t> bytesOf(const std::filesystem::path& file) {
    const std::string text = test_support::readFile(file);
    return {text.begin(), text.end()};
}

/// The same with a byte in forty replaced by one that JSON is made of.
std::vector<std::uint8_t> mutated(std::vector<std::uint8_t> bytes, unsigned seed) {
    constexpr std::string_view kSigns = "0123456789-.eE\"\\[]{}:,truefalsnu \x01\xC3\xFF";
    constexpr unsigned kOneIn = 40;
    std::mt19937 random(seed);
    for (std::uint8_t& each : bytes) {
        if (each != '\n' && random() % kOneIn == 0) {
            each = static_cast<std::uint8_t>(kSigns[random() % kSigns.size()]);
        }
    }
    return bytes;
}

TEST(ProtocolRuns, KeptOnesFindNothing) {
    FuzzedProtocol protocol;
    for (const std::filesystem::path& file : corpus()) {
        EXPECT_EQ(protocol.act(bytesOf(file)), "") << file;
    }
}

TEST(ProtocolRuns, MutatedOnesFindNothing) {
    FuzzedProtocol protocol;
    constexpr unsigned kRuns = 40;
    for (const std::filesystem::path& file : corpus()) {
        for (unsigned seed = 1; seed <= kRuns; ++seed) {
            EXPECT_EQ(protocol.act(mutated(bytesOf(file), seed)), "") << file << " " << seed;
        }
    }
}

}  // namespace
}  // namespace fuzz
