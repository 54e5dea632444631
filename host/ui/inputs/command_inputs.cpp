#include "host/ui/inputs/command_inputs.h"

#include "host/ui/commands/command.h"
#include "host/ui/inputs/button_lists.h"
#include "host/ui/inputs/container_inputs.h"
#include "host/ui/inputs/drop_down.h"
#include "host/ui/inputs/field_inputs.h"
#include "host/ui/inputs/selection_input.h"
#include "host/ui/inputs/table_input.h"

#include <algorithm>
#include <iterator>

namespace host::ui {
namespace {

bool isLandmark(InputKind kind) {
    return kind == InputKind::Tab || kind == InputKind::Group || kind == InputKind::Selection;
}

}  // namespace

template <class T, class... Arguments>
core::Ptr<T> CommandInputs::append(const std::string& id, const std::string& name,
                                   const Arguments&... arguments) {
    const InputOrigin origin{this, &id, command_->texts().share(name)};
    core::Ptr<T> input = make<T>(origin, arguments...);
    input->slot = static_cast<std::uint32_t>(members_.append(input));
    index_.add(*input);
    if (isLandmark(input->kind)) {
        landmarks_.push_back(input.get());
    }
    return input;
}

std::size_t CommandInputs::count() const {
    if (closed<"CommandInputs::count">(*this)) return {};
    return members_.count();
}

core::Ptr<core::CommandInput> CommandInputs::item(std::size_t index) const {
    if (closed<"CommandInputs::item">(*this)) return {};
    return index < members_.count() ? members_.at(index) : nullptr;
}

core::Ptr<core::CommandInput> CommandInputs::itemById(const std::string& id) const {
    if (closed<"CommandInputs::itemById">(*this)) return {};
    InputState* found = find(id);
    return found == nullptr ? nullptr : found->api();
}

core::Ptr<core::Command> CommandInputs::command() const {
    if (closed<"CommandInputs::command">(*this)) return {};
    return core::Ptr<core::Command>(command_);
}

core::Ptr<core::BoolValueCommandInput> CommandInputs::addBoolValueInput(
    const std::string& id, const std::string& name, bool isCheckBox,
    const std::string& resourceFolder, bool initialValue) {
    if (closed<"CommandInputs::addBoolValueInput">(*this)) return {};
    return append<BoolInput>(id, name, isCheckBox, resourceFolder, initialValue);
}

core::Ptr<core::StringValueCommandInput> CommandInputs::addStringValueInput(
    const std::string& id, const std::string& name, const std::string& initialValue) {
    if (closed<"CommandInputs::addStringValueInput">(*this)) return {};
    return append<StringInput>(id, name, initialValue);
}

core::Ptr<core::DropDownCommandInput> CommandInputs::addDropDownCommandInput(
    const std::string& id, const std::string& name, core::DropDownStyles dropDownStyle) {
    if (closed<"CommandInputs::addDropDownCommandInput">(*this)) return {};
    return append<DropDownInput>(id, name, dropDownStyle);
}

core::Ptr<core::TableCommandInput> CommandInputs::addTableCommandInput(
    const std::string& id, const std::string& name, int numberOfColumns,
    const std::string& columnRatio) {
    if (closed<"CommandInputs::addTableCommandInput">(*this)) return {};
    return append<TableInput>(id, name, numberOfColumns, columnRatio);
}

core::Ptr<core::TabCommandInput> CommandInputs::addTabCommandInput(
    const std::string& id, const std::string& name, const std::string& resourceFolder) {
    constexpr const char* kOperation = "CommandInputs::addTabCommandInput";
    if (closed<"CommandInputs::addTabCommandInput">(*this)) return {};
    if (parent_ != nullptr) {
        misuse(kOperation, "a tab cannot stand inside \"" + parent_->id() + "\"");
        return {};
    }
    if (find(id) != nullptr) {
        misuse(kOperation, "the id \"" + id + "\" is in use");
        return {};
    }
    return append<TabInput>(id, name, resourceFolder);
}

core::Ptr<core::GroupCommandInput> CommandInputs::addGroupCommandInput(const std::string& id,
                                                                       const std::string& name) {
    if (closed<"CommandInputs::addGroupCommandInput">(*this)) return {};
    return append<GroupInput>(id, name);
}

core::Ptr<core::ButtonRowCommandInput> CommandInputs::addButtonRowCommandInput(
    const std::string& id, const std::string& name, bool isMultiSelectEnabled) {
    if (closed<"CommandInputs::addButtonRowCommandInput">(*this)) return {};
    return append<ButtonRowInput>(id, name, isMultiSelectEnabled);
}

core::Ptr<core::RadioButtonGroupCommandInput> CommandInputs::addRadioButtonGroupCommandInput(
    const std::string& id, const std::string& name) {
    if (closed<"CommandInputs::addRadioButtonGroupCommandInput">(*this)) return {};
    return append<RadioGroupInput>(id, name);
}

core::Ptr<core::TextBoxCommandInput> CommandInputs::addTextBoxCommandInput(
    const std::string& id, const std::string& name, const std::string& formattedText, int numRows,
    bool isReadOnly) {
    if (closed<"CommandInputs::addTextBoxCommandInput">(*this)) return {};
    return append<TextBoxInput>(id, name, formattedText, numRows, isReadOnly);
}

core::Ptr<core::ImageCommandInput> CommandInputs::addImageCommandInput(
    const std::string& id, const std::string& name, const std::string& imageFile) {
    if (closed<"CommandInputs::addImageCommandInput">(*this)) return {};
    return append<ImageInput>(id, name, imageFile);
}

core::Ptr<core::SelectionCommandInput> CommandInputs::addSelectionInput(
    const std::string& id, const std::string& name, const std::string& commandPrompt) {
    if (closed<"CommandInputs::addSelectionInput">(*this)) return {};
    return append<SelectionInput>(id, name, commandPrompt);
}

InputState* CommandInputs::find(const std::string& id) const {
    if (InputState* own = index_.find(id)) return own;
    for (const InputState* each : landmarks_) {
        const CommandInputs* inside = each->inside();
        InputState* found = inside == nullptr ? nullptr : inside->find(id);
        if (found != nullptr) return found;
    }
    return nullptr;
}

void CommandInputs::remove(InputState& input) {
    index_.remove(input);
    if (isLandmark(input.kind)) {
        std::erase(landmarks_, &input);
    }
    const core::Ptr<core::CommandInput> kept = members_.remove(input.slot);
    input.retire();
    members_.tidy([](const core::Ptr<core::CommandInput>& member, std::size_t slot) {
        InputState::of(member)->slot = static_cast<std::uint32_t>(slot);
    });
}

void CommandInputs::dispose() {
    members_.each(
        [](const core::Ptr<core::CommandInput>& each) { InputState::of(each)->retire(); });
    members_.clear();
    index_.clear();
    landmarks_.clear();
    command_ = nullptr;
    parent_ = nullptr;
    invalidate();
}

std::vector<InputState*> CommandInputs::ofKind(InputKind kind) const {
    std::vector<InputState*> found;
    for (InputState* each : landmarks_) {
        if (each->kind == kind) {
            found.push_back(each);
        }
        if (const CommandInputs* inside = each->inside()) {
            const std::vector<InputState*> deeper = inside->ofKind(kind);
            found.insert(found.end(), deeper.begin(), deeper.end());
        }
    }
    return found;
}

}  // namespace host::ui
