#include "workbench/output/display_text.h"

#include <gtest/gtest.h>

using workbench::displayWidth;
using workbench::fitted;
using workbench::looksLikeNumber;
using workbench::printable;
using workbench::printableLines;

TEST(Printable, LeavesUtf8AsItIs) {
    EXPECT_EQ(printable("Schraube \xC3\x9C \xE9\x8B\xBC \xF0\x9F\x94\xA9"),
              "Schraube \xC3\x9C \xE9\x8B\xBC \xF0\x9F\x94\xA9");
}

TEST(Printable, EscapeSequencesAreReplaced) {
    EXPECT_EQ(printable("a\x1B[2Jb"), "a\xEF\xBF\xBD[2Jb");
}

TEST(Printable, ControlCharactersOfTheSecondSetAreReplaced) {
    EXPECT_EQ(printable("a\xC2\x9B"
                        "2Jb"),
              "a\xEF\xBF\xBD"
              "2Jb");
}

TEST(Printable, LineEndsAndTabsBecomeSpaces) { EXPECT_EQ(printable("a\r\nb\tc"), "a  b c"); }

TEST(Printable, EachByteThatIsNotUtf8IsReplaced) {
    EXPECT_EQ(printable("\xC4\xD0"), "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Printable, ACharacterCutShortIsReplaced) {
    EXPECT_EQ(printable("a\xE9\x8B"), "a\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Printable, OverlongFormsAndSurrogatesAreReplaced) {
    EXPECT_EQ(printable("\xE0\x80\xAF"), "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(printable("\xED\xA0\x80"), "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Printable, CharactersThatChangeTheDirectionAreReplaced) {
    // Right-to-left override, and the isolate of first strong direction.
    EXPECT_EQ(printable("a\xE2\x80\xAE"
                        "b\xE2\x81\xA8"
                        "c"),
              "a\xEF\xBF\xBD"
              "b\xEF\xBF\xBD"
              "c");
    // The joiner of characters stays.
    EXPECT_EQ(printable("a\xE2\x80\x8D"), "a\xE2\x80\x8D");
}

TEST(PrintableLines, KeepLineEndsAndTabs) {
    EXPECT_EQ(printableLines("a\x1B\tb\n\nc"), "a\xEF\xBF\xBD\tb\n\nc");
    EXPECT_EQ(printableLines("a\n"), "a\n");
}

TEST(Fitted, CutsWhatIsWiderThanTheTerminal) {
    EXPECT_EQ(fitted("gearbox", 7), "gearbox");
    EXPECT_EQ(fitted("gearbox", 6), "gea...");
    EXPECT_EQ(fitted("\xE9\x8B\xBC\xE9\x8B\xBC\xE9\x8B\xBC", 5), "\xE9\x8B\xBC...");
    EXPECT_EQ(fitted("gearbox", 2), "");
}

TEST(DisplayWidth, EastAsianCharactersTakeTwoColumns) {
    EXPECT_EQ(displayWidth("\xE9\x8B\xBC"), 2U);
    EXPECT_EQ(displayWidth("\xEF\xBC\xA1"), 2U);
    EXPECT_EQ(displayWidth("\xED\x95\x9C"), 2U);
}

TEST(DisplayWidth, TreeDrawingTakesOneColumnACharacter) {
    EXPECT_EQ(displayWidth("\xE2\x96\x91    \xE2\x94\x9C\xE2\x94\x80\xE2\x94\x80"), 8U);
}

TEST(DisplayWidth, CombiningMarksTakeNoColumn) { EXPECT_EQ(displayWidth("e\xCC\x81"), 1U); }

TEST(DisplayWidth, LatinAndCyrillicTakeOneColumn) {
    EXPECT_EQ(displayWidth("\xC3\xA9"), 1U);
    EXPECT_EQ(displayWidth("\xD0\xA1\xD0\xB1"), 2U);
}

TEST(LooksLikeNumber, TakesDigitsWithOnePoint) {
    EXPECT_TRUE(looksLikeNumber("12"));
    EXPECT_TRUE(looksLikeNumber("-0.785"));
}

TEST(LooksLikeNumber, RefusesPositionsAndTexts) {
    EXPECT_FALSE(looksLikeNumber("1.2.3"));
    EXPECT_FALSE(looksLikeNumber("M8"));
    EXPECT_FALSE(looksLikeNumber("."));
    EXPECT_FALSE(looksLikeNumber(""));
}
