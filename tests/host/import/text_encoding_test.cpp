#include "host/import/reader/text_encoding.h"

#include <gtest/gtest.h>

namespace {

using step::cleaned;
using step::Encoding;
using step::guessEncoding;
using step::guessEscapedEncoding;
using step::toUtf8;

TEST(TextEncoding, WholeWordsOfCyrillicBytesAreWindows1251) {
    EXPECT_EQ(guessEncoding({"\xC4\xE5\xF2\x38", "\xD1\xE1\xEE\xF0\xEA\xE0\x31"}),
              Encoding::Cyrillic);
}

TEST(TextEncoding, HighBytesWithinLatinWordsAreLatin) {
    EXPECT_EQ(guessEncoding({"Gr\xF6\xDF"
                             "e",
                             "\xDC"
                             "bung"}),
              Encoding::Latin1);
}

TEST(TextEncoding, OneInvalidStringRulesOutAnEncodingForAll) {
    EXPECT_EQ(guessEncoding({"\xC4\xE5\xF2\x38", "na\xEFve"}), Encoding::Latin1);
}

TEST(TextEncoding, WholeChineseCharactersAreGbk) {
    EXPECT_EQ(guessEncoding({"SOP8_\xCB\xDC\xCC\xE5", "\xB5\xE7\xD7\xE8"}), Encoding::Gbk);
}

TEST(TextEncoding, AnEscapedGermanWordStaysLatin) {
    EXPECT_EQ(guessEscapedEncoding({"\xF6\xDF"}), Encoding::Latin1);
}

TEST(TextEncoding, EscapedBytesOfTwoChineseCharactersAreGbk) {
    EXPECT_EQ(guessEscapedEncoding({"\xCB\xDC\xCC\xE5", "\xBD\xC5"}), Encoding::Gbk);
}

TEST(TextEncoding, NoStringsAreLatin) { EXPECT_EQ(guessEncoding({}), Encoding::Latin1); }

TEST(TextEncoding, Windows1251IsRead) {
    EXPECT_EQ(toUtf8("\xC4\xE5\xF2\x38", Encoding::Cyrillic), "Дет8");
}

TEST(TextEncoding, GbkIsRead) { EXPECT_EQ(toUtf8("\xCB\xDC\xCC\xE5", Encoding::Gbk), "塑体"); }

TEST(TextEncoding, LatinReadsAnyByte) {
    EXPECT_EQ(toUtf8("\xE9\x80", Encoding::Latin1), "é\xC2\x80");
}

TEST(TextEncoding, BytesThatDoNotFitAreReadAsLatin) {
    EXPECT_EQ(toUtf8("\xCB", Encoding::Gbk), "Ë");
    EXPECT_EQ(toUtf8("\xCB", Encoding::Utf8), "Ë");
}

TEST(TextEncoding, OverlongSurrogateAndTruncatedSequencesAreNotUtf8) {
    EXPECT_TRUE(step::isUtf8("Příruba 軸受 \xF0\x9F\x94\xA9"));
    EXPECT_FALSE(step::isUtf8("\xC0\xAF"));
    EXPECT_FALSE(step::isUtf8("\xED\xA0\x80"));
    EXPECT_FALSE(step::isUtf8("\xE8\xBB"));
    EXPECT_FALSE(step::isUtf8("\xF4\x90\x80\x80"));
}

TEST(TextEncoding, ControlCharactersBecomeSpaces) {
    EXPECT_EQ(cleaned("a\x01"
                      "b\tc\x7F"
                      "d\xC2\x85"
                      "e"),
              "a b c d e");
}

TEST(TextEncoding, NonCharactersBecomeTheReplacementCharacter) {
    EXPECT_EQ(cleaned("a\xEF\xBF\xBE\xEF\xB7\x90z"), "a\uFFFD\uFFFDz");
}

TEST(TextEncoding, SpacesAtBothEndsAreTrimmed) {
    EXPECT_EQ(cleaned("  a b\r\n"), "a b");
    EXPECT_EQ(cleaned(" "), "");
}

}  // namespace
