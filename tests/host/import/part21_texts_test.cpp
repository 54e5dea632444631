#include "host/import/reader/part21_texts.h"

#include <gtest/gtest.h>

namespace {

using step::Part21Texts;

std::optional<std::string> nameIn(const std::string& literal) {
    return Part21Texts("#7=PRODUCT('id','" + literal + "','',(#8));").text(7, 1);
}

TEST(Part21Texts, IdNameAndDescriptionAreTheFirstParameters) {
    const Part21Texts texts(
        "#1=APPLICATION_CONTEXT('x');\n#7 = PRODUCT ( 'P-1', 'Plate', 'of steel', (#8) ) ;");

    EXPECT_EQ(texts.text(7, 0), "P-1");
    EXPECT_EQ(texts.text(7, 1), "Plate");
    EXPECT_EQ(texts.text(7, 2), "of steel");
    EXPECT_EQ(texts.text(1, 0), std::nullopt);
}

TEST(Part21Texts, AnOmittedDescriptionIsEmpty) {
    EXPECT_EQ(Part21Texts("#7=PRODUCT('a','b',$,(#8));").text(7, 2), "");
}

TEST(Part21Texts, TheUnicodeEscapeIsRead) {
    EXPECT_EQ(nameIn("\\X2\\92FC\\X0\\ a\\X2\\0159\\X0\\"), "鋼 ař");
}

TEST(Part21Texts, SurrogatePairsAndTheLongEscapeAreRead) {
    EXPECT_EQ(nameIn("\\X2\\D83DDD29\\X0\\"), "🔩");
    EXPECT_EQ(nameIn("\\X4\\0001F529\\X0\\"), "🔩");
}

TEST(Part21Texts, EscapesOfCodesThatAreNoCharactersAreReplaced) {
    EXPECT_EQ(nameIn("\\X4\\00033726\\X0\\\\X4\\7FFFFFFF\\X0\\"), "\U00033726\uFFFD");
    EXPECT_EQ(nameIn("\\X2\\D83D\\X0\\x"), "\uFFFDx");
}

TEST(Part21Texts, TheByteEscapeIsLatin) { EXPECT_EQ(nameIn("Gr\\X\\F6\\X\\DFe"), "Größe"); }

TEST(Part21Texts, ByteEscapesOfChineseCharactersAreRead) {
    EXPECT_EQ(nameIn("SOP8_\\X\\CB\\X\\DC\\X\\CC\\X\\E5"), "SOP8_塑体");
}

TEST(Part21Texts, ThePageEscapeIsRead) {
    EXPECT_EQ(nameIn("\\S\\|ber"), "über");
    EXPECT_EQ(nameIn("\\PB\\\\S\\x"), "ř");
}

TEST(Part21Texts, DoubledQuotesAndBackslashesAreSingle) {
    EXPECT_EQ(nameIn("5'' C:\\\\x"), "5' C:\\x");
}

TEST(Part21Texts, ABrokenEscapeStaysAsItStands) { EXPECT_EQ(nameIn("a\\X\\G1"), "a\\X\\G1"); }

TEST(Part21Texts, ALiteralRunsOverTheEndOfALine) { EXPECT_EQ(nameIn("Ab\r\ncd"), "Abcd"); }

TEST(Part21Texts, Utf8StaysBesideOtherBytes) {
    const Part21Texts texts("#1=PRODUCT('Dět','','',());#2=PRODUCT('\xC4\xE5\xF2\x31','','',());");

    EXPECT_EQ(texts.text(1, 0), "Dět");
    EXPECT_EQ(texts.text(2, 0), "Дет1");
}

TEST(Part21Texts, CommentsAndOtherLiteralsHideNothing) {
    const Part21Texts texts(
        "/* #5=PRODUCT('no','','',()); */ #6=X('#5=PRODUCT(''no'','''','''',())');\n"
        "#7=/*a*/PRODUCT('no','','',());#8=PRODUCT('yes','(','',(#1,#2));");

    EXPECT_EQ(texts.text(5, 0), std::nullopt);
    EXPECT_EQ(texts.text(8, 0), "yes");
    EXPECT_EQ(texts.text(8, 1), "(");
}

TEST(Part21Texts, AFileThatEndsWithinALiteralIsReadToItsEnd) {
    EXPECT_EQ(Part21Texts("#7=PRODUCT('P-1','Pla").text(7, 1), "Pla");
}

TEST(Part21Texts, MaterialNamesAreRead) {
    EXPECT_EQ(Part21Texts("#3=DESCRIPTIVE_REPRESENTATION_ITEM('Ocel','');").text(3, 0), "Ocel");
}

}  // namespace
