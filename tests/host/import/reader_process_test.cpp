#include "host/import/reader_process.h"

#include "tests/support/comma_locale.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <iterator>

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

std::string failureOf(const std::string& script, const host::ReadingLimits& limits = kEnough) {
    ReaderProcess process("/bin/sh", {"-c", script}, limits);
    return failureOf(process);
}

std::ptrdiff_t openFiles() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

TEST(ReaderProcess, LinesGoBothWays) {
    ReaderProcess process("/bin/cat", {}, kEnough);

    process.send("one");
    process.send("two");

    EXPECT_EQ(process.receive(), "one");
    EXPECT_EQ(process.receive(), "two");
}

TEST(ReaderProcess, ALineReceivedInPiecesIsOneLine) {
    ReaderProcess process("/bin/sh", {"-c", "printf on; sleep 0.1; printf 'e\\ntwo\\n'"}, kEnough);

    EXPECT_EQ(process.receive(), "one");
    EXPECT_EQ(process.receive(), "two");
}

TEST(ReaderProcess, ACrashIsReported) {
    EXPECT_EQ(failureOf("kill -SEGV $$"), "the reader crashed (Segmentation fault)");
}

TEST(ReaderProcess, AnEndWithoutAResponseIsReported) {
    EXPECT_EQ(failureOf("exit 0"), "the reader ended without an answer");
}

TEST(ReaderProcess, TheLastLineBeforeTheEndIsReceived) {
    ReaderProcess process("/bin/sh", {"-c", "echo last"}, kEnough);

    EXPECT_EQ(process.receive(), "last");
    EXPECT_EQ(failureOf(process), "the reader ended without an answer");
}

TEST(ReaderProcess, AProcessThatTakesTooLongIsKilled) {
    EXPECT_EQ(failureOf("exec sleep 60", {.seconds = 0.2, .megabytes = 1000}),
              "the reader took longer than 0.2 seconds");
}

TEST(ReaderProcess, TheTimeLimitIsReportedWithAPointInEveryLocale) {
    const test_support::CommaLocale locale;

    ASSERT_TRUE(test_support::CommaLocale::isSystems());
    EXPECT_EQ(failureOf("exec sleep 60", {.seconds = 0.25, .megabytes = 1000}),
              "the reader took longer than 0.25 seconds");
}

TEST(ReaderProcess, WholeSecondsAreReportedWithoutAPoint) {
    EXPECT_EQ(failureOf("exec sleep 60", {.seconds = 1, .megabytes = 1000}),
              "the reader took longer than 1 seconds");
}

TEST(ReaderProcess, AProcessWithEndlessOutputIsKilled) {
    ReaderProcess process("/bin/sh", {"-c", "while :; do printf x; done"},
                          {.seconds = 0.2, .megabytes = 1000});

    EXPECT_EQ(failureOf(process), "the reader took longer than 0.2 seconds");
}

TEST(ReaderProcess, AProcessThatUsesTooMuchMemoryIsKilled) {
    EXPECT_EQ(failureOf("exec tail /dev/zero", {.seconds = 30, .megabytes = 60}),
              "the reader needed more than 60 megabytes of memory");
}

TEST(ReaderProcess, AFailureIsPermanent) {
    ReaderProcess process("/bin/sh", {"-c", "kill -SEGV $$"}, kEnough);
    failureOf(process);

    process.send("again");

    EXPECT_EQ(failureOf(process), "the reader crashed (Segmentation fault)");
}

TEST(ReaderProcess, AProgramThatIsMissingIsNamed) {
    EXPECT_THROW(
        {
            try {
                ReaderProcess process("/nowhere/reader", {}, kEnough);
            } catch (const ReaderFailure& failure) {
                EXPECT_STREQ(failure.what(),
                             "the reader /nowhere/reader cannot be started (No such file or "
                             "directory)");
                throw;
            }
        },
        ReaderFailure);
}

TEST(ReaderProcess, OnlyTheStandardStreamsAreInherited) {
    // Of a shell that lists its files, 3 is the listing itself.
    ReaderProcess process("/bin/sh", {"-c", "echo $(ls /proc/self/fd)"}, kEnough);

    EXPECT_EQ(process.receive(), "0 1 2 3");
}

TEST(ReaderProcess, NeitherProcessNorFileIsLeftBehind) {
    const std::ptrdiff_t before = openFiles();
    { const ReaderProcess process("/bin/sleep", {"60"}, kEnough); }

    EXPECT_EQ(openFiles(), before);
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

}  // namespace
