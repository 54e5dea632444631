#include "tarnix/text/ids.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tarnix {
namespace {

TEST(Id, EndsInTheNumberAfterTheLastUnderscore) {
    EXPECT_EQ(idNumber("modelPartNumberOcc_12"), 12);
    EXPECT_EQ(idNumber("QEMA_Part_Name_3"), 3);
    EXPECT_EQ(idTail("QEMA_Part_Name_3"), "3");
    EXPECT_EQ(idBase("QEMA_Part_Name_3"), "QEMA_Part_Name");
}

TEST(Id, WithoutUnderscoreIsItsOwnTailAndBase) {
    EXPECT_EQ(idTail("APITabBar"), "APITabBar");
    EXPECT_EQ(idBase("APITabBar"), "APITabBar");
    EXPECT_EQ(idNumber("7"), 7);
}

TEST(Id, ThrowsWhereNoNumberFollowsTheLastUnderscore) {
    EXPECT_THROW(idNumber("QEMA_btnExportXls"), std::invalid_argument);
    EXPECT_THROW(idNumber("positionOcc_"), std::invalid_argument);
}

}  // namespace
}  // namespace tarnix
