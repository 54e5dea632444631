#include "workbench/commands/reader_share.h"

#include "workbench/cli/machine.h"

#include <gtest/gtest.h>

namespace {

using workbench::shareOf;

constexpr host::ReadingLimits kLimits = {.megabytes = 3072};

TEST(ReaderShare, ALoneReaderHasEverything) {
    const host::ReadingLimits share =
        shareOf(kLimits, {.readers = 1, .processors = 8, .memoryMegabytes = 1000});

    EXPECT_EQ(share.threads, 0U);  // one for each processor
    EXPECT_EQ(share.megabytes, 3072U);
}

TEST(ReaderShare, SeveralReadersShareTheProcessors) {
    EXPECT_EQ(shareOf(kLimits, {.readers = 3, .processors = 8}).threads, 2U);
    EXPECT_EQ(shareOf(kLimits, {.readers = 8, .processors = 8}).threads, 1U);
    EXPECT_EQ(shareOf(kLimits, {.readers = 100, .processors = 8}).threads, 1U);
}

TEST(ReaderShare, SeveralReadersGetNoMoreMemoryThanThereIs) {
    EXPECT_EQ(shareOf(kLimits, {.readers = 4, .memoryMegabytes = 8000}).megabytes, 2000U);
    EXPECT_EQ(shareOf(kLimits, {.readers = 4, .memoryMegabytes = 64000}).megabytes, 3072U);
    EXPECT_EQ(shareOf(kLimits, {.readers = 1000, .memoryMegabytes = 8000}).megabytes, 16U);
    EXPECT_EQ(shareOf(kLimits, {.readers = 4}).megabytes, 3072U);  // how much there is is unknown
}

TEST(Machine, HasAProcessorAndMemory) {
    EXPECT_GE(workbench::machine::processors(), 1U);
    EXPECT_GE(workbench::machine::memoryMegabytes(), 16U);
}

}  // namespace
