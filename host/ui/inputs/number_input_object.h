#pragma once

#include "host/ui/inputs/command_input_object.h"
#include "host/ui/inputs/number_state.h"

#include <Core/ValueInputs.h>

#include <string>

/// The inputs of the API for numbers. What two of them have in common is declared by each, so they
/// share it here.
namespace host::ui {

/// A number with units.
template <class Interface>
class QuantityInputObject : public CommandInputObject<Interface, NumberState> {
    using Base = CommandInputObject<Interface, NumberState>;

public:
    using Base::Base;

    [[nodiscard]] double value() const override {
        if (closed<"value">(*this)) return {};
        return this->field().value();
    }
    bool value(double value) override {
        if (closed<"value">(*this)) return {};
        return changed(this->setValue(value));
    }
    [[nodiscard]] std::string expression() const override {
        return this->template get<"expression">(this->field().expression());
    }
    bool expression(const std::string& value) override {
        if (closed<"expression">(*this)) return {};
        this->field().enter(value);
        return changed(true);
    }
    [[nodiscard]] bool isValidExpression() const override {
        if (closed<"isValidExpression">(*this)) return {};
        return this->field().isValid();
    }
    using Interface::unitType;
    [[nodiscard]] std::string unitType() const override {
        return this->template get<"unitType">(this->field().unit());
    }

protected:
    bool changed(bool isChanged) {
        if (isChanged) this->changedByCode();
        return isChanged;
    }
};

class ValueCommandInputObject final : public QuantityInputObject<core::ValueCommandInput> {
public:
    using QuantityInputObject::QuantityInputObject;
    using QuantityInputObject::unitType;

    bool unitType(const std::string& value) override {
        if (closed<"unitType">(*this)) return {};
        return setUnit(value);
    }
};

class DistanceValueCommandInputObject final
    : public QuantityInputObject<core::DistanceValueCommandInput> {
public:
    using QuantityInputObject::QuantityInputObject;
};

class AngleValueCommandInputObject final
    : public QuantityInputObject<core::AngleValueCommandInput> {
public:
    using QuantityInputObject::QuantityInputObject;
};

class FloatSpinnerCommandInputObject final
    : public QuantityInputObject<core::FloatSpinnerCommandInput> {
public:
    using QuantityInputObject::QuantityInputObject;

    [[nodiscard]] double minimumValue() const override {
        return get<"minimumValue">(field().limits()->minimum);
    }
    [[nodiscard]] double maximumValue() const override {
        return get<"maximumValue">(field().limits()->maximum);
    }
    [[nodiscard]] double spinStep() const override {
        return get<"spinStep">(field().limits()->step);
    }
    bool spinStep(double value) override {
        if (closed<"spinStep">(*this)) return {};
        return setStep(value);
    }
};

class IntegerSpinnerCommandInputObject final
    : public CommandInputObject<core::IntegerSpinnerCommandInput, NumberState> {
public:
    using CommandInputObject::CommandInputObject;

    [[nodiscard]] int value() const override {
        if (closed<"value">(*this)) return {};
        return static_cast<int>(field().value());
    }
    bool value(int value) override {
        if (closed<"value">(*this)) return {};
        if (!setValue(value)) return false;
        changedByCode();
        return true;
    }
    [[nodiscard]] int minimumValue() const override {
        return get<"minimumValue">(static_cast<int>(field().limits()->minimum));
    }
    [[nodiscard]] int maximumValue() const override {
        return get<"maximumValue">(static_cast<int>(field().limits()->maximum));
    }
    [[nodiscard]] int spinStep() const override {
        return get<"spinStep">(static_cast<int>(field().limits()->step));
    }
    bool spinStep(int value) override {
        if (closed<"spinStep">(*this)) return {};
        return setStep(value);
    }
};

}  // namespace host::ui
