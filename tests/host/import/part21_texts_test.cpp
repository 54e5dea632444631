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

struct Literal {
    const char* rule;  ///< names the test
    const char* written;
    const char* read;
};

class Part21Literal : public testing::TestWithParam<Literal> {};

TEST_P(Part21Literal, IsRead) { EXPECT_EQ(nameIn(GetParam().written), GetParam().read); }

constexpr Literal kLiterals[] = {
    {"UnicodeEscape", "\\X2\\92FC\\X0\\ a\\X2\\0159\\X0\\", "鋼 ař"},
    {"SurrogatePair", "\\X2\\D83DDD29\\X0\\", "🔩"},
    {"LongUnicodeEscape", "\\X4\\0001F529\\X0\\", "🔩"},
    {"CodesBeyondUnicodeAreReplaced", "\\X4\\00033726\\X0\\\\X4\\7FFFFFFF\\X0\\",
     "\U00033726\uFFFD"},
    {"HalfASurrogatePairIsReplaced", "\\X2\\D83D\\X0\\x", "\uFFFDx"},
    {"ByteEscapeIsLatin", "Gr\\X\\F6\\X\\DFe", "Größe"},
    {"ByteEscapesOfChineseCharacters", "SOP8_\\X\\CB\\X\\DC\\X\\CC\\X\\E5", "SOP8_塑体"},
    {"PageEscape", "\\S\\|ber", "über"},
    {"PageEscapeOfAnotherPage", "\\PB\\\\S\\x", "ř"},
    {"DoubledQuotesAndBackslashesAreSingle", "5'' C:\\\\x", "5' C:\\x"},
    {"ABrokenEscapeIsKept", "a\\X\\G1", "a\\X\\G1"},
    {"ALiteralRunsOverTheEndOfALine", "Ab\r\ncd", "Abcd"},
};

INSTANTIATE_TEST_SUITE_P(Part21, Part21Literal, testing::ValuesIn(kLiterals),
                         [](const auto& each) { return std::string(each.param.rule); });

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
