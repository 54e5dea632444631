#include "host/ui/inputs/command_inputs_object.h"

#include "host/base/last_error.h"
#include "host/base/unit_expression.h"
#include "host/ui/commands/command_object.h"
#include "host/ui/inputs/bool_value_command_input_object.h"
#include "host/ui/inputs/button_row_command_input_object.h"
#include "host/ui/inputs/drop_down_command_input_object.h"
#include "host/ui/inputs/group_command_input_object.h"
#include "host/ui/inputs/image_command_input_object.h"
#include "host/ui/inputs/number_input_object.h"
#include "host/ui/inputs/radio_button_group_command_input_object.h"
#include "host/ui/inputs/selection_command_input_object.h"
#include "host/ui/inputs/slider_input_object.h"
#include "host/ui/inputs/string_value_command_input_object.h"
#include "host/ui/inputs/tab_command_input_object.h"
#include "host/ui/inputs/table_command_input_object.h"
#include "host/ui/inputs/text_box_command_input_object.h"
#include "host/ui/inputs/value_input_object.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <optional>
#include <type_traits>
#include <variant>

namespace host::ui {
namespace {

// Designs are measured in it here whatever their file was written in.
constexpr const char* kDefaultLengthUnit = "mm";

bool areLimits(double minimum, double maximum, double step, double initial, const char* operation) {
    return (step > 0 && minimum <= initial && initial <= maximum) ||
           fail(core::BadApiCallError,
                std::string(operation) +
                    ": the step has to be above 0, and the value between minimum and maximum");
}

bool isLandmark(InputKind kind) {
    return kind == InputKind::Tab || kind == InputKind::Group || kind == InputKind::Selection ||
           kind == InputKind::Number || kind == InputKind::Slider;
}

}  // namespace

template <class T, class... Arguments>
core::Ptr<T> CommandInputsObject::append(const std::string& id, const std::string& name,
                                         const Arguments&... arguments) {
    if (uniqueIds_ && isTaken(id)) return {};
    const InputOrigin origin{this, &id, command_->strings().share(name)};
    core::Ptr<T> input = make<T>(origin, arguments...);
    input->slot = static_cast<std::uint32_t>(members_.append(input));
    index_.add(*input);
    if (isLandmark(input->kind)) {
        landmarks_.push_back(input.get());
    }
    return input;
}

template <CallName Name, class T, class... Arguments>
core::Ptr<T> CommandInputsObject::add(const std::string& id, const std::string& name,
                                      const Arguments&... arguments) {
    if (closed<Name>(*this)) return {};
    return append<T>(id, name, arguments...);
}

std::size_t CommandInputsObject::count() const {
    if (closed<"count">(*this)) return {};
    return members_.count();
}

core::Ptr<core::CommandInput> CommandInputsObject::item(std::size_t index) const {
    if (closed<"item">(*this)) return {};
    return index < members_.count() ? members_.at(index) : nullptr;
}

core::Ptr<core::CommandInput> CommandInputsObject::itemById(const std::string& id) const {
    if (closed<"itemById">(*this)) return {};
    InputState* found = find(id);
    return found == nullptr ? nullptr : found->api();
}

core::Ptr<core::Command> CommandInputsObject::command() const {
    if (closed<"command">(*this)) return {};
    return core::Ptr<core::Command>(command_);
}

core::Ptr<core::BoolValueCommandInput> CommandInputsObject::addBoolValueInput(
    const std::string& id, const std::string& name, bool isCheckBox,
    const std::string& resourceFolder, bool initialValue) {
    return add<"addBoolValueInput", BoolValueCommandInputObject>(id, name, isCheckBox,
                                                                 resourceFolder, initialValue);
}

core::Ptr<core::StringValueCommandInput> CommandInputsObject::addStringValueInput(
    const std::string& id, const std::string& name, const std::string& initialValue) {
    return add<"addStringValueInput", StringValueCommandInputObject>(id, name, initialValue);
}

core::Ptr<core::DropDownCommandInput> CommandInputsObject::addDropDownCommandInput(
    const std::string& id, const std::string& name, core::DropDownStyles dropDownStyle) {
    return add<"addDropDownCommandInput", DropDownCommandInputObject>(id, name, dropDownStyle);
}

core::Ptr<core::TableCommandInput> CommandInputsObject::addTableCommandInput(
    const std::string& id, const std::string& name, int numberOfColumns,
    const std::string& columnRatio) {
    return add<"addTableCommandInput", TableCommandInputObject>(id, name, numberOfColumns,
                                                                columnRatio);
}

core::Ptr<core::TabCommandInput> CommandInputsObject::addTabCommandInput(
    const std::string& id, const std::string& name, const std::string& resourceFolder) {
    constexpr const char* kOperation = "CommandInputs::addTabCommandInput";
    if (closed<"addTabCommandInput">(*this)) return {};
    if (parent_ != nullptr) {
        misuse(kOperation, "a tab cannot be inside \"" + parent_->id() + "\"");
        return {};
    }
    if (find(id) != nullptr) {
        misuse(kOperation, "the id \"" + id + "\" is in use");
        return {};
    }
    return append<TabCommandInputObject>(id, name, resourceFolder);
}

core::Ptr<core::GroupCommandInput> CommandInputsObject::addGroupCommandInput(
    const std::string& id, const std::string& name) {
    return add<"addGroupCommandInput", GroupCommandInputObject>(id, name);
}

core::Ptr<core::ButtonRowCommandInput> CommandInputsObject::addButtonRowCommandInput(
    const std::string& id, const std::string& name, bool isMultiSelectEnabled) {
    return add<"addButtonRowCommandInput", ButtonRowCommandInputObject>(id, name,
                                                                        isMultiSelectEnabled);
}

core::Ptr<core::RadioButtonGroupCommandInput> CommandInputsObject::addRadioButtonGroupCommandInput(
    const std::string& id, const std::string& name) {
    return add<"addRadioButtonGroupCommandInput", RadioButtonGroupCommandInputObject>(id, name);
}

core::Ptr<core::TextBoxCommandInput> CommandInputsObject::addTextBoxCommandInput(
    const std::string& id, const std::string& name, const std::string& formattedText, int numRows,
    bool isReadOnly) {
    return add<"addTextBoxCommandInput", TextBoxCommandInputObject>(id, name, formattedText,
                                                                    numRows, isReadOnly);
}

core::Ptr<core::ImageCommandInput> CommandInputsObject::addImageCommandInput(
    const std::string& id, const std::string& name, const std::string& imageFile) {
    return add<"addImageCommandInput", ImageCommandInputObject>(id, name, imageFile);
}

core::Ptr<core::SelectionCommandInput> CommandInputsObject::addSelectionInput(
    const std::string& id, const std::string& name, const std::string& commandPrompt) {
    return add<"addSelectionInput", SelectionCommandInputObject>(id, name, commandPrompt);
}

namespace {

/// Gives a new input its first expression or number; false, with the reason noted, for a value that
/// is neither.
bool startWith(NumberState& number, const core::Ptr<core::ValueInput>& initial,
               const char* operation) {
    const core::Ptr<ValueInputObject> value = initial;
    if (!value) {
        return fail(core::BadApiCallError, std::string(operation) + ": the value is null");
    }
    if (const auto* expression = std::get_if<std::string>(&value->state())) {
        number.field().enter(*expression);
        return true;
    }
    if (const auto* real = std::get_if<double>(&value->state())) {
        return number.setValue(*real);
    }
    return fail(core::BadApiCallError,
                std::string(operation) + ": the value is neither a number nor an expression");
}

bool isUnit(const std::string& unit, const char* operation) {
    try {
        unitQuantity(unit);
        return true;
    } catch (const ExpressionError& error) {
        return fail(core::BadApiCallError, std::string(operation) + ": " + error.what());
    }
}

}  // namespace

template <class T>
core::Ptr<T> CommandInputsObject::addQuantity(const std::string& id, const std::string& name,
                                              const std::string& unit,
                                              const core::Ptr<core::ValueInput>& initial,
                                              const char* operation) {
    if (!isUnit(unit, operation)) return {};
    core::Ptr<T> input = append<T>(id, name, unit);
    if (!input || startWith(*input, initial, operation)) return input;
    remove(*input);
    return {};
}

core::Ptr<core::ValueCommandInput> CommandInputsObject::addValueInput(
    const std::string& id, const std::string& name, const std::string& unitType,
    const core::Ptr<core::ValueInput>& initialValue) {
    if (closed<"addValueInput">(*this)) return {};
    return addQuantity<ValueCommandInputObject>(id, name, unitType, initialValue,
                                                "CommandInputs::addValueInput");
}

core::Ptr<core::DistanceValueCommandInput> CommandInputsObject::addDistanceValueCommandInput(
    const std::string& id, const std::string& name,
    const core::Ptr<core::ValueInput>& initialValue) {
    if (closed<"addDistanceValueCommandInput">(*this)) return {};
    return addQuantity<DistanceValueCommandInputObject>(
        id, name, kDefaultLengthUnit, initialValue, "CommandInputs::addDistanceValueCommandInput");
}

core::Ptr<core::AngleValueCommandInput> CommandInputsObject::addAngleValueCommandInput(
    const std::string& id, const std::string& name,
    const core::Ptr<core::ValueInput>& initialValue) {
    if (closed<"addAngleValueCommandInput">(*this)) return {};
    return addQuantity<AngleValueCommandInputObject>(id, name, "deg", initialValue,
                                                     "CommandInputs::addAngleValueCommandInput");
}

core::Ptr<core::IntegerSpinnerCommandInput> CommandInputsObject::addIntegerSpinnerCommandInput(
    const std::string& id, const std::string& name, int min, int max, int spinStep,
    int initialValue) {
    constexpr const char* kOperation = "CommandInputs::addIntegerSpinnerCommandInput";
    if (closed<"addIntegerSpinnerCommandInput">(*this)) return {};
    if (!areLimits(min, max, spinStep, initialValue, kOperation)) return {};
    auto input = append<IntegerSpinnerCommandInputObject>(
        id, name, std::string(),
        std::optional(NumberLimits{.minimum = static_cast<double>(min),
                                   .maximum = static_cast<double>(max),
                                   .step = static_cast<double>(spinStep),
                                   .whole = true,
                                   .values = {}}));
    if (input) input->setValue(initialValue);
    return input;
}

core::Ptr<core::FloatSpinnerCommandInput> CommandInputsObject::addFloatSpinnerCommandInput(
    const std::string& id, const std::string& name, const std::string& unitType, double min,
    double max, double spinStep, double initialValue) {
    constexpr const char* kOperation = "CommandInputs::addFloatSpinnerCommandInput";
    if (closed<"addFloatSpinnerCommandInput">(*this)) return {};
    if (!areLimits(min, max, spinStep, initialValue, kOperation) || !isUnit(unitType, kOperation)) {
        return {};
    }
    auto input = append<FloatSpinnerCommandInputObject>(
        id, name, unitType,
        std::optional(NumberLimits{
            .minimum = min, .maximum = max, .step = spinStep, .whole = false, .values = {}}));
    if (input) input->setValue(initialValue);
    return input;
}

namespace {

/// What a slider may be between two numbers.
template <class Number>
NumberLimits limitsBetween(Number minimum, Number maximum) {
    return {.minimum = static_cast<double>(minimum),
            .maximum = static_cast<double>(maximum),
            .step = 1,
            .whole = std::is_integral_v<Number>,
            .values = {}};
}

/// What a slider may be that has these numbers alone.
template <class Number>
NumberLimits limitsIn(const std::vector<Number>& values) {
    if (values.empty()) return {};
    NumberLimits limits = limitsBetween(values.front(), values.back());
    limits.values.assign(values.begin(), values.end());
    return limits;
}

bool areSliderLimits(const NumberLimits& limits, const char* operation) {
    const auto& values = limits.values;
    const bool ascend =
        std::adjacent_find(values.begin(), values.end(), std::greater_equal<>()) == values.end();
    return (limits.minimum < limits.maximum && ascend) ||
           fail(core::BadApiCallError,
                std::string(operation) +
                    (values.empty() ? ": the minimum has to be below the maximum"
                                    : ": the values have to ascend, from one to another"));
}

}  // namespace

template <class T>
core::Ptr<T> CommandInputsObject::addSlider(const std::string& id, const std::string& name,
                                            const std::string& unit, const NumberLimits& limits,
                                            bool hasTwoKnobs, const char* operation) {
    if (!areSliderLimits(limits, operation) || !isUnit(unit, operation)) return {};
    return append<T>(id, name, unit, limits, hasTwoKnobs);
}

core::Ptr<core::IntegerSliderCommandInput> CommandInputsObject::addIntegerSliderCommandInput(
    const std::string& id, const std::string& name, int min, int max, bool hasTwoSliders) {
    if (closed<"addIntegerSliderCommandInput">(*this)) return {};
    return addSlider<IntegerSliderCommandInputObject>(
        id, name, /*unit=*/"", limitsBetween(min, max), hasTwoSliders,
        "CommandInputs::addIntegerSliderCommandInput");
}

core::Ptr<core::IntegerSliderCommandInput> CommandInputsObject::addIntegerSliderListCommandInput(
    const std::string& id, const std::string& name, const std::vector<int>& valueList,
    bool hasTwoSliders) {
    if (closed<"addIntegerSliderListCommandInput">(*this)) return {};
    return addSlider<IntegerSliderCommandInputObject>(
        id, name, /*unit=*/"", limitsIn(valueList), hasTwoSliders,
        "CommandInputs::addIntegerSliderListCommandInput");
}

core::Ptr<core::FloatSliderCommandInput> CommandInputsObject::addFloatSliderCommandInput(
    const std::string& id, const std::string& name, const std::string& unitType, double min,
    double max, bool hasTwoSliders) {
    if (closed<"addFloatSliderCommandInput">(*this)) return {};
    return addSlider<FloatSliderCommandInputObject>(id, name, unitType, limitsBetween(min, max),
                                                    hasTwoSliders,
                                                    "CommandInputs::addFloatSliderCommandInput");
}

core::Ptr<core::FloatSliderCommandInput> CommandInputsObject::addFloatSliderListCommandInput(
    const std::string& id, const std::string& name, const std::string& unitType,
    const std::vector<double>& valueList, bool hasTwoSliders) {
    if (closed<"addFloatSliderListCommandInput">(*this)) return {};
    return addSlider<FloatSliderCommandInputObject>(
        id, name, unitType, limitsIn(valueList), hasTwoSliders,
        "CommandInputs::addFloatSliderListCommandInput");
}

bool CommandInputsObject::isTaken(const std::string& id) const {
    const bool counts = !id.empty() || documentedPoints().uniqueEmptyIds;
    return counts && command_->inputs().find(id) != nullptr &&
           !fail(core::BadApiCallError, "the id \"" + id + "\" is in use in this dialog");
}

InputState* CommandInputsObject::find(const std::string& id) const {
    if (command_ == nullptr) return nullptr;
    const std::optional<InputId> known = InputId::find(id, command_->strings());
    return known ? find(*known) : nullptr;
}

InputState* CommandInputsObject::find(const InputId& id) const {
    if (InputState* own = index_.find(id)) return own;
    for (const InputState* each : landmarks_) {
        const CommandInputsObject* inside = each->inside();
        InputState* found = inside == nullptr ? nullptr : inside->find(id);
        if (found != nullptr) return found;
    }
    return nullptr;
}

InputState* CommandInputsObject::withSerial(std::uint32_t serial) const {
    // Members are appended as they are made, so their serial numbers ascend.
    std::size_t first = 0;
    std::size_t end = members_.count();
    while (first < end) {
        const std::size_t middle = first + (end - first) / 2;
        InputState* const found = InputState::of(members_.at(middle));
        if (found->serial == serial) return found;
        if (found->serial < serial) {
            first = middle + 1;
        } else {
            end = middle;
        }
    }
    return nullptr;
}

std::vector<InputState*> CommandInputsObject::containers() const {
    std::vector<InputState*> found;
    std::copy_if(landmarks_.begin(), landmarks_.end(), std::back_inserter(found),
                 [](const InputState* each) { return each->inside() != nullptr; });
    return found;
}

std::vector<InputState*> CommandInputsObject::outsideTables() const {
    std::vector<InputState*> found;
    members_.each([&found](const core::Ptr<core::CommandInput>& member) {
        InputState* const input = InputState::of(member);
        if (input->inLine == nullptr) {
            found.push_back(input);
        }
    });
    return found;
}

void CommandInputsObject::remove(InputState& input) {
    index_.remove(input);
    if (isLandmark(input.kind)) {
        std::erase(landmarks_, &input);
    }
    const core::Ptr<core::CommandInput> kept = members_.remove(input.slot);
    input.dispose();
    members_.tidy([](const core::Ptr<core::CommandInput>& member, std::size_t slot) {
        InputState::of(member)->slot = static_cast<std::uint32_t>(slot);
    });
}

void CommandInputsObject::dispose() {
    members_.each(
        [](const core::Ptr<core::CommandInput>& each) { InputState::of(each)->dispose(); });
    members_.clear();
    index_.clear();
    landmarks_.clear();
    command_ = nullptr;
    parent_ = nullptr;
    invalidate();
}

std::vector<InputState*> CommandInputsObject::ofKind(InputKind kind) const {
    std::vector<InputState*> found;
    for (InputState* each : landmarks_) {
        if (each->kind == kind) {
            found.push_back(each);
        }
        if (const CommandInputsObject* inside = each->inside()) {
            const std::vector<InputState*> deeper = inside->ofKind(kind);
            found.insert(found.end(), deeper.begin(), deeper.end());
        }
    }
    return found;
}

}  // namespace host::ui
