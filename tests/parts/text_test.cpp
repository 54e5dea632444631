#include "parts/formula_guard.h"
#include "parts/natural_order.h"
#include "parts/number_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

using parts::guardedFormula;
using parts::naturalOrder;
using parts::numberText;

namespace {

std::string significant(double value, int digits = 4) {
    return numberText({.value = value}, {.significantDigits = digits});
}

std::string fixed(double value, int decimals) {
    return numberText({.value = value, .decimals = decimals}, {});
}

}  // namespace

TEST(NaturalOrder, TakesNumbersByTheirValue) {
    std::vector<std::string> names = {"M10x20", "M5x8", "M5x16", "m5x12", "M", "Nut 007", "Nut 7"};

    std::ranges::sort(names, parts::NaturalLess());

    EXPECT_EQ(names, (std::vector<std::string>{"M", "M5x8", "m5x12", "M5x16", "M10x20", "Nut 007",
                                               "Nut 7"}));
}

TEST(NaturalOrder, DifferentTextsAreNeverEqual) {
    EXPECT_NE(naturalOrder("a", "A"), 0);
    EXPECT_NE(naturalOrder("7", "07"), 0);
    EXPECT_EQ(naturalOrder("M5", "M5"), 0);
}

TEST(NaturalOrder, NumbersLongerThanAnyTypeKeepTheirOrder) {
    EXPECT_LT(naturalOrder("x99999999999999999999999", "x100000000000000000000000"), 0);
}

TEST(NumberText, ASmallNumberKeepsItsSignificantDigits) {
    EXPECT_EQ(significant(0.00521488), "0.005215");
    EXPECT_EQ(significant(0.0000123456), "0.00001235");
}

TEST(NumberText, DigitsBeforeThePointAreNeverRoundedAway) {
    EXPECT_EQ(significant(1234567.8), "1234568");
    EXPECT_EQ(significant(123.456), "123.5");
}

TEST(NumberText, ZerosAtTheEndAreDropped) {
    EXPECT_EQ(significant(0.5), "0.5");
    EXPECT_EQ(significant(2), "2");
    EXPECT_EQ(significant(0.99999), "1");
    EXPECT_EQ(significant(0), "0");
    EXPECT_EQ(significant(-0.0), "0");
}

TEST(NumberText, FixedDecimalsKeepTheirZeros) {
    EXPECT_EQ(fixed(0.5, 3), "0.500");
    EXPECT_EQ(fixed(25.125, 2), "25.12");  // the nearest even one of two that are as near
    EXPECT_EQ(fixed(12, 0), "12");
    EXPECT_EQ(fixed(-0.001, 2), "0.00");
}

TEST(NumberText, ADecimalCommaTakesThePlaceOfThePoint) {
    EXPECT_EQ(numberText({.value = 1234.5, .decimals = 2}, {.decimalComma = true}), "1234,50");
}

TEST(NumberText, WhatIsNoNumberIsEmpty) {
    EXPECT_EQ(significant(std::numeric_limits<double>::quiet_NaN()), "");
    EXPECT_EQ(significant(std::numeric_limits<double>::infinity()), "");
}

TEST(FormulaGuard, MarksWhatASpreadsheetWouldRun) {
    for (const char* const text : {"=cmd|'/c calc'!A1", "+1+2", "-2+3", "@SUM(1)", "\t=1", "\r=1",
                                   "-", "+-3", "-inf", "+infinity", "-nan(cmd)", "-nan"}) {
        EXPECT_EQ(guardedFormula(text), std::string("'") + text);
    }
}

TEST(FormulaGuard, LeavesNumbersAndOtherTexts) {
    for (const char* const text : {"", "-5", "+49.5", "a=b", "007", "M5-8", "'quoted"}) {
        EXPECT_EQ(guardedFormula(text), text);
    }
}
