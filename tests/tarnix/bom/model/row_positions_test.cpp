#include "tarnix/bom/model/row_positions.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarnix {
namespace {

/// A row as a plain walk leaves it: `end` for the last one of a finished subtree.
BomRow row(int level, int ordinal, std::size_t childCount, bool end = false) {
    BomRow made;
    made.level = level;
    made.relativePosition = level < 2 ? "" : "." + std::to_string(ordinal);
    made.childCount = childCount;
    made.pathName = end ? kSubtreeEnd : "somewhere";
    return made;
}

class RowPositionsTest : public testing::Test {
protected:
    RowPositionsTest() { modelRowCounter = 1; }
    ~RowPositionsTest() override { modelRowCounter = 1; }

    static std::vector<std::string> number(const std::vector<BomRow>& rows) {
        RowPositions positions;
        std::vector<std::string> texts;
        std::string previous;
        for (const auto& each : rows) {
            texts.push_back(positions.next(each, previous));
            positions.finishRow();
            previous = each.pathName;
        }
        return texts;
    }
};

using Texts = std::vector<std::string>;

TEST_F(RowPositionsTest, RowsAtTheTopAreCounted) {
    EXPECT_EQ(number({row(1, 1, 0), row(1, 2, 0)}), (Texts{"1", "2"}));
}

TEST_F(RowPositionsTest, NestedRowsStandUnderTheNumberOfTheirParent) {
    EXPECT_EQ(
        number({row(1, 1, 2), row(2, 1, 1), row(3, 1, 0, true), row(2, 2, 0, true), row(1, 2, 0)}),
        (Texts{"1", "1.1", "1.1.1", "1.2", "2"}));
}

TEST_F(RowPositionsTest, ASiblingAfterTwoFinishedLevelsGoesOnWhereItsLevelWas) {
    EXPECT_EQ(number({row(1, 1, 2), row(2, 1, 1), row(3, 1, 1), row(4, 1, 0, true), row(2, 2, 1),
                      row(3, 1, 0, true)}),
              (Texts{"1", "1.1", "1.1.1", "1.1.1.1", "1.2", "1.2.1"}));
}

TEST_F(RowPositionsTest, TheCounterGoesOnInTheNextTable) {
    number({row(1, 1, 1), row(2, 1, 0, true), row(1, 2, 0)});
    EXPECT_EQ(number({row(1, 1, 1), row(2, 1, 0, true)}), (Texts{"3", "3.1"}));
    EXPECT_EQ(modelRowCounter, 4);
}

TEST_F(RowPositionsTest, AnOrdinalCountsSiblingsThatHaveNoRow) {
    EXPECT_EQ(number({row(1, 1, 3), row(2, 1, 0), row(2, 3, 0, true)}), (Texts{"1", "1.1", "1.3"}));
}

TEST(GraphPosition, IsEmptyAtTheTop) { EXPECT_EQ(graphPosition("12"), ""); }

TEST(GraphPosition, IndentsEachLevelAndEndsInABranch) {
    EXPECT_EQ(graphPosition("1.2"), "\xE2\x96\x91    \xE2\x94\x9C\xE2\x94\x80\xE2\x94\x80");
    EXPECT_EQ(graphPosition("1.2.3"),
              "\xE2\x96\x91    \xE2\x96\x91    \xE2\x94\x9C\xE2\x94\x80\xE2\x94\x80");
}

}  // namespace
}  // namespace tarnix
