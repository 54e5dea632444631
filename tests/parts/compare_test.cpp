#include "parts/compare.h"

#include "tests/parts/drawn_list.h"

#include <gtest/gtest.h>

namespace {

using parts::Change;
using parts::ChangeKind;
using parts::ComparedLine;
using parts::Number;

/// What changes between two lines of one item with one column of this field.
std::vector<Change> changes(parts::Field field, const parts::Cell& before, const parts::Cell& after,
                            bool isAsShown = false) {
    return parts::compareLines({{.item = "P", .cells = {before}}},
                               {{.item = "P", .cells = {after}}},
                               {{.field = field, .caption = "C", .isAsShown = isAsShown}})
        .changes;
}

bool isSameAsShown(double value, const std::string& shown) {
    return changes(parts::Field::Mass, Number{.value = value}, shown, /*isAsShown=*/true).empty();
}

TEST(Compare, NumbersThatWritersRoundAreEqual) {
    EXPECT_TRUE(
        changes(parts::Field::Mass, Number{.value = 1}, Number{.value = 1.0000005}).empty());
    EXPECT_EQ(changes(parts::Field::Mass, Number{.value = 1}, Number{.value = 1.00001}).size(), 1U);
}

TEST(Compare, ANumberOfASpreadsheetCountsWithItsDigits) {
    EXPECT_TRUE(isSameAsShown(1.23456, "1.235"));
    EXPECT_TRUE(isSameAsShown(1.23456, "1,235"));
    EXPECT_TRUE(isSameAsShown(1.23456, "1.2"));
    EXPECT_TRUE(isSameAsShown(123456.7, "123457"));
    EXPECT_FALSE(isSameAsShown(1.23456, "1.236"));
    EXPECT_FALSE(isSameAsShown(1.23456, "heavy"));
    EXPECT_FALSE(isSameAsShown(1.23456, ""));
}

TEST(Compare, TheMarkOfATextThatASpreadsheetWouldRunIsNoDifference) {
    EXPECT_TRUE(changes(parts::Field::Description, "=cmd", "'=cmd").empty());
    EXPECT_EQ(changes(parts::Field::Description, "cmd", "'cmd").size(), 1U);
}

TEST(Compare, LinesOfOneItemBelongTogetherInTheirOrder) {
    const std::vector<parts::ComparedColumn> quantity = {
        {.field = parts::Field::Quantity, .caption = "Quantity"}};
    const ComparedLine one{.item = "M5", .cells = {Number{.value = 1, .decimals = 0}}};
    const ComparedLine two{.item = "M5", .cells = {Number{.value = 2, .decimals = 0}}};

    const parts::ListComparison comparison = parts::compareLines({one, two}, {one}, quantity);

    EXPECT_EQ(comparison.unchanged, 1U);
    EXPECT_EQ(comparison.changes,
              (std::vector<Change>{{.kind = ChangeKind::Removed,
                                    .item = "M5",
                                    .before = Number{.value = 2, .decimals = 0}}}));
}

TEST(Compare, ItemsAreInNaturalOrder) {
    const parts::ListComparison comparison =
        parts::compareLines({}, {{.item = "M10"}, {.item = "M5"}}, {});

    EXPECT_EQ(comparison.changes.at(0).item, "M5");
    EXPECT_EQ(comparison.changes.at(1).item, "M10");
}

TEST(Compare, AMirrorImageIsAnotherShapeThoughItsMeasuresAreEqual) {
    host::ShapeInvariants left;
    left.volume = 6;
    left.area = 22;
    left.secondMoments = {1, 2, 3};
    left.thirdMoments = {0.5, 0.5, 0.25, 0.25};
    host::ShapeInvariants right = left;
    right.thirdMoments = {0.5, 0.5, -0.25, -0.25};
    const parts::ShapeMeasures measures{.volume = 6, .area = 22};

    const auto compared = [&](const host::ShapeInvariants& after) {
        return parts::compareLines({{.item = "P", .shape = measures, .invariants = left}},
                                   {{.item = "P", .shape = measures, .invariants = after}}, {});
    };

    EXPECT_EQ(compared(left).unchanged, 1U);
    EXPECT_EQ(compared(right).changes,
              (std::vector<Change>{{.kind = ChangeKind::Shape, .item = "P", .column = "Shape"}}));
}

}  // namespace
