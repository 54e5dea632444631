#include "tarnix/bom/behaviour/row_numbering.h"

#include "tests/support/case_name.h"
#include "tests/support/thrown.h"

#include <gtest/gtest.h>

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

/// What is thrown for a row below the top.
std::string thrownAfter(RowNumbers numbers, const RowNumbers::Place& place) {
    return thrownBy([&] { numbers.nextNested(place); });
}

TEST(RowNumbers, CountsTheRowsAtTheTop) {
    RowNumbers numbers = afterTop(2);

    EXPECT_EQ(numbers.nextTop(), "3");
}

struct Nested {
    const char* name;
    RowNumbers before;
    RowNumbers::Place row;
    const char* number;
};

class NumberOfANestedRow : public testing::TestWithParam<Nested> {};

TEST_P(NumberOfANestedRow, Is) {
    RowNumbers numbers = GetParam().before;

    EXPECT_EQ(numbers.nextNested(GetParam().row), GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(
    Each, NumberOfANestedRow,
    testing::Values(Nested{.name = "BeginsAtOneBelowARowAtTheTop",
                           .before = afterTop(3),
                           .row = {.position = "5.4", .previousDepth = 0, .nextDepth = 0},
                           .number = "3.1"},
                    Nested{.name = "CountsLevelsAndNotPlacesWhereTwoOpenAtOnce",
                           .before = afterTop(3),
                           .row = {.position = "5.4.7", .previousDepth = 0, .nextDepth = 0},
                           .number = "3.2"},
                    Nested{.name = "CountsOnBesideARowOfTheSameDepth",
                           .before = afterNested(3),
                           .row = {.position = "5.4", .previousDepth = 1, .nextDepth = 0},
                           .number = "3.2"},
                    Nested{.name = "BeginsAtOneBesideARowOfTheSameDepthThatHadANumberOfTheTop",
                           .before = afterTop(3),
                           .row = {.position = "5.4", .previousDepth = 1, .nextDepth = 0},
                           .number = "3.1"},
                    Nested{.name = "BeginsAtOneAfterADeeperRowWithANumberOfOneDigit",
                           .before = afterTop(3),
                           .row = {.position = "5.4", .previousDepth = 2, .nextDepth = 2},
                           .number = "3.1"},
                    Nested{.name = "IsRepeatedAfterADeeperRowWhereTheNextOneIsAsDeep",
                           .before = afterNested(3),
                           .row = {.position = "5.4", .previousDepth = 2, .nextDepth = 1},
                           .number = "3.1"},
                    Nested{.name = "IsTheRowsOwnLessOneAfterADeeperRowWhereTheNextOneIsHigher",
                           .before = afterNested(3),
                           .row = {.position = "5.4", .previousDepth = 2, .nextDepth = 0},
                           .number = "5.3"}),
    caseName);

TEST(RowNumbers, CountsOnAfterADeeperRowWhereTheNextOneIsDeeper) {
    RowNumbers numbers = afterNested(3);
    numbers.nextNested({.position = "9.9.9", .previousDepth = 1, .nextDepth = 1});

    // The last number is 3.1.1; of its first three characters the part after the dot is 1.
    EXPECT_EQ(numbers.nextNested({.position = "5.4", .previousDepth = 2, .nextDepth = 2}), "3.2");
}

TEST(RowNumbers, TakesTheDotFromTheRowsOwnPosition) {
    // The dot of 15.4 is at place 2, where the last number, 3.1, has its second digit.
    EXPECT_EQ(thrownAfter(afterNested(3), {.position = "15.4", .previousDepth = 2, .nextDepth = 2}),
              "invalid_argument: invalid stoi argument");
}

TEST(RowNumbers, ThrowsAfterADeeperRowWithALongerNumberOfTheTop) {
    EXPECT_EQ(thrownAfter(afterTop(12), {.position = "12.4", .previousDepth = 2, .nextDepth = 2}),
              "out_of_range: invalid string position");
}

TEST(RowNumbers, ThrowsWhereThePositionHoldsNoNumber) {
    EXPECT_EQ(thrownAfter(afterNested(3), {.position = "5.x", .previousDepth = 2, .nextDepth = 0}),
              "invalid_argument: invalid stoi argument");
}

}  // namespace
}  // namespace test_support
