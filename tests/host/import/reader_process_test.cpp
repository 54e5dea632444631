#include "host/import/reader_process.h"

#include "tests/host/import/stub_reader_program.h"
#include "tests/support/comma_locale.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using host::ReaderFailure;
using host::ReaderProcess;

constexpr host::ReadingLimits kEnough = {.seconds = 30, .megabytes = 1000};

/// Why there is no answer; empty when there is one.
std::string failureOf(ReaderProcess& process) {
    try {
        process.receive();
    } catch (const ReaderFailure& failure) {
        return failure.what();
    }
    return {};
}

/// A reader that does one thing; see stub_reader.cpp.
ReaderProcess stub(const std::vector<std::string>& task,
                   const host::ReadingLimits& limits = kEnough) {
    return {test_support::stubReader(), task, limits};
}

std::string failureOfStub(const std::vector<std::string>& task,
                          const host::ReadingLimits& limits = kEnough) {
    ReaderProcess process = stub(task, limits);
    return failureOf(process);
}

TEST(ReaderProcess, LinesGoBothWays) {
    ReaderProcess process = stub({"echo"});

    process.send("one");
    process.send("two");

    EXPECT_EQ(process.receive(), "one");
    EXPECT_EQ(process.receive(), "two");
}

TEST(ReaderProcess, ALineReceivedInPiecesIsOneLine) {
    ReaderProcess process = stub({"in-pieces"});

    EXPECT_EQ(process.receive(), "one");
    EXPECT_EQ(process.receive(), "two");
}

TEST(ReaderProcess, LongLinesAreWhole) {
    const std::string line(1'000'000, 'x');
    ReaderProcess process = stub({"echo"});

    // Its pipes hold less than this: it can answer only while it is listened to.
    for (int i = 0; i < 3; ++i) {
        process.send(line);
        EXPECT_EQ(process.receive(), line);
    }
}

TEST(ReaderProcess, ArgumentsArriveAsTheyAre) {
    for (const char* const text :
         {"a b", "", R"(back\slash)", R"(end\)", R"("quoted")", R"(\"both\")", "*", "%PATH%"}) {
        EXPECT_EQ(stub({"say", text}).receive(), text);
    }
}

TEST(ReaderProcess, ACrashIsReported) {
    EXPECT_EQ(failureOfStub({"crash"}), "the reader crashed (Segmentation fault)");
}

TEST(ReaderProcess, AnEndWithoutAResponseIsReported) {
    EXPECT_EQ(failureOfStub({"end", "0"}), "the reader ended without an answer");
    EXPECT_EQ(failureOfStub({"end", "1"}), "the reader ended without an answer");
}

TEST(ReaderProcess, TheLastLineBeforeTheEndIsReceived) {
    ReaderProcess process = stub({"say", "last"});

    EXPECT_EQ(process.receive(), "last");
    EXPECT_EQ(failureOf(process), "the reader ended without an answer");
}

TEST(ReaderProcess, AProcessThatTakesTooLongIsKilled) {
    EXPECT_EQ(failureOfStub({"hang"}, {.seconds = 0.2, .megabytes = 1000}),
              "the reader took longer than 0.2 seconds");
}

TEST(ReaderProcess, TheTimeLimitIsReportedWithAPointInEveryLocale) {
    const test_support::CommaLocale locale;

    ASSERT_TRUE(test_support::CommaLocale::isSystems());
    EXPECT_EQ(failureOfStub({"hang"}, {.seconds = 0.25, .megabytes = 1000}),
              "the reader took longer than 0.25 seconds");
}

TEST(ReaderProcess, WholeSecondsAreReportedWithoutAPoint) {
    EXPECT_EQ(failureOfStub({"hang"}, {.seconds = 1, .megabytes = 1000}),
              "the reader took longer than 1 seconds");
}

TEST(ReaderProcess, TheClockStartsAnew) {
    ReaderProcess process = stub({"echo"}, {.seconds = 0.2, .megabytes = 1000});
    EXPECT_EQ(failureOf(process), "the reader took longer than 0.2 seconds");

    ReaderProcess other = stub({"echo"}, {.seconds = 30, .megabytes = 1000});
    other.startClock();
    other.send("still there");
    EXPECT_EQ(other.receive(), "still there");
}

TEST(ReaderProcess, AProcessWithEndlessOutputIsKilled) {
    EXPECT_EQ(failureOfStub({"rubbish"}, {.seconds = 0.2, .megabytes = 1000}),
              "the reader took longer than 0.2 seconds");
}

TEST(ReaderProcess, AProcessThatUsesTooMuchMemoryIsKilled) {
    EXPECT_EQ(failureOfStub({"grow"}, {.seconds = 30, .megabytes = 60}),
              "the reader needed more than 60 megabytes of memory");
}

TEST(ReaderProcess, AFailureIsPermanent) {
    ReaderProcess process = stub({"crash"});
    failureOf(process);

    process.send("again");

    EXPECT_EQ(failureOf(process), "the reader crashed (Segmentation fault)");
}

TEST(ReaderProcess, AProgramThatIsMissingIsNamed) {
    const std::filesystem::path missing = std::filesystem::path("nowhere") / "reader";
    try {
        const ReaderProcess process(missing, {}, kEnough);
        FAIL() << "it was started";
    } catch (const ReaderFailure& failure) {
        const std::string text = failure.what();
        EXPECT_EQ(text.find("the reader " + missing.string() + " cannot be started ("), 0U) << text;
    }
}

}  // namespace
