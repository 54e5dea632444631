#include "host/import/remembered_reader.h"

#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <chrono>

namespace {

using host::ReaderFailure;
using host::RememberedReader;

/// What a reader was asked, and how often one was started.
struct Log {
    int starts = 0;
    std::vector<std::string> requests;
};

/// A reader that sends a design, and answers each request with itself in brackets.
class EchoingReader final : public host::ReaderConnection {
public:
    explicit EchoingReader(Log& log) : log_(log) {}

    void startClock() override {}

    void send(const std::string& line) override {
        log_.requests.push_back(line);
        lines_.push_back(line == "broken"    ? R"({"error":"no surface"})"
                         : line == "hurried" ? R"({"again":true,"problem":"takes too long"})"
                                             : "[" + line + "]");
    }

    std::string receive() override {
        std::string line = lines_.front();
        lines_.pop_front();
        return line;
    }

private:
    Log& log_;
    std::deque<std::string> lines_ = {R"({"progress":{}})", R"({"warning":{"text":"odd"}})",
                                      R"({"design":{}})"};
};

class RememberedReaderTest : public testing::Test {
protected:
    std::unique_ptr<RememberedReader> open() {
        auto reader = std::make_unique<RememberedReader>(cache, "0a", files, [this] {
            ++log.starts;
            return std::make_unique<EchoingReader>(log);
        });
        opening.clear();
        do {
            opening.push_back(reader->receive());
        } while (!opening.back().starts_with(R"({"design")"));
        return reader;
    }

    static std::string ask(RememberedReader& reader, const std::string& request) {
        reader.startClock();
        reader.send(request);
        return reader.receive();
    }

    /// A first run that asks for two things, and keeps them.
    void runOnce() {
        const auto reader = open();
        reader->allowKeeping("0a", files);
        ask(*reader, "measure 0");
        ask(*reader, "box 0");
        log = {};
    }

