#include "tarnix/text/numbers.h"

#include "tests/support/comma_locale.h"
#include "tests/support/thrown.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <limits>
#include <string>
#include <tuple>

namespace tarnix {
namespace {

using test_support::thrownBy;

std::string thrownByInt(const std::string& text) {
    return thrownBy([&text] { parseInt(text); });
}

std::string thrownByDouble(const std::string& text) {
    return thrownBy([&text] { parseDouble(text); });
}

const char* const kInvalidInt = "invalid_argument: invalid stoi argument";
const char* const kIntOutOfRange = "out_of_range: stoi argument out of range";
const char* const kInvalidDouble = "invalid_argument: invalid stod argument";
const char* const kDoubleOutOfRange = "out_of_range: stod argument out of range";

TEST(ParseInt, ReadsTheWholeRange) {
    EXPECT_EQ(parseInt("0"), 0);
    EXPECT_EQ(parseInt("2147483647"), 2147483647);
    EXPECT_EQ(parseInt("-2147483648"), std::numeric_limits<int>::min());
}

TEST(ParseInt, SkipsLeadingSpacesAndTakesASign) {
    EXPECT_EQ(parseInt(" \t\n\v\f\r7"), 7);
    EXPECT_EQ(parseInt("+5"), 5);
    EXPECT_EQ(parseInt(" -5"), -5);
}

TEST(ParseInt, LeavesAloneWhatFollowsTheDigits) {
    EXPECT_EQ(parseInt("12abc"), 12);
    EXPECT_EQ(parseInt("0x1A"), 0);
    EXPECT_EQ(parseInt("3.9"), 3);
}

/// How a text is read, the text, and what is thrown for it.
using Unreadable = std::tuple<std::string (*)(const std::string&), const char*, const char*>;

class UnreadableNumber : public testing::TestWithParam<Unreadable> {};

TEST_P(UnreadableNumber, Throws) {
    const auto& [thrownFor, text, thrown] = GetParam();
    EXPECT_EQ(thrownFor(text), thrown);
}

INSTANTIATE_TEST_SUITE_P(WithoutAnInt, UnreadableNumber,
                         testing::Combine(testing::Values(thrownByInt),
                                          testing::Values("", "  ", "btnExportXls", "+", "+-5",
                                                          "- 5"),
                                          testing::Values(kInvalidInt)));

INSTANTIATE_TEST_SUITE_P(BeyondTheRangeOfInt, UnreadableNumber,
                         testing::Combine(testing::Values(thrownByInt),
                                          testing::Values("2147483648", "-2147483649",
                                                          "99999999999999999999"),
                                          testing::Values(kIntOutOfRange)));

INSTANTIATE_TEST_SUITE_P(WithoutADouble, UnreadableNumber,
                         testing::Combine(testing::Values(thrownByDouble),
                                          testing::Values("", "M8", ".", "--1", "+-1", "-+1", "in"),
                                          testing::Values(kInvalidDouble)));

INSTANTIATE_TEST_SUITE_P(
    BeyondTheRangeOfDouble, UnreadableNumber,
    testing::Combine(testing::Values(thrownByDouble),
                     testing::Values("1e309", "-1e309", "0x1p1024", "1e-400", "1e-310",
                                     "0x.8p-1074", "1e99999999999999", "2.22507385850720119e-308",
                                     "2.22507385850720125e-308", "0x0.fffffffffffffbp-1022",
                                     "4.9406564584124654e-324"),
                     testing::Values(kDoubleOutOfRange)));

TEST(ParseDouble, ReadsDecimalNumbers) {
    EXPECT_EQ(parseDouble("12.5"), 12.5);
    EXPECT_EQ(parseDouble(".5"), 0.5);
    EXPECT_EQ(parseDouble("5."), 5);
    EXPECT_EQ(parseDouble("-0.25e2"), -25);
    EXPECT_EQ(parseDouble("1E-1x"), 0.1);
    EXPECT_EQ(parseDouble("0e9999"), 0);
    EXPECT_EQ(parseDouble("0x0p99999999999999999999"), 0);
}

TEST(ParseDouble, SkipsLeadingSpacesAndTakesASign) {
    EXPECT_EQ(parseDouble(" \t\n\v\f\r7"), 7);
    EXPECT_EQ(parseDouble("+5"), 5);
    EXPECT_TRUE(std::signbit(parseDouble("-0")));
}

TEST(ParseDouble, LeavesAloneWhatFollowsTheNumber) {
    EXPECT_EQ(parseDouble("12,5"), 12);
    EXPECT_EQ(parseDouble("1.2.3"), 1.2);
    EXPECT_EQ(parseDouble("3e"), 3);
    EXPECT_EQ(parseDouble("3e+kg"), 3);
}

TEST(ParseDouble, ReadsHexadecimalNumbers) {
    EXPECT_EQ(parseDouble("0x1A"), 26);
    EXPECT_EQ(parseDouble("-0X.8p1"), -1);
    EXPECT_EQ(parseDouble("+0x1p-2z"), 0.25);
}

TEST(ParseDouble, ReadsASubnormalNumberThatIsSpelledExactly) {
    EXPECT_EQ(parseDouble("0x1p-1074"), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(parseDouble("0x0.fffffffffffffp-1022"), std::nextafter(0x1p-1022, 0));
    EXPECT_EQ(parseDouble("0x0.30p-1070"), 0x3p-1074);
    std::string half(1100, '\0');
    half.resize(static_cast<std::size_t>(
        std::snprintf(half.data(), half.size(), "%.1080f", std::ldexp(1, -1060))));
    EXPECT_EQ(parseDouble(half), std::ldexp(1, -1060));
    half.back() = '1';
    EXPECT_EQ(thrownByDouble(half), kDoubleOutOfRange);
}

// What 53 bits hold as the smallest normal number is that, be it spelled a little smaller.
TEST(ParseDouble, ReadsWhatRoundsToTheSmallestNormalNumber) {
    EXPECT_EQ(parseDouble("0x0.fffffffffffffcp-1022"), 0x1p-1022);
    EXPECT_EQ(parseDouble("2.2250738585072013e-308"), 0x1p-1022);
}

TEST(ParseDouble, LeavesAloneAnExponentWithoutDigits) {
    EXPECT_EQ(parseDouble("0x1p+-6"), 1);
    EXPECT_EQ(parseDouble("1e+-6"), 1);
    EXPECT_EQ(parseDouble("0x1p"), 1);
    EXPECT_EQ(parseDouble("0x1p--1"), 1);
}

TEST(ParseDouble, ReadsTheZeroOfAPrefixWithoutDigits) {
    EXPECT_EQ(parseDouble("0x"), 0);
    EXPECT_EQ(parseDouble("0xz"), 0);
    EXPECT_EQ(parseDouble("0x-5"), 0);
    EXPECT_EQ(parseDouble("0xinf"), 0);
}

TEST(ParseDouble, ReadsInfinityAndNotANumber) {
    EXPECT_EQ(parseDouble("inf"), std::numeric_limits<double>::infinity());
    EXPECT_EQ(parseDouble("-INFINITYx"), -std::numeric_limits<double>::infinity());
    EXPECT_EQ(parseDouble("infinite"), std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(parseDouble("NaN")));
    EXPECT_TRUE(std::isnan(parseDouble("nan(1")));
}

TEST(ParseDouble, ReadsTheWholeRange) {
    EXPECT_EQ(parseDouble("1.7976931348623157e308"), std::numeric_limits<double>::max());
    EXPECT_EQ(parseDouble("2.2250738585072014e-308"), std::numeric_limits<double>::min());
}

TEST(FormatFixed, KeepsTheNumberOfDecimals) {
    EXPECT_EQ(formatFixed(12.345, 3), "12.345");
    EXPECT_EQ(formatFixed(0, 3), "0.000");
    EXPECT_EQ(formatFixed(120, 1), "120.0");
    EXPECT_EQ(formatFixed(7.6, 0), "8");
    EXPECT_EQ(formatFixed(-1234567.5, 1), "-1234567.5");
    EXPECT_EQ(formatFixed(-0.0, 2), "-0.00");
}

TEST(FormatFixed, RoundsTheExactBinaryValueAndTiesToEven) {
    EXPECT_EQ(formatFixed(0.125, 2), "0.12");
    EXPECT_EQ(formatFixed(0.375, 2), "0.38");
    EXPECT_EQ(formatFixed(2.675, 2),
              "2.67");  // 2.67499999999999982236431605997495353221893310546875
}

TEST(FormatFixed, WritesTheLargestNumberInFull) {
    const std::string text = formatFixed(std::numeric_limits<double>::max(), 2);
    EXPECT_EQ(text.size(), 312U);
    EXPECT_EQ(text.substr(0, 17), "17976931348623157");
    EXPECT_EQ(text.substr(309), ".00");
}

TEST(FormatFixed, NamesWhatIsNotANumber) {
    EXPECT_EQ(formatFixed(std::numeric_limits<double>::quiet_NaN(), 2), "nan");
    EXPECT_EQ(formatFixed(std::numeric_limits<double>::infinity(), 2), "inf");
    EXPECT_EQ(formatFixed(-std::numeric_limits<double>::infinity(), 2), "-inf");
}

TEST(Decimal, WritesNoGrouping) {
    EXPECT_EQ(decimal(1234567), "1234567");
    EXPECT_EQ(decimal(-1), "-1");
}

class UnderACommaLocale : public testing::Test {
private:
    test_support::CommaLocale locale_;
};

TEST_F(UnderACommaLocale, TheSystemsLocaleIsInForce) {
    EXPECT_TRUE(test_support::CommaLocale::isSystems()) << "there is no Czech locale";
}

TEST_F(UnderACommaLocale, NumbersAreWrittenWithThePoint) {
    EXPECT_EQ(formatFixed(1234567.5, 2), "1234567.50");
    EXPECT_EQ(decimal(1234567), "1234567");
}

TEST_F(UnderACommaLocale, NumbersAreReadWithThePoint) {
    EXPECT_EQ(parseDouble("1234.5"), 1234.5);
    EXPECT_EQ(parseDouble("1,5"), 1);
    EXPECT_EQ(parseInt("1.234"), 1);
}

}  // namespace
}  // namespace tarnix
