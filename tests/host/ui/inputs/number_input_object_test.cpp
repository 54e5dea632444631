#include "tests/host/ui/host_test.h"

#include "host/base/last_error.h"
#include "host/session/dialog_view.h"

#include <numbers>

namespace host {
namespace {

using namespace adsk::core;

/// Inputs for numbers, of which the first test names each.
class NumberInputs : public HostTest {
protected:
    NumberInputs() {
        all = openWith([](const Ptr<CommandInputs>& inputs) {
            inputs->addValueInput("value", "Value", "mm", ValueInput::createByReal(2.54));
            inputs->addDistanceValueCommandInput("distance", "Distance",
                                                 ValueInput::createByString("1 in"));
            inputs->addAngleValueCommandInput("angle", "Angle", ValueInput::createByString("90"));
            inputs->addIntegerSpinnerCommandInput("count", "Count", 1, 5, 2, 2);
            inputs->addFloatSpinnerCommandInput("width", "Width", "mm", 0, 10, 5, 1);
        });
    }

    template <class T>
    Ptr<T> input(const std::string& id) const {
        return all->itemById(id);
    }

    Ptr<CommandInputs> all;
};

// CommandInputs_addValueInput and its like.
TEST_F(NumberInputs, BeginWithTheirValueAndShowIt) {
    const auto value = input<ValueCommandInput>("value");
    EXPECT_DOUBLE_EQ(value->value(), 2.54);
    EXPECT_EQ(value->expression(), "25.400 mm");
    EXPECT_EQ(value->unitType(), "mm");
    EXPECT_DOUBLE_EQ(input<DistanceValueCommandInput>("distance")->value(), 2.54);
    EXPECT_EQ(input<DistanceValueCommandInput>("distance")->expression(), "1 in");
    EXPECT_DOUBLE_EQ(input<AngleValueCommandInput>("angle")->value(), std::numbers::pi / 2);
    EXPECT_EQ(input<IntegerSpinnerCommandInput>("count")->value(), 2);
    EXPECT_EQ(input<IntegerSpinnerCommandInput>("count")->maximumValue(), 5);
    EXPECT_EQ(input<FloatSpinnerCommandInput>("width")->expression(), "10.000 mm");
    EXPECT_EQ(input<FloatSpinnerCommandInput>("width")->spinStep(), 5);
    EXPECT_EQ(readDialog().inputs[3].value, "2");
}

// ValueCommandInput_expression: what is typed is evaluated.
TEST_F(NumberInputs, WhatTheUserTypesIsEvaluated) {
    pasteText(all->itemById("value"), "2 in + 4");

    EXPECT_EQ(noted(), "value");
    EXPECT_DOUBLE_EQ(input<ValueCommandInput>("value")->value(), 5.48);
    EXPECT_EQ(input<ValueCommandInput>("value")->expression(), "2 in + 4");
}

// ValueCommandInput_isValidExpression: OK waits for an expression that has a value.
TEST_F(NumberInputs, OkIsRefusedWhileAnExpressionHasNoValue) {
    pasteText(all->itemById("value"), "2 deg");

    EXPECT_FALSE(input<ValueCommandInput>("value")->isValidExpression());
    EXPECT_EQ(input<ValueCommandInput>("value")->value(), 0);
    EXPECT_EQ(misuseOf(pressOk), "cannot press OK: the number \"value\" has no value: 2 deg");

    EXPECT_TRUE(input<ValueCommandInput>("value")->unitType("deg"));
    EXPECT_TRUE(input<ValueCommandInput>("value")->isValidExpression());
    EXPECT_FALSE(input<ValueCommandInput>("value")->unitType("furlong"));
    EXPECT_EQ(misuseOf(pressOk), "");
}

// IntegerSpinnerCommandInput, FloatSpinnerCommandInput: limits and steps.
TEST_F(NumberInputs, SpinnersStopAtTheirLimits) {
    spin(all->itemById("count"), 1);
    EXPECT_EQ(input<IntegerSpinnerCommandInput>("count")->value(), 4);
    spin(all->itemById("count"), 1);
    EXPECT_EQ(input<IntegerSpinnerCommandInput>("count")->value(), 5);
    spin(all->itemById("width"), -1);
    EXPECT_DOUBLE_EQ(input<FloatSpinnerCommandInput>("width")->value(), 0.5);

    EXPECT_FALSE(input<IntegerSpinnerCommandInput>("count")->value(6));
    EXPECT_FALSE(input<FloatSpinnerCommandInput>("width")->spinStep(0));
    pasteText(all->itemById("count"), "2.5");
    EXPECT_EQ(misuseOf(pressOk), "cannot press OK: the number \"count\" has no value: 2.5");
    EXPECT_EQ(misuseOf([this] { spin(all->itemById("value"), 1); }),
              "cannot spin \"value\": it has no arrows");
}

TEST_F(NumberInputs, AreRefusedWithoutANumberAndAKnownUnit) {
    const std::size_t count = all->count();

    EXPECT_FALSE(all->addValueInput("a", "", "furlong", ValueInput::createByReal(1)));
    EXPECT_FALSE(all->addValueInput("a", "", "mm", nullptr));
    EXPECT_FALSE(all->addValueInput("a", "", "mm", ValueInput::createByBoolean(true)));
    EXPECT_EQ(lastError().description,
              "CommandInputs::addValueInput: the value is neither a number nor an expression");
    EXPECT_FALSE(all->addIntegerSpinnerCommandInput("a", "", 1, 5, 0, 2));
    EXPECT_FALSE(all->addFloatSpinnerCommandInput("a", "", "mm", 1, 5, 1, 7));

    EXPECT_EQ(all->count(), count);
}

}  // namespace
}  // namespace host