    test_support::TemporaryFolder folder;
    host::ReadingCache cache{.folder = folder.path() / "cache"};
    std::vector<std::filesystem::path> files = {folder.write("a.step", "ISO-10303-21;")};
    Log log;
    std::vector<std::string> opening;
};

using Lines = std::vector<std::string>;

TEST_F(RememberedReaderTest, TheSecondRunStartsNoReader) {
    runOnce();

    const auto reader = open();

    EXPECT_EQ(opening, (Lines{R"({"warning":{"text":"odd"}})", R"({"design":{}})"}));
    EXPECT_EQ(ask(*reader, "box 0"), "[box 0]");
    EXPECT_EQ(ask(*reader, "measure 0"), "[measure 0]");
    EXPECT_EQ(ask(*reader, "measure 0"), "[measure 0]");
    EXPECT_EQ(log.starts, 0);
}

TEST_F(RememberedReaderTest, ANewRequestStartsOneAndIsKeptToo) {
    runOnce();
    {
        const auto reader = open();
        reader->allowKeeping("0a", files);
        EXPECT_EQ(ask(*reader, "measure 1"), "[measure 1]");
        EXPECT_EQ(ask(*reader, "measure 2"), "[measure 2]");
        EXPECT_EQ(log.starts, 1);
    }

    const auto reader = open();

    EXPECT_EQ(ask(*reader, "measure 2"), "[measure 2]");
    EXPECT_EQ(ask(*reader, "measure 0"), "[measure 0]");
    EXPECT_EQ(log.starts, 1);
    EXPECT_EQ(log.requests, (Lines{"measure 1", "measure 2"}));
}

TEST_F(RememberedReaderTest, WithoutPermissionNothingIsKept) {
    open();
    open();

    EXPECT_EQ(log.starts, 2);
    EXPECT_FALSE(folder.has("cache"));
}

TEST_F(RememberedReaderTest, ErrorsAreAskedForAgain) {
    {
        const auto reader = open();
        reader->allowKeeping("0a", files);
        EXPECT_EQ(ask(*reader, "broken"), R"({"error":"no surface"})");
        EXPECT_EQ(ask(*reader, "box 0"), "[box 0]");
    }
    log = {};

    const auto reader = open();

    EXPECT_EQ(ask(*reader, "broken"), R"({"error":"no surface"})");
    EXPECT_EQ(log.requests, Lines{"broken"});
}

TEST_F(RememberedReaderTest, WhatALimitOfTimeMadeIsAskedForAgain) {
    {
        const auto reader = open();
        reader->allowKeeping("0a", files);
        ask(*reader, "hurried");
        ask(*reader, "box 0");
    }
    log = {};

    const auto reader = open();

    EXPECT_EQ(ask(*reader, "box 0"), "[box 0]");
    EXPECT_EQ(log.starts, 0);
    EXPECT_EQ(ask(*reader, "hurried"), R"({"again":true,"problem":"takes too long"})");
    EXPECT_EQ(log.requests, Lines{"hurried"});
}

TEST_F(RememberedReaderTest, WhereTheEntryIsTooLargeTheShortResponsesAreKept) {
    cache.limit = 4 * 400;
    const std::string mesh = "mesh 0 " + std::string(300, '9');
    {
        const auto reader = open();
        reader->allowKeeping("0a", files);
        ask(*reader, mesh);
        ask(*reader, "box 0");
    }
    EXPECT_LE(folder.read("cache/0a.reading").size(), 400U);
    log = {};

    const auto reader = open();

    EXPECT_EQ(ask(*reader, "box 0"), "[box 0]");
    EXPECT_EQ(log.starts, 0);
    EXPECT_EQ(ask(*reader, mesh), "[" + mesh + "]");
    EXPECT_EQ(log.starts, 1);
}

TEST_F(RememberedReaderTest, AnEntryOfTheLargestSizeIsKeptWhole) {
    runOnce();
    const std::size_t whole = folder.read("cache/0a.reading").size();

    std::filesystem::remove(folder.path() / "cache/0a.reading");
    cache.limit = 4 * whole;
    runOnce();
    EXPECT_EQ(folder.read("cache/0a.reading").size(), whole);

    std::filesystem::remove(folder.path() / "cache/0a.reading");
    cache.limit = 4 * (whole - 1);
    runOnce();
    // Without "measure 0" and the response to it, a line each, which are longer than those of "box
    // 0".
    EXPECT_EQ(folder.read("cache/0a.reading").size(), whole - 10 - 12);
}

TEST_F(RememberedReaderTest, ADamagedEntryIsReplaced) {
    runOnce();
    std::string entry = folder.read("cache/0a.reading");
    entry.replace(entry.find("[box 0]"), 7, "[box 1]");
    folder.write("cache/0a.reading", entry);

    open()->allowKeeping("0a", files);

    EXPECT_EQ(log.starts, 1);
    open();
    EXPECT_EQ(log.starts, 1);
}

TEST_F(RememberedReaderTest, AnEntryThatIsCutOffOrForeignIsIgnored) {
    runOnce();
    const std::string entry = folder.read("cache/0a.reading");
    folder.write("cache/0a.reading", entry.substr(0, entry.size() / 2));
    open();
    EXPECT_EQ(log.starts, 1);

    folder.write("cache/0a.reading", "");
    open();
    folder.write("cache/0a.reading", "something else\n");
    open();

    EXPECT_EQ(log.starts, 3);
}

TEST_F(RememberedReaderTest, AFileThatChangesInBetweenIsNotReadLate) {
    runOnce();
    const auto reader = open();
    folder.write("a.step", "ISO-10303-21; longer");

    EXPECT_THROW(ask(*reader, "measure 5"), ReaderFailure);
    EXPECT_THROW(ask(*reader, "measure 6"), ReaderFailure);
    EXPECT_EQ(ask(*reader, "measure 0"), "[measure 0]");
    EXPECT_EQ(log.starts, 0);
}

TEST_F(RememberedReaderTest, WhatWasReadOfAFileThatChangedIsNotKept) {
    {
        const auto reader = open();
        reader->allowKeeping("0a", files);
        folder.write("a.step", "ISO-10303-21; longer");
    }

    EXPECT_FALSE(folder.has("cache"));
}

TEST_F(RememberedReaderTest, AnotherFileThatWasWrittenMeanwhileIsNotKeptEither) {
    files.emplace_back(folder.write("b.step", "ISO-10303-21;"));
    const auto keepBoth = [&](int age) {
        std::filesystem::last_write_time(
            files[1], std::filesystem::file_time_type::clock::now() - std::chrono::seconds(age));
        const std::vector<std::filesystem::path> both = files;
        files.resize(1);
        open()->allowKeeping("0b", both);
        files = both;
    };

    keepBoth(-5);
    EXPECT_FALSE(folder.has("cache"));
    keepBoth(5);
    EXPECT_TRUE(folder.has("cache/0b.reading"));
}

}  // namespace
