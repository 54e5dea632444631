#pragma once

#include <Core/CommandInput.h>

#include <string>

/// Inputs for numbers. The user types expressions, with units where the input has some.
namespace adsk::core {

/// A number with units.
class ValueCommandInput : public CommandInput {
public:
    static const char* classType();  ///< "adsk::core::ValueCommandInput"

    /// The value in the host's units: cm, radians and kg; 0 while the expression is not valid.
    [[nodiscard]] virtual double value() const = 0;
    /// Replaces the expression too.
    virtual bool value(double value) = 0;

    /// What the field shows, such as "2 in + 4 mm".
    [[nodiscard]] virtual std::string expression() const = 0;
    /// Kept also where it is not valid, as if the user had typed it.
    virtual bool expression(const std::string& value) = 0;

    /// Whether the expression has a value of these units. OK is disabled while it has none.
    [[nodiscard]] virtual bool isValidExpression() const = 0;

    /// The units that a plain number counts in; empty for a number without units.
    [[nodiscard]] virtual std::string unitType() const = 0;
    /// What is shown is evaluated again in these units. False for an unknown unit.
    virtual bool unitType(const std::string& value) = 0;
};

/// A length. This host draws no manipulator in the model.
class DistanceValueCommandInput : public CommandInput {
public:
    static const char* classType();  ///< "adsk::core::DistanceValueCommandInput"

    /// The value in the host's units: cm; 0 while the expression is not valid.
    [[nodiscard]] virtual double value() const = 0;
    /// Replaces the expression too.
    virtual bool value(double value) = 0;

    /// What the field shows, such as "2 in + 4 mm".
    [[nodiscard]] virtual std::string expression() const = 0;
    /// Kept also where it is not valid, as if the user had typed it.
    virtual bool expression(const std::string& value) = 0;

    /// Whether the expression has a value of these units. OK is disabled while it has none.
    [[nodiscard]] virtual bool isValidExpression() const = 0;

    /// The units that a plain number counts in, the length units of the design.
    [[nodiscard]] virtual std::string unitType() const = 0;
};

/// An angle. This host draws no manipulator in the model.
class AngleValueCommandInput : public CommandInput {
public:
    static const char* classType();  ///< "adsk::core::AngleValueCommandInput"

    /// The value in the host's units: radians; 0 while the expression is not valid.
    [[nodiscard]] virtual double value() const = 0;
    /// Replaces the expression too.
    virtual bool value(double value) = 0;

    /// What the field shows, such as "2 in + 4 mm".
    [[nodiscard]] virtual std::string expression() const = 0;
    /// Kept also where it is not valid, as if the user had typed it.
    virtual bool expression(const std::string& value) = 0;

    /// Whether the expression has a value of these units. OK is disabled while it has none.
    [[nodiscard]] virtual bool isValidExpression() const = 0;

    /// The units that a plain number counts in, "deg".
    [[nodiscard]] virtual std::string unitType() const = 0;
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
class FloatSpinnerCommandInput : public CommandInput {
public:
    static const char* classType();  ///< "adsk::core::FloatSpinnerCommandInput"

    /// The value in the host's units: cm, radians and kg; 0 while the expression is not valid.
    [[nodiscard]] virtual double value() const = 0;
    /// Replaces the expression too.
    virtual bool value(double value) = 0;

    /// What the field shows, such as "2 in + 4 mm".
    [[nodiscard]] virtual std::string expression() const = 0;
    /// Kept also where it is not valid, as if the user had typed it.
    virtual bool expression(const std::string& value) = 0;

    /// Whether the expression has a value of these units, within the limits. OK is disabled while
    /// it has none.
    [[nodiscard]] virtual bool isValidExpression() const = 0;

    /// The units that a plain number counts in; fixed.
    [[nodiscard]] virtual std::string unitType() const = 0;
    /// The smallest value that is accepted, in the host's units; fixed.
    [[nodiscard]] virtual double minimumValue() const = 0;
    /// The largest value that is accepted, in the host's units; fixed.
    [[nodiscard]] virtual double maximumValue() const = 0;
    /// What a click on the arrows adds or takes away, in `unitType`.
    [[nodiscard]] virtual double spinStep() const = 0;
    /// False for one that is not above 0.
    virtual bool spinStep(double value) = 0;
};

}  // namespace adsk::core
