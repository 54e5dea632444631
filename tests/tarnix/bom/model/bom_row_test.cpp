#include "tarnix/bom/model/bom_row.h"

#include <gtest/gtest.h>

namespace tarnix {
namespace {

BomRow rowWith(std::vector<PropertyEntry> properties) {
    BomRow row;
    row.properties = std::move(properties);
    return row;
}

TEST(IsPropertySet, NeedsExactlyOne) {
    const BomRow row = rowWith({{"Buy", "1"}, {"Produce", "0"}, {"Divided", "1 "}, {"AsPart", ""}});
    EXPECT_TRUE(isPropertySet(row, "Buy"));
    EXPECT_FALSE(isPropertySet(row, "Produce"));
    EXPECT_FALSE(isPropertySet(row, "Divided"));
    EXPECT_FALSE(isPropertySet(row, "AsPart"));
    EXPECT_FALSE(isPropertySet(row, "Reference"));
}

TEST(IsPropertySet, SearchesPastAnEntryOfTheKeyWithAnotherValue) {
    EXPECT_TRUE(isPropertySet(rowWith({{"Buy", "0"}, {"Buy", "1"}}), "Buy"));
}

TEST(FirstSetProperty, IsTheFirstInTheOrderOfTheEntries) {
    EXPECT_EQ(firstSetProperty(rowWith({{"Produce", "0"}, {"Divided", "1"}, {"Buy", "1"}})),
              "Divided");
}

TEST(FirstSetProperty, IsEmptyWhereNothingIsSet) {
    EXPECT_EQ(firstSetProperty(rowWith({{"Produce", "0"}, {"QEMA_Colour", "red"}})), "");
    EXPECT_EQ(firstSetProperty(rowWith({})), "");
}

TEST(FirstSetProperty, IsACustomPropertyOfOneThatComesFirst) {
    EXPECT_EQ(firstSetProperty(rowWith({{"QEMA_Count", "1"}, {"Reference", "1"}})), "QEMA_Count");
}

TEST(FirstSetProperty, IsAPartNumberOfOne) {
    EXPECT_EQ(firstSetProperty(rowWith({{kPartNumberKey, "1"}, {"Reference", "1"}})),
              "QEMA_Part Number");
}

TEST(FirstSetProperty, IsANameOfOne) {
    EXPECT_EQ(firstSetProperty(rowWith({{kPartNameKey, "1"}, {"Reference", "1"}})),
              "QEMA_Part Name");
}

TEST(FirstSetProperty, IsADescriptionOfOne) {
    EXPECT_EQ(firstSetProperty(rowWith({{kDescriptionKey, "1"}, {"Reference", "1"}})),
              "QEMA_Description");
}

}  // namespace
}  // namespace tarnix
