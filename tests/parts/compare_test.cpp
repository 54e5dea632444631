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

TEST(Compare, ANumberOfASpreadsheetIsEqualInTheDigitsThatAListWrites) {
    EXPECT_TRUE(isSameAsShown(1.23456, "1.235"));
    EXPECT_TRUE(isSameAsShown(1.23456, "1,235"));
    EXPECT_TRUE(isSameAsShown(1.23456, "1.23456"));
    EXPECT_TRUE(isSameAsShown(1.5, "1.50"));
    EXPECT_TRUE(isSameAsShown(9.99996, "10"));
    EXPECT_TRUE(isSameAsShown(123456.7, "123457"));
    EXPECT_TRUE(isSameAsShown(0, "0"));
    EXPECT_FALSE(isSameAsShown(1.4, "1"));
    EXPECT_FALSE(isSameAsShown(1.23456, "1.2"));
    EXPECT_FALSE(isSameAsShown(123456.7, "123500"));
    EXPECT_FALSE(isSameAsShown(0, "0.4"));
    EXPECT_FALSE(isSameAsShown(1.23456, "1.236"));
    EXPECT_FALSE(isSameAsShown(1.23456, "heavy"));
    EXPECT_FALSE(isSameAsShown(1.23456, ""));
}

TEST(Compare, ACountIsEqualToNoFraction) {
    const Number six{.value = 6, .decimals = parts::kWhole};

    EXPECT_TRUE(changes(parts::Field::Quantity, six, "6", /*isAsShown=*/true).empty());
    EXPECT_EQ(changes(parts::Field::Quantity, six, "6.4", /*isAsShown=*/true).size(), 1U);
}

TEST(Compare, ChosenDecimalsAreThoseThatAListWrites) {
    const Number mass{.value = 6.4, .decimals = 0};

    EXPECT_TRUE(changes(parts::Field::Mass, mass, "6", /*isAsShown=*/true).empty());
    EXPECT_EQ(changes(parts::Field::Mass, mass, "7", /*isAsShown=*/true).size(), 1U);
}

/// What moves between two lines that are in parents A and B so often, and so often in all.
std::vector<Change> moves(std::int64_t a, std::int64_t b, std::int64_t all) {
    const ComparedLine old{
        .item = "P", .parents = {{"A", 2}, {"B", 4}}, .quantity = 6, .hasParents = true};
    const ComparedLine now{
        .item = "P", .parents = {{"A", a}, {"B", b}}, .quantity = all, .hasParents = true};
    return parts::compareLines({old}, {now}, {}).changes;
}

TEST(Compare, OtherQuantitiesInTheSameParentsAreAMove) {
    EXPECT_EQ(moves(4, 2, 6), (std::vector<Change>{{.kind = ChangeKind::Moved,
                                                    .item = "P",
                                                    .column = "Used in",
                                                    .before = "A (2); B (4)",
                                                    .after = "A (4); B (2)"}}));
    EXPECT_EQ(moves(5, 2, 7).size(), 1U);
    // One of A instead of two: as many in all, in other places.
    EXPECT_EQ(moves(4, 4, 6).size(), 1U);
}

TEST(Compare, MoreInTheSameParentsIsNoMove) {
    EXPECT_TRUE(moves(2, 4, 12).empty());
    EXPECT_TRUE(moves(3, 4, 7).empty());
}

TEST(Compare, TheMarkOfATextThatASpreadsheetWouldRunIsNoDifference) {
    EXPECT_TRUE(changes(parts::Field::Description, "=cmd", "'=cmd").empty());
    EXPECT_EQ(changes(parts::Field::Description, "cmd", "'cmd").size(), 1U);
}

TEST(Compare, LinesOfOneItemThatAreEqualBelongTogetherWhateverTheirOrder) {
    const std::vector<parts::ComparedColumn> columns = {
        {.field = parts::Field::Mass, .caption = "Mass"},
        {.field = parts::Field::Material, .caption = "Material"}};
    const ComparedLine assembly{.item = "S", .cells = {Number{.value = 3}, ""}};
    const ComparedLine bodies{.item = "S", .cells = {Number{.value = 1}, "Steel"}};
    ComparedLine painted = bodies;
    painted.cells[1] = "Brass";

    EXPECT_EQ(parts::compareLines({assembly, bodies}, {bodies, assembly}, columns).unchanged, 2U);
    EXPECT_EQ(parts::compareLines({assembly, bodies}, {painted, assembly}, columns).changes,
              (std::vector<Change>{{.kind = ChangeKind::Value,
                                    .item = "S",
                                    .column = "Material",
                                    .before = "Steel",
                                    .after = "Brass"}}));
}

TEST(Compare, LinesOfOneItemAndOneKindBelongTogether) {
    const std::vector<parts::ComparedColumn> columns = {
        {.field = parts::Field::Mass, .caption = "Mass"}};
    const ComparedLine assembly{
        .item = "S", .kind = parts::RowKind::Assembly, .cells = {Number{.value = 1}}};
    const ComparedLine part{
        .item = "S", .kind = parts::RowKind::Part, .cells = {Number{.value = 2}}};
    ComparedLine heavyAssembly = assembly;
    heavyAssembly.cells[0] = Number{.value = 2};
    ComparedLine heavyPart = part;
    heavyPart.cells[0] = Number{.value = 4};

    // 1 and 2 became 2 and 4, the part listed first.
    const parts::ListComparison comparison =
        parts::compareLines({assembly, part}, {heavyPart, heavyAssembly}, columns);

    ASSERT_EQ(comparison.changes.size(), 2U);
    EXPECT_EQ(comparison.changes[0].after, parts::Cell(Number{.value = 2}));
    EXPECT_EQ(comparison.changes[1].after, parts::Cell(Number{.value = 4}));
}

TEST(Compare, OfLinesOfOneItemTheOneTooManyIsRemoved) {
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

host::DesignData lonePart() {
    host::DesignData design = test_support::drawn("Plate  box=1x1x1");
    design.components[0] = design.components[1];
    design.components.resize(1);
    return design;
}

TEST(Compare, TheInvariantsOfALonePartAndOfOwnBodiesAreTaken) {
    host::ShapeInvariants invariants;
    invariants.volume = 6;
    host::ShapeData lone;
    lone.ofComponent = {0};
    lone.shapes.resize(1);
    lone.shapes[0].invariants = invariants;
    host::ShapeData weldment = lone;
    weldment.ofComponent = {std::nullopt, 0, std::nullopt};
    const auto lines = [](const host::DesignData& design, const host::ShapeData& shapes) {
        const parts::PartsRequest all = test_support::request(parts::View::All, "Quantity");
        return parts::linesOf(parts::buildPartsList(design, all), 1, shapes);
    };

    EXPECT_EQ(lines(lonePart(), lone).at(0).invariants, invariants);
    const std::vector<ComparedLine> both =
        lines(test_support::drawn("Weldment  box=1x1x1\n  Rib"), weldment);
    // The assembly, its own bodies, the rib.
    ASSERT_EQ(both.size(), 3U);
    EXPECT_EQ(both[0].invariants, std::nullopt);
    EXPECT_EQ(both[1].invariants, invariants);
    EXPECT_EQ(both[2].invariants, std::nullopt);
}

}  // namespace
