#include "tarnix/bom/model/columns.h"
#include "tarnix/bom/model/walk.h"

#include "tests/tarnix/bom/model/open_design.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
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

TEST(Label, HasItsUnitAfterFourWords) {
    EXPECT_EQ(labelWithUnit("Mass"), "Mass [kg]");
    EXPECT_EQ(labelWithUnit("Area"), "Area [cm\xC2\xB2]");
    EXPECT_EQ(labelWithUnit("Density"), "Density [kg/m\xC2\xB3]");
    EXPECT_EQ(labelWithUnit("Volume"), "Volume [cm\xC2\xB3]");
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

TEST_F(CellTextTest, NamesAndDescribesTheComponent) {
    EXPECT_EQ(cell("QEMA_Part Name"), "Block");
    EXPECT_EQ(cell("QEMA_Description"), "big");
    EXPECT_EQ(cell("QEMA_Physical Material"), "Al");
}

TEST_F(CellTextTest, CountsTheItem) {
    row_.quantity = 12;
    EXPECT_EQ(cell("QEMA_Quantity"), "12");
}

TEST_F(CellTextTest, MeasuresTheComponent) {
    EXPECT_EQ(cell("QEMA_Area"), "135.72");
    EXPECT_EQ(cell("QEMA_Volume"), "58.320");
    EXPECT_EQ(cell("QEMA_Mass"), "0.157");
    EXPECT_EQ(cell("QEMA_Density"), "2700.00");
}

TEST_F(CellTextTest, ShowsTheBoxInMillimetresAlongTheAxes) {
    EXPECT_EQ(cell("QEMA_Length"), "120.0");
    EXPECT_EQ(cell("QEMA_Width"), "40.5");
    EXPECT_EQ(cell("QEMA_Height"), "12.0");
    EXPECT_EQ(cell("QEMA_Bounding Box"), "120.0 x 40.5 x 12.0");
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
    try {
        cell("Mass");
        FAIL() << "nothing was thrown";
    } catch (const std::out_of_range& thrown) {
        EXPECT_STREQ(thrown.what(), "invalid string position");
    }
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
