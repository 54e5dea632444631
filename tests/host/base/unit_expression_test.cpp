#include "host/base/unit_expression.h"

#include <gtest/gtest.h>

#include <numbers>
#include <string>

namespace host {
namespace {

std::string complaint(const std::string& expression, const std::string& unit = "mm") {
    try {
        evaluateExpression(expression, unit);
    } catch (const ExpressionError& error) {
        return error.what();
    }
    return "none";
}

// UnitsManager_evaluateExpression: the result is in the host's units, cm for a length.
TEST(UnitExpression, PlainNumbersCountInTheUnit) {
    EXPECT_DOUBLE_EQ(evaluateExpression("25", "mm"), 2.5);
    EXPECT_DOUBLE_EQ(evaluateExpression("2 in + 4", "mm"), 5.08 + 0.4);
    EXPECT_DOUBLE_EQ(evaluateExpression("2 * 3", "mm"), 0.6);
    EXPECT_DOUBLE_EQ(evaluateExpression("3 * 2 in", "mm"), 15.24);
    EXPECT_DOUBLE_EQ(evaluateExpression("7", ""), 7);
    EXPECT_DOUBLE_EQ(evaluateExpression("180", "deg"), std::numbers::pi);
}

TEST(UnitExpression, OperatorsBindAsInAlgebra) {
    EXPECT_DOUBLE_EQ(evaluateExpression("1 + 2 * 3 ^ 2", ""), 19);
    EXPECT_DOUBLE_EQ(evaluateExpression("(1 + 2) * 3", ""), 9);
    EXPECT_DOUBLE_EQ(evaluateExpression("-2 ^ 2", ""), -4);
    EXPECT_DOUBLE_EQ(evaluateExpression("10 / 4 - -1", ""), 3.5);
    EXPECT_DOUBLE_EQ(evaluateExpression(" 1.5e1 cm ", "mm"), 15);
}

TEST(UnitExpression, UnitsAreMultipliedAndDivided) {
    EXPECT_DOUBLE_EQ(evaluateExpression("2 cm * 3 cm", "cm^2"), 6);
    EXPECT_DOUBLE_EQ(evaluateExpression("2 cm^2", "mm^2"), 2);
    EXPECT_DOUBLE_EQ(evaluateExpression("1 m / 50 cm", ""), 2);
    EXPECT_DOUBLE_EQ(evaluateExpression("1 g / cm^3", "kg/m^3"), 0.001);
    EXPECT_DOUBLE_EQ(evaluateExpression("6' + 2\"", "in"), 74 * 2.54);
}

TEST(UnitExpression, FunctionsTakeAnglesAndRoots) {
    EXPECT_NEAR(evaluateExpression("sin(30 deg)", ""), 0.5, 1e-12);
    EXPECT_NEAR(evaluateExpression("atan(1)", "deg"), std::numbers::pi / 4, 1e-12);
    EXPECT_DOUBLE_EQ(evaluateExpression("sqrt(9 cm^2)", "mm"), 3);
    EXPECT_DOUBLE_EQ(evaluateExpression("round(2.6) + PI - PI", ""), 3);
}

// UnitsManager_formatInternalValue.
TEST(UnitExpression, ValuesAreFormattedInTheirUnit) {
    EXPECT_EQ(formatQuantity(2.54, "mm", true), "25.400 mm");
    EXPECT_EQ(formatQuantity(2.54, "in", false), "1.000");
    EXPECT_EQ(formatQuantity(30, "", true), "30");
    EXPECT_EQ(formatQuantity(-0.25, "", true), "-0.25");
    EXPECT_EQ(formatQuantity(std::numbers::pi, "deg", true), "180.000 deg");
}

TEST(UnitExpression, WhatIsWrongIsNamed) {
    EXPECT_EQ(complaint("2 +"), "\"2 +\": a value is missing at the end");
    EXPECT_EQ(complaint("2 furlong"), "\"2 furlong\": not expected at \"furlong\"");
    EXPECT_EQ(complaint("(2"), "\"(2\": a parenthesis is missing at the end");
    EXPECT_EQ(complaint("1 / 0"), "\"1 / 0\": a division by zero at the end");
    EXPECT_EQ(complaint("2 mm + 3 deg"),
              "\"2 mm + 3 deg\": the units before and after the sign differ at the end");
    EXPECT_EQ(complaint("2 deg"), "\"2 deg\" is no value in \"mm\"");
    EXPECT_EQ(complaint("2", "furlong"), "\"furlong\": unknown at \"furlong\"");
    EXPECT_NE(complaint(std::string(1000, '(')).find("nested too deeply"), std::string::npos);
}

}  // namespace
}  // namespace host
