#include "workbench/cli/nearest_word.h"

#include <gtest/gtest.h>

#include <string>

using workbench::nearestWord;

TEST(NearestWord, IsTheOneThatTheFewestChangesLeadTo) {
    EXPECT_EQ(nearestWord("inof", {"bom", "info", "configure"}), "info");
    EXPECT_EQ(nearestWord("configre", {"bom", "info", "configure"}), "configure");
    EXPECT_EQ(nearestWord("--formatt", {"--from", "--format"}), "--format");
}

TEST(NearestWord, DoesNotMindUpperAndLowerCase) {
    EXPECT_EQ(nearestWord("qm_tx_bom", {"QM_TX_BOM"}), "QM_TX_BOM");
}

TEST(NearestWord, IsNoneForAWordThatIsFarFromAll) {
    EXPECT_EQ(nearestWord("gearbox", {"bom", "info"}), "");
    EXPECT_EQ(nearestWord("x", {}), "");
    EXPECT_EQ(nearestWord("", {"bom"}), "");
}

TEST(NearestWord, OfTwoEquallyNearOnesIsTheFirst) {
    EXPECT_EQ(nearestWord("bam", {"bom", "bim"}), "bom");
}

TEST(NearestWord, IsNotLookedForWhereTheWordIsVeryLong) {
    EXPECT_EQ(nearestWord(std::string(101, 'a'), {std::string(100, 'a')}), "");
}
