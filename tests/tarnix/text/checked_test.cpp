#include "tarnix/text/checked.h"

#include "tests/support/thrown.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarnix {
namespace {

using test_support::thrownBy;

constexpr const char* kInvalidSubscript = "out_of_range: invalid vector subscript";
constexpr const char* kInvalidPosition = "out_of_range: invalid string position";

TEST(At, ReturnsTheElement) {
    std::vector<int> numbers = {1, 2};
    at(numbers, 1) = 5;
    EXPECT_EQ(numbers, (std::vector<int>{1, 5}));
}

TEST(At, ThrowsBeyondTheEnd) {
    std::vector<int> numbers = {1, 2};
    const std::vector<int> none;
    EXPECT_EQ(thrownBy([&] { at(numbers, 2); }), kInvalidSubscript);
    EXPECT_EQ(thrownBy([&] { at(none, 0); }), kInvalidSubscript);
    EXPECT_EQ(thrownBy([&] { at(numbers, static_cast<std::size_t>(-1)); }), kInvalidSubscript);
}

TEST(SubstringFrom, ReturnsTheRest) {
    EXPECT_EQ(substringFrom("QEMA_Mass", 5), "Mass");
    EXPECT_EQ(substringFrom("QEMA_", 5), "");
}

TEST(SubstringFrom, ThrowsForAStringThatIsTooShort) {
    EXPECT_EQ(thrownBy([] { substringFrom("QEMA", 5); }), kInvalidPosition);
}

TEST(ReplaceFirst, LeavesTheOthers) {
    EXPECT_EQ(replaceFirst("A.dll\\B.dll", ".dll", ".xml"), "A.xml\\B.dll");
}

TEST(ReplaceFirst, ThrowsWithNothingToReplace) {
    EXPECT_EQ(thrownBy([] { replaceFirst("Tarnix.so", ".dll", ".xml"); }), kInvalidPosition);
}

}  // namespace
}  // namespace tarnix
