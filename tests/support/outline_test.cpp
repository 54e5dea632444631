#include "tests/support/outline.h"

#include <gtest/gtest.h>

#include <stdexcept>

using test_support::addinOutline;

TEST(AddinOutline, StructureBecomesAllFiveAttributes) {
    EXPECT_EQ(addinOutline(R"(
        Frame  structure=Divided number=F-1
          Leg)"),
              "Frame  attribute=QEMA_PropertiesAttributesGroup/Produce/0 "
              "attribute=QEMA_PropertiesAttributesGroup/Buy/0 "
              "attribute=QEMA_PropertiesAttributesGroup/AsPart/0 "
              "attribute=QEMA_PropertiesAttributesGroup/Divided/1 "
              "attribute=QEMA_PropertiesAttributesGroup/Reference/0 number=F-1\n"
              "  Leg");
}

TEST(AddinOutline, PropertyBecomesAnAttributeOfTheGroup) {
    EXPECT_EQ(addinOutline("Leg  property=Colour/red"),
              "Leg  attribute=QEMA_PropertiesAttributesGroup/QEMA_Colour/red");
}

TEST(AddinOutline, AnUnknownStructureIsRefused) {
    EXPECT_THROW(addinOutline("Leg  structure=Dividde"), std::invalid_argument);
}
