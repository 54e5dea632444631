#include "tarnix/bom/model/columns.h"
#include "tarnix/bom/model/walk.h"

#include "tests/support/thrown.h"
#include "tests/tarnix/bom/model/open_design.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace tarnix {
namespace {

TEST(Column, IsSplitAtTheFirstSemicolon) {
    const Column column = columnOf("QEMA_Mass;Mass; total");
    EXPECT_EQ(column.key, "QEMA_Mass");
    EXPECT_EQ(column.label, "Mass; total");
}

TEST(Column, WithoutSemicolonIsItsOwnKeyAndLabel) {
    const Column column = columnOf("QEMA_Mass");
    EXPECT_EQ(column.key, "QEMA_Mass");
    EXPECT_EQ(column.label, "QEMA_Mass");
}

TEST(Label, IsComparedAsAWholeAndByCase) {
    EXPECT_EQ(labelWithUnit("Masses"), "Masses");
    EXPECT_EQ(labelWithUnit("mass"), "mass");
    EXPECT_EQ(labelWithUnit("Mass "), "Mass ");
    EXPECT_EQ(labelWithUnit("Length"), "Length");
}

TEST(Columns, AreOfferedUnderThreeHeadings) {
    const std::vector<std::string> expected = {"---Select One---",
                                               "Quantity",
                                               "--- Model Property ---",
                                               "Part Name",
                                               "Description",
                                               "Area",
                                               "Density",
                                               "Mass",
                                               "Volume",
                                               "Physical Material",
                                               "Length",
                                               "Width",
                                               "Height",
                                               "Bounding Box",
                                               "--- User Property ---",
                                               "Colour"};

    EXPECT_EQ(offeredEntries({"Colour"}), expected);
    EXPECT_EQ(std::count_if(expected.begin(), expected.end(), isHeading), 3);
}

TEST(Columns, ThatAreBuiltInAreThoseOfferedAndThePartNumber) {
    EXPECT_TRUE(isBuiltInName("Quantity"));
    EXPECT_TRUE(isBuiltInName("Part Number"));
    EXPECT_TRUE(isBuiltInName("Bounding Box"));
    EXPECT_FALSE(isBuiltInName("Colour"));
    EXPECT_FALSE(isBuiltInName("mass"));
    EXPECT_FALSE(isBuiltInName("---Select One---"));
}

/// A block of 12 x 4.05 x 1.2 cm: 2 * (48.6 + 14.4 + 4.86) = 135.72 cm2, 58.32 cm3, and at
/// 0.0027 kg/cm3 0.157464 kg.
class CellTextTest : public testing::Test {
protected:
    std::string cell(const std::string& key) const { return bomCellValue(row_, key); }

    OpenDesign design_{R"(
        Block  number=B-1 description=big property=Colour/red box=12x4.05x1.2 material=Al:0.0027)"};
    BomModel model_;
    BomRow row_ = walkOccurrences(model_, design_.occurrences(), 1).at(0);
};

/// A built-in column, and its text for the block.
struct BuiltIn {
    std::string name;
    std::string caption;
    std::string text;
};

class BuiltInColumn : public CellTextTest, public testing::WithParamInterface<BuiltIn> {};

TEST_P(BuiltInColumn, HasItsCaptionAndItsText) {
    EXPECT_TRUE(isBuiltInName(GetParam().name));
    EXPECT_EQ(labelWithUnit(GetParam().name), GetParam().caption);
    EXPECT_EQ(cell("QEMA_" + GetParam().name), GetParam().text);
}

// The lengths are in millimetres along the axes.
INSTANTIATE_TEST_SUITE_P(
    Each, BuiltInColumn,
    testing::Values(
        BuiltIn{.name = "Quantity", .caption = "Quantity", .text = "1"},
        BuiltIn{.name = "Part Name", .caption = "Part Name", .text = "Block"},
        BuiltIn{.name = "Description", .caption = "Description", .text = "big"},
        BuiltIn{.name = "Area", .caption = "Area [cm\xC2\xB2]", .text = "135.72"},
        BuiltIn{.name = "Density", .caption = "Density [kg/m\xC2\xB3]", .text = "2700.00"},
        BuiltIn{.name = "Mass", .caption = "Mass [kg]", .text = "0.157"},
        BuiltIn{.name = "Volume", .caption = "Volume [cm\xC2\xB3]", .text = "58.320"},
        BuiltIn{.name = "Physical Material", .caption = "Physical Material", .text = "Al"},
        BuiltIn{.name = "Length", .caption = "Length", .text = "120.0"},
        BuiltIn{.name = "Width", .caption = "Width", .text = "40.5"},
        BuiltIn{.name = "Height", .caption = "Height", .text = "12.0"},
        BuiltIn{.name = "Bounding Box", .caption = "Bounding Box", .text = "120.0 x 40.5 x 12.0"}));

TEST_F(CellTextTest, CountsTheItem) {
    row_.quantity = 12;
    EXPECT_EQ(cell("QEMA_Quantity"), "12");
}

TEST_F(CellTextTest, FindsWhateverElseTheKeyNamesInTheProperties) {
    EXPECT_EQ(cell("QEMA_Colour"), "red");
    EXPECT_EQ(cell("QEMA_Part Number"), "B-1");
    EXPECT_EQ(cell("QEMA_Size"), "");
    EXPECT_EQ(cell("QEMA_quantity"), "");
    EXPECT_EQ(cell("QEMA_"), "");
}

TEST_F(CellTextTest, TakesTheLastOfSeveralPropertiesOfOneKey) {
    row_.properties = {{"QEMA_Colour", "red"}, {"QEMA_Colour", "blue"}, {"QEMA_Size", "M8"}};
    EXPECT_EQ(cell("QEMA_Colour"), "blue");
}

TEST_F(CellTextTest, DistinguishesColumnsByWhatFollowsFiveCharacters) {
    EXPECT_EQ(cell("XXXX-Mass"), "0.157");
    EXPECT_EQ(cell("Produce"), "");
}

TEST_F(CellTextTest, ThrowsForAKeyThatIsShorterThanThePrefix) {
    EXPECT_EQ(test_support::thrownBy([this] { cell("Mass"); }),
              "out_of_range: invalid string position");
}

TEST_F(CellTextTest, ReadsTheDescriptionAgain) {
    row_.component->description("***different***big");
    EXPECT_EQ(cell("QEMA_Description"), "***different***big");
}

TEST(CellText, OfAComponentWithoutMaterialIsEmpty) {
    const OpenDesign design("Block  box=1x1x1 material=none");
    BomModel model;
    EXPECT_EQ(bomCellValue(walkOccurrences(model, design.occurrences(), 1).at(0),
                           "QEMA_Physical Material"),
              "");
}

}  // namespace
}  // namespace tarnix
