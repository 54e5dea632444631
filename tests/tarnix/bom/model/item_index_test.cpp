#include "tarnix/bom/model/merging.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>

namespace tarnix {
namespace {

constexpr std::optional<std::size_t> kNone = std::nullopt;

TEST(ItemIndex, FindsNothingBeforeSomethingIsAdded) {
    EXPECT_EQ(ItemIndex().add("P", "Bolt:1"), kNone);
}

TEST(ItemIndex, TakesEqualNumbersUnderTheRootForOneItemWhateverTheirNames) {
    ItemIndex index;
    index.add("P", "Bolt:1");
    EXPECT_EQ(index.add("P", "Screw:1"), 0U);
    EXPECT_EQ(index.add("Q", "Bolt:2"), kNone);
}

TEST(ItemIndex, KeepsItemsOfDifferentParentsApart) {
    ItemIndex index;
    index.add("P", "Asm:1+Bolt:1");
    EXPECT_EQ(index.add("P", "Asm:1+Screw:1"), 0U);
    EXPECT_EQ(index.add("P", "Asm:2+Bolt:2"), kNone);
    EXPECT_EQ(index.add("P", "Bolt:3"), kNone);
}

TEST(ItemIndex, TakesAChildWithItsTopAssemblysNumberForThatAssembly) {
    ItemIndex index;
    index.add("P", "Asm:1");
    EXPECT_EQ(index.add("P", "Asm:1+Bolt:1"), 0U);
    EXPECT_EQ(index.add("P", "Other:1+Bolt:2"), kNone);
}

TEST(ItemIndex, FindsTheFirstOfTwoThatFit) {
    ItemIndex index;
    index.add("P", "Asm:1+Bolt:1");
    index.add("P", "Asm:2");
    EXPECT_EQ(index.add("P", "Asm:1"), 0U);
    EXPECT_EQ(index.add("P", "Asm:3"), 1U);
}

TEST(ItemIndex, ReadsAPlusInANameAsTheEndOfAParent) {
    ItemIndex index;
    index.add("P", "A+B:1");
    EXPECT_EQ(index.add("P", "C:1"), kNone);
    EXPECT_EQ(index.add("P", "A+C:1"), 0U);
}

TEST(ItemIndex, TakesNoNumberForANumber) {
    ItemIndex index;
    index.add("", "Bolt:1");
    EXPECT_EQ(index.add("", "Nut:1"), 0U);
}

TEST(ItemIndex, DoesNotKeepAFurtherOccurrenceOfAnItem) {
    ItemIndex index;
    EXPECT_TRUE(index.addIfNew("P", "Bolt:1"));
    EXPECT_FALSE(index.addIfNew("P", "Screw:1"));
    // Inside the one that was not kept.
    EXPECT_TRUE(index.addIfNew("P", "Screw:1+Nut:1"));
    EXPECT_FALSE(index.addIfNew("P", "Bolt:1+Nut:1"));
}

TEST(ItemIndex, DoesNotKeepATopAssemblyWithItsChildsNumber) {
    ItemIndex index;
    EXPECT_TRUE(index.addIfNew("P", "Asm:1+Bolt:1"));
    EXPECT_FALSE(index.addIfNew("P", "Asm:1"));
    EXPECT_TRUE(index.addIfNew("P", "Other:1"));
}

}  // namespace
}  // namespace tarnix
