#include "tarnix/text/checked.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace tarnix {
namespace {

template <class Action>
std::string outOfRange(Action action) {
    try {
        action();
    } catch (const std::out_of_range& error) {
        return error.what();
    }
    return "nothing thrown";
}

TEST(At, ReturnsTheElement) {
    std::vector<int> numbers = {1, 2};
    at(numbers, 1) = 5;
    EXPECT_EQ(numbers, (std::vector<int>{1, 5}));
}

TEST(At, ThrowsBeyondTheEnd) {
    std::vector<int> numbers = {1, 2};
    const std::vector<int> none;
    EXPECT_EQ(outOfRange([&] { at(numbers, 2); }), "invalid vector subscript");
    EXPECT_EQ(outOfRange([&] { at(none, 0); }), "invalid vector subscript");
    EXPECT_EQ(outOfRange([&] { at(numbers, static_cast<std::size_t>(-1)); }),
              "invalid vector subscript");
}

TEST(SubstringFrom, ReturnsTheRest) {
    EXPECT_EQ(substringFrom("QEMA_Mass", 5), "Mass");
    EXPECT_EQ(substringFrom("QEMA_", 5), "");
}

TEST(SubstringFrom, ThrowsForAStringThatIsTooShort) {
    EXPECT_EQ(outOfRange([] { substringFrom("QEMA", 5); }), "invalid string position");
}

TEST(ReplaceFirst, LeavesTheOthers) {
    EXPECT_EQ(replaceFirst("A.dll\\B.dll", ".dll", ".xml"), "A.xml\\B.dll");
}

TEST(ReplaceFirst, ThrowsWithNothingToReplace) {
    EXPECT_EQ(outOfRange([] { replaceFirst("Tarnix.so", ".dll", ".xml"); }),
              "invalid string position");
}

}  // namespace
}  // namespace tarnix
