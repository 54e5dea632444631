#pragma once

#include <Core/CommandInput.h>

#include <string>

/// Inputs for numbers. The user types expressions, with units where the input has some.
namespace adsk::core {

/// A number that is typed as an expression; the named input classes derive from it, each from an
/// instance of its own.
template <class Input>
class ExpressionInputOf : public CommandInput {
public:
    /// The value in the host's units: cm, radians and kg; 0 while the expression is not valid.
    [[nodiscard]] virtual double value() const = 0;
    /// Replaces the expression too. False beyond the limits of an input that has some.
    virtual bool value(double value) = 0;

    /// What the field shows, such as "2 in + 4 mm".
    [[nodiscard]] virtual std::string expression() const = 0;
    /// Kept also where it is not valid, as if the user had typed it.
    virtual bool expression(const std::string& value) = 0;

    /// Whether the expression has a value of these units, within the limits of an input that has
    /// some. OK is disabled while it has none.
    [[nodiscard]] virtual bool isValidExpression() const = 0;

    /// The units that a plain number counts in; empty for a number without units.
    [[nodiscard]] virtual std::string unitType() const = 0;
};

/// A number with units.
class ValueCommandInput : public ExpressionInputOf<ValueCommandInput> {
public:
    static const char* classType();  ///< "adsk::core::ValueCommandInput"

    using ExpressionInputOf::unitType;
    /// What is shown is evaluated again in these units. False for an unknown unit.
    virtual bool unitType(const std::string& value) = 0;
};

/// A length, in the length units of the design. This host draws no manipulator in the model.
class DistanceValueCommandInput : public ExpressionInputOf<DistanceValueCommandInput> {
public:
    static const char* classType();  ///< "adsk::core::DistanceValueCommandInput"
};

/// An angle, in "deg". This host draws no manipulator in the model.
class AngleValueCommandInput : public ExpressionInputOf<AngleValueCommandInput> {
public:
    static const char* classType();  ///< "adsk::core::AngleValueCommandInput"
};

/// A whole number with arrows to count it up and down.
class IntegerSpinnerCommandInput : public CommandInput {
public:
    static const char* classType();  ///< "adsk::core::IntegerSpinnerCommandInput"

    /// The number; 0 while the user has typed something that is no whole number, or is beyond the
    /// limits, which disables OK.
    [[nodiscard]] virtual int value() const = 0;
    /// False beyond the limits.
    virtual bool value(int value) = 0;

    /// The smallest value that is accepted; fixed.
    [[nodiscard]] virtual int minimumValue() const = 0;
    /// The largest value that is accepted; fixed.
    [[nodiscard]] virtual int maximumValue() const = 0;
    /// What a click on the arrows adds or takes away.
    [[nodiscard]] virtual int spinStep() const = 0;
    /// False for one that is not above 0.
    virtual bool spinStep(int value) = 0;
};

/// A number with units and arrows to count it up and down.
class FloatSpinnerCommandInput : public ExpressionInputOf<FloatSpinnerCommandInput> {
public:
    static const char* classType();  ///< "adsk::core::FloatSpinnerCommandInput"

    /// The smallest value that is accepted, in the host's units; fixed.
    [[nodiscard]] virtual double minimumValue() const = 0;
    /// The largest value that is accepted, in the host's units; fixed.
    [[nodiscard]] virtual double maximumValue() const = 0;
    /// What a click on the arrows adds or takes away, in `unitType`.
    [[nodiscard]] virtual double spinStep() const = 0;
    /// False for one that is not above 0.
    virtual bool spinStep(double value) = 0;
};

/// A slider with one or two knobs, and a field beside each; the named input classes derive from it.
/// What concerns a second knob fails where there is one alone.
template <class Number>
class SliderInputOf : public CommandInput {
public:
    /// Where the first knob stands, at first the minimum; 0 while its expression is not valid.
    [[nodiscard]] virtual Number valueOne() const = 0;
    /// Replaces the expression too. False for a value that the slider does not have.
    virtual bool valueOne(Number value) = 0;

    /// Where the second knob stands, at first the maximum; 0 while its expression is not valid.
    [[nodiscard]] virtual Number valueTwo() const = 0;
    /// Replaces the expression too. False for a value that the slider does not have.
    virtual bool valueTwo(Number value) = 0;

    /// What the field of the first knob shows.
    [[nodiscard]] virtual std::string expressionOne() const = 0;
    /// Kept also where it is not valid, as if the user had typed it, which disables OK.
    virtual bool expressionOne(const std::string& value) = 0;

    /// What the field of the second knob shows.
    [[nodiscard]] virtual std::string expressionTwo() const = 0;
    /// Kept also where it is not valid, as if the user had typed it, which disables OK.
    virtual bool expressionTwo(const std::string& value) = 0;

    /// Whether there are two knobs; fixed.
    [[nodiscard]] virtual bool hasTwoSliders() const = 0;

    /// The smallest value of the slider; fixed.
    [[nodiscard]] virtual Number minimumValue() const = 0;
    /// The largest value of the slider; fixed.
    [[nodiscard]] virtual Number maximumValue() const = 0;

    /// What a click on the arrows beside a field adds or takes away, 1 at first; for a number with
    /// units in these.
    [[nodiscard]] virtual Number spinStep() const = 0;
    /// False for one that is not above 0.
    virtual bool spinStep(Number value) = 0;

    /// Sets the texts at the two ends of the slider, none at first.
    virtual bool setText(const std::string& left, const std::string& right) = 0;
};

/// A slider for whole numbers.
class IntegerSliderCommandInput : public SliderInputOf<int> {
public:
    static const char* classType();  ///< "adsk::core::IntegerSliderCommandInput"
};

/// A slider for numbers with units; its values and limits are in the host's units.
class FloatSliderCommandInput : public SliderInputOf<double> {
public:
    static const char* classType();  ///< "adsk::core::FloatSliderCommandInput"

    /// The units that a plain number counts in; fixed, and empty for a number without units.
    [[nodiscard]] virtual std::string unitType() const = 0;
};

}  // namespace adsk::core
