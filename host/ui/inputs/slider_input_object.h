#pragma once

#include "host/ui/inputs/command_input_object.h"
#include "host/ui/inputs/slider_state.h"

#include <Core/ValueInputs.h>

#include <string>

namespace host::ui {

/// A slider of the API, for numbers of one type.
template <class Interface, class Number>
class SliderInputObject : public CommandInputObject<Interface, SliderState> {
    using Base = CommandInputObject<Interface, SliderState>;

public:
    using Base::Base;

    [[nodiscard]] Number valueOne() const override {
        if (closed<"valueOne">(*this)) return {};
        return valueOf(SliderKnob::First);
    }
    bool valueOne(Number value) override {
        if (closed<"valueOne">(*this)) return {};
        return changed(this->setValue(SliderKnob::First, value));
    }
    [[nodiscard]] Number valueTwo() const override {
        if (closed<"valueTwo">(*this)) return {};
        return valueOf(SliderKnob::Second);
    }
    bool valueTwo(Number value) override {
        if (closed<"valueTwo">(*this)) return {};
        return changed(this->setValue(SliderKnob::Second, value));
    }
    [[nodiscard]] std::string expressionOne() const override {
        if (closed<"expressionOne">(*this)) return {};
        return expressionOf(SliderKnob::First);
    }
    bool expressionOne(const std::string& value) override {
        if (closed<"expressionOne">(*this)) return {};
        return changed(enter(SliderKnob::First, value));
    }
    [[nodiscard]] std::string expressionTwo() const override {
        if (closed<"expressionTwo">(*this)) return {};
        return expressionOf(SliderKnob::Second);
    }
    bool expressionTwo(const std::string& value) override {
        if (closed<"expressionTwo">(*this)) return {};
        return changed(enter(SliderKnob::Second, value));
    }
    [[nodiscard]] bool hasTwoSliders() const override {
        return this->template get<"hasTwoSliders">(this->hasTwoKnobs());
    }
    [[nodiscard]] Number minimumValue() const override {
        return this->template get<"minimumValue">(static_cast<Number>(this->limits().minimum));
    }
    [[nodiscard]] Number maximumValue() const override {
        return this->template get<"maximumValue">(static_cast<Number>(this->limits().maximum));
    }
    [[nodiscard]] Number spinStep() const override {
        return this->template get<"spinStep">(static_cast<Number>(this->limits().step));
    }
    bool spinStep(Number value) override {
        if (closed<"spinStep">(*this)) return {};
        return this->setStep(value);
    }
    bool setText(const std::string& left, const std::string& right) override {
        if (closed<"setText">(*this)) return {};
        this->leftText = left;
        this->rightText = right;
        return true;
    }

private:
    [[nodiscard]] Number valueOf(SliderKnob knob) const {
        const NumberField* const field = this->field(knob);
        return field == nullptr ? Number() : static_cast<Number>(field->value());
    }
    [[nodiscard]] std::string expressionOf(SliderKnob knob) const {
        const NumberField* const field = this->field(knob);
        return field == nullptr ? "" : field->expression();
    }
    bool enter(SliderKnob knob, const std::string& expression) {
        NumberField* const field = this->field(knob);
        if (field == nullptr) return false;
        field->enter(expression);
        return true;
    }
    bool changed(bool isChanged) {
        if (isChanged) this->changedByCode();
        return isChanged;
    }
};

class IntegerSliderCommandInputObject final
    : public SliderInputObject<core::IntegerSliderCommandInput, int> {
public:
    using SliderInputObject::SliderInputObject;
};

class FloatSliderCommandInputObject final
    : public SliderInputObject<core::FloatSliderCommandInput, double> {
public:
    using SliderInputObject::SliderInputObject;

    [[nodiscard]] std::string unitType() const override { return get<"unitType">(first().unit()); }
};

}  // namespace host::ui
