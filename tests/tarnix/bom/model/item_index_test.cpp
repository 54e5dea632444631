#include "tarnix/bom/model/identity.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>

namespace tarnix {
namespace {

constexpr std::optional<std::size_t> kNone = std::nullopt;

TEST(ItemIndex, FindsNothingBeforeSomethingIsAdded) {
    EXPECT_EQ(ItemIndex().find("P", "Bolt:1"), kNone);
}

TEST(ItemIndex, TakesEqualNumbersUnderTheRootForOneItemWhateverTheirNames) {
    ItemIndex index;
    index.add("P", "Bolt:1");
    EXPECT_EQ(index.find("P", "Screw:1"), 0U);
    EXPECT_EQ(index.find("Q", "Bolt:2"), kNone);
}

TEST(ItemIndex, KeepsItemsOfDifferentParentsApart) {
    ItemIndex index;
    index.add("P", "Asm:1+Bolt:1");
    EXPECT_EQ(index.find("P", "Asm:1+Screw:1"), 0U);
    EXPECT_EQ(index.find("P", "Asm:2+Bolt:2"), kNone);
    EXPECT_EQ(index.find("P", "Bolt:3"), kNone);
}

TEST(ItemIndex, TakesAChildWithItsTopAssemblysNumberForThatAssembly) {
    ItemIndex index;
    index.add("P", "Asm:1");
    EXPECT_EQ(index.find("P", "Asm:1+Bolt:1"), 0U);
    EXPECT_EQ(index.find("P", "Other:1+Bolt:2"), kNone);
}

TEST(ItemIndex, FindsTheFirstOfTwoThatFit) {
    ItemIndex index;
    index.add("P", "Asm:1+Bolt:1");
    index.add("P", "Asm:2");
    EXPECT_EQ(index.find("P", "Asm:1"), 0U);
    EXPECT_EQ(index.find("P", "Asm:3"), 1U);
}

TEST(ItemIndex, ReadsAPlusInANameAsTheEndOfAParent) {
    ItemIndex index;
    index.add("P", "A+B:1");
    EXPECT_EQ(index.find("P", "C:1"), kNone);
    EXPECT_EQ(index.find("P", "A+C:1"), 0U);
}

TEST(ItemIndex, TakesNoNumberForANumber) {
    ItemIndex index;
    index.add("", "Bolt:1");
    EXPECT_EQ(index.find("", "Nut:1"), 0U);
}

}  // namespace
}  // namespace tarnix
