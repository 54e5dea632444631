#include "tarnix/bom/behaviour/row_numbering.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace test_support {
namespace {

using tarnix::RowNumbers;

/// What the rows at the top so far leave behind: the last number given is `count`.
RowNumbers behindTop(int count) {
    RowNumbers numbers;
    for (int i = 0; i < count; ++i) {
        numbers.nextTop();
    }
    return numbers;
}

/// What rows at the top and one below the last of them leave behind, such as "3.1".
RowNumbers behindNested(int count) {
    RowNumbers numbers = behindTop(count);
    numbers.nextNested({"9.9", 0, 1});
    return numbers;
}

TEST(RowNumbers, CountsTheRowsAtTheTop) {
    RowNumbers numbers = behindTop(2);

    EXPECT_EQ(numbers.nextTop(), "3");
}

TEST(RowNumbers, BeginsAtOneBelowARowAtTheTop) {
    EXPECT_EQ(behindTop(3).nextNested({"5.4", 0, 0}), "3.1");
}

TEST(RowNumbers, CountsLevelsAndNotPlacesWhereTwoOpenAtOnce) {
    EXPECT_EQ(behindTop(3).nextNested({"5.4.7", 0, 0}), "3.2");
}

TEST(RowNumbers, CountsOnBesideARowOfTheSameDepth) {
    EXPECT_EQ(behindNested(3).nextNested({"5.4", 1, 0}), "3.2");
}

TEST(RowNumbers, BeginsAtOneBesideARowOfTheSameDepthThatHadANumberOfTheTop) {
    EXPECT_EQ(behindTop(3).nextNested({"5.4", 1, 0}), "3.1");
}

TEST(RowNumbers, CountsOnBehindADeeperRowWhereTheNextOneIsDeeper) {
    RowNumbers numbers = behindNested(3);
    numbers.nextNested({"9.9.9", 1, 1});

    // The last number is 3.1.1; of its first three characters the part behind the dot is 1.
    EXPECT_EQ(numbers.nextNested({"5.4", 2, 2}), "3.2");
}

TEST(RowNumbers, TakesTheDotFromTheRowsOwnPosition) {
    RowNumbers numbers = behindNested(3);

    // The dot of 15.4 is at place 2, where the last number, 3.1, has its second digit.
    EXPECT_THROW(
        {
            try {
                numbers.nextNested({"15.4", 2, 2});
            } catch (const std::invalid_argument& error) {
                EXPECT_STREQ(error.what(), "invalid stoi argument");
                throw;
            }
        },
        std::invalid_argument);
}

TEST(RowNumbers, BeginsAtOneBehindADeeperRowWithANumberOfOneDigit) {
    EXPECT_EQ(behindTop(3).nextNested({"5.4", 2, 2}), "3.1");
}

TEST(RowNumbers, CountsOnBehindADeeperRowWithALongerNumberOfTheTop) {
    RowNumbers numbers = behindTop(12);

    EXPECT_THROW(
        {
            try {
                numbers.nextNested({"12.4", 2, 2});
            } catch (const std::out_of_range& error) {
                EXPECT_STREQ(error.what(), "invalid string position");
                throw;
            }
        },
        std::out_of_range);
}

TEST(RowNumbers, RepeatsTheNumberBehindADeeperRowWhereTheNextOneIsAsDeep) {
    EXPECT_EQ(behindNested(3).nextNested({"5.4", 2, 1}), "3.1");
}

TEST(RowNumbers, TakesOneOffTheRowsOwnNumberBehindADeeperRowWhereTheNextOneIsHigher) {
    EXPECT_EQ(behindNested(3).nextNested({"5.4", 2, 0}), "5.3");
}

TEST(RowNumbers, ThrowsWhereThePositionHoldsNoNumber) {
    EXPECT_THROW(behindNested(3).nextNested({"5.x", 2, 0}), std::invalid_argument);
}

}  // namespace
}  // namespace test_support
