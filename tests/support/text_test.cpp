#include "tests/support/text.h"

#include <gtest/gtest.h>

using test_support::text;

TEST(Text, MarginAndOuterLineBreaksGo) {
    EXPECT_EQ(text(R"(
        One
          Two
        Three
        )"),
              "One\n  Two\nThree");
}

TEST(Text, BlankLinesInsideStay) {
    EXPECT_EQ(text(R"(
        One

        Two)"),
              "One\n\nTwo");
}

TEST(Text, AnEmptyStringStaysEmpty) { EXPECT_EQ(text(""), ""); }

TEST(Text, ALineThatBeginsAtOnceHasItsOwnMargin) { EXPECT_EQ(text("One"), "One"); }
