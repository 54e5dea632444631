#include "tests/parts/drawn_list.h"

#include "parts/bom_structure.h"

#include <gtest/gtest.h>

using parts::BomStructure;
using parts::hiddenStructure;
using parts::propertyOf;
using parts::structureOf;
using test_support::drawn;

namespace {

host::ComponentData component(const std::string& line) { return drawn(line).components[1]; }

}  // namespace

TEST(BomStructure, IsTheOneThatIsSet) {
    EXPECT_EQ(structureOf(component("Motor  structure=Buy")), BomStructure::Buy);
    EXPECT_EQ(structureOf(component("Motor  structure=Reference")), BomStructure::Reference);
}

TEST(BomStructure, IsProduceWhereNoneIsSet) {
    EXPECT_EQ(structureOf(component("Motor")), BomStructure::Produce);
}

TEST(BomStructure, ACustomPropertyWithTheValueOneBeforeItHidesIt) {
    const host::ComponentData motor = component("Motor  property=Spare/1 structure=Reference");

    EXPECT_EQ(structureOf(motor), BomStructure::Produce);
    EXPECT_EQ(hiddenStructure(motor), BomStructure::Reference);
}

TEST(BomStructure, ACustomPropertyAfterItHidesNothing) {
    const host::ComponentData motor = component("Motor  structure=Reference property=Spare/1");

    EXPECT_EQ(structureOf(motor), BomStructure::Reference);
    EXPECT_EQ(hiddenStructure(motor), std::nullopt);
}

TEST(BomStructure, APartNumberOrADescriptionOfOneHidesItToo) {
    EXPECT_EQ(structureOf(component("Motor  number=1 structure=Divided")), BomStructure::Produce);
    EXPECT_EQ(structureOf(component("Motor  description=1 structure=Divided")),
              BomStructure::Produce);
}

TEST(BomStructure, AttributesOfOtherGroupsDoNotCount) {
    EXPECT_EQ(structureOf(component("Motor  attribute=Other/Reference/1")), BomStructure::Produce);
}

TEST(CustomProperty, IsFoundByItsNameWithoutThePrefix) {
    EXPECT_EQ(propertyOf(component("Motor  property=Colour/red"), "Colour"), "red");
    EXPECT_EQ(propertyOf(component("Motor  property=Colour/red"), "colour"), std::nullopt);
}

TEST(CustomProperty, CannotReplaceWhatTheModelItselfHolds) {
    EXPECT_EQ(propertyOf(component("Motor  property=Description/red"), "Description"),
              std::nullopt);
}
