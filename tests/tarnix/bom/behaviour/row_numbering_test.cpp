#include "tarnix/bom/behaviour/row_numbering.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace test_support {
namespace {

using tarnix::RowNumbers;

/// The state after rows at the top: the last number is `count`.
RowNumbers afterTop(int count) {
    RowNumbers numbers;
    for (int i = 0; i < count; ++i) {
        numbers.nextTop();
    }
    return numbers;
}

/// The state after rows at the top and one below the last of them, such as "3.1".
RowNumbers afterNested(int count) {
    RowNumbers numbers = afterTop(count);
    numbers.nextNested({.position = "9.9", .previousDepth = 0, .nextDepth = 1});
    return numbers;
}

TEST(RowNumbers, CountsTheRowsAtTheTop) {
    RowNumbers numbers = afterTop(2);

    EXPECT_EQ(numbers.nextTop(), "3");
}

TEST(RowNumbers, BeginsAtOneBelowARowAtTheTop) {
    EXPECT_EQ(afterTop(3).nextNested({.position = "5.4", .previousDepth = 0, .nextDepth = 0}),
              "3.1");
}

TEST(RowNumbers, CountsLevelsAndNotPlacesWhereTwoOpenAtOnce) {
    EXPECT_EQ(afterTop(3).nextNested({.position = "5.4.7", .previousDepth = 0, .nextDepth = 0}),
              "3.2");
}

TEST(RowNumbers, CountsOnBesideARowOfTheSameDepth) {
    EXPECT_EQ(afterNested(3).nextNested({.position = "5.4", .previousDepth = 1, .nextDepth = 0}),
              "3.2");
}

TEST(RowNumbers, BeginsAtOneBesideARowOfTheSameDepthThatHadANumberOfTheTop) {
    EXPECT_EQ(afterTop(3).nextNested({.position = "5.4", .previousDepth = 1, .nextDepth = 0}),
              "3.1");
}

TEST(RowNumbers, CountsOnAfterADeeperRowWhereTheNextOneIsDeeper) {
    RowNumbers numbers = afterNested(3);
    numbers.nextNested({.position = "9.9.9", .previousDepth = 1, .nextDepth = 1});

    // The last number is 3.1.1; of its first three characters the part after the dot is 1.
    EXPECT_EQ(numbers.nextNested({.position = "5.4", .previousDepth = 2, .nextDepth = 2}), "3.2");
}

TEST(RowNumbers, TakesTheDotFromTheRowsOwnPosition) {
    RowNumbers numbers = afterNested(3);

    // The dot of 15.4 is at place 2, where the last number, 3.1, has its second digit.
    EXPECT_THROW(
        {
            try {
                numbers.nextNested({.position = "15.4", .previousDepth = 2, .nextDepth = 2});
            } catch (const std::invalid_argument& error) {
                EXPECT_STREQ(error.what(), "invalid stoi argument");
                throw;
            }
        },
        std::invalid_argument);
}

TEST(RowNumbers, BeginsAtOneAfterADeeperRowWithANumberOfOneDigit) {
    EXPECT_EQ(afterTop(3).nextNested({.position = "5.4", .previousDepth = 2, .nextDepth = 2}),
              "3.1");
}

TEST(RowNumbers, CountsOnAfterADeeperRowWithALongerNumberOfTheTop) {
    RowNumbers numbers = afterTop(12);

    EXPECT_THROW(
        {
            try {
                numbers.nextNested({.position = "12.4", .previousDepth = 2, .nextDepth = 2});
            } catch (const std::out_of_range& error) {
                EXPECT_STREQ(error.what(), "invalid string position");
                throw;
            }
        },
        std::out_of_range);
}

TEST(RowNumbers, RepeatsTheNumberAfterADeeperRowWhereTheNextOneIsAsDeep) {
    EXPECT_EQ(afterNested(3).nextNested({.position = "5.4", .previousDepth = 2, .nextDepth = 1}),
              "3.1");
}

TEST(RowNumbers, TakesOneOffTheRowsOwnNumberAfterADeeperRowWhereTheNextOneIsHigher) {
    EXPECT_EQ(afterNested(3).nextNested({.position = "5.4", .previousDepth = 2, .nextDepth = 0}),
              "5.3");
}

TEST(RowNumbers, ThrowsWhereThePositionHoldsNoNumber) {
    EXPECT_THROW(afterNested(3).nextNested({.position = "5.x", .previousDepth = 2, .nextDepth = 0}),
                 std::invalid_argument);
}

}  // namespace
}  // namespace test_support
