#pragma once

#include "host/base/documented_points.h"
#include "host/ui/inputs/id_index.h"
#include "host/ui/inputs/input_state.h"
#include "host/ui/inputs/sequence.h"

#include <Core/CommandInputs.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace host::ui {

struct NumberLimits;

/// The inputs of a command, a tab or a group; owns them.
class CommandInputsObject final : public Object<core::CommandInputs> {
public:
    /// `parent` is the tab or group, null for the command's own collection.
    CommandInputsObject(CommandObject* command, InputState* parent)
        : command_(command), parent_(parent) {}

    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] core::Ptr<core::CommandInput> item(std::size_t index) const override;
    [[nodiscard]] core::Ptr<core::CommandInput> itemById(const std::string& id) const override;
    [[nodiscard]] core::Ptr<core::Command> command() const override;

    core::Ptr<core::BoolValueCommandInput> addBoolValueInput(const std::string& id,
                                                             const std::string& name,
                                                             bool isCheckBox,
                                                             const std::string& resourceFolder,
                                                             bool initialValue) override;
    core::Ptr<core::StringValueCommandInput> addStringValueInput(
        const std::string& id, const std::string& name, const std::string& initialValue) override;
    core::Ptr<core::DropDownCommandInput> addDropDownCommandInput(
        const std::string& id, const std::string& name,
        core::DropDownStyles dropDownStyle) override;
    core::Ptr<core::TableCommandInput> addTableCommandInput(
        const std::string& id, const std::string& name, int numberOfColumns,
        const std::string& columnRatio) override;
    core::Ptr<core::TabCommandInput> addTabCommandInput(const std::string& id,
                                                        const std::string& name,
                                                        const std::string& resourceFolder) override;
    core::Ptr<core::GroupCommandInput> addGroupCommandInput(const std::string& id,
                                                            const std::string& name) override;
    core::Ptr<core::ButtonRowCommandInput> addButtonRowCommandInput(
        const std::string& id, const std::string& name, bool isMultiSelectEnabled) override;
    core::Ptr<core::RadioButtonGroupCommandInput> addRadioButtonGroupCommandInput(
        const std::string& id, const std::string& name) override;
    core::Ptr<core::TextBoxCommandInput> addTextBoxCommandInput(const std::string& id,
                                                                const std::string& name,
                                                                const std::string& formattedText,
                                                                int numRows,
                                                                bool isReadOnly) override;
    core::Ptr<core::ImageCommandInput> addImageCommandInput(const std::string& id,
                                                            const std::string& name,
                                                            const std::string& imageFile) override;
    core::Ptr<core::SelectionCommandInput> addSelectionInput(
        const std::string& id, const std::string& name, const std::string& commandPrompt) override;

    core::Ptr<core::ValueCommandInput> addValueInput(
        const std::string& id, const std::string& name, const std::string& unitType,
        const core::Ptr<core::ValueInput>& initialValue) override;
    core::Ptr<core::DistanceValueCommandInput> addDistanceValueCommandInput(
        const std::string& id, const std::string& name,
        const core::Ptr<core::ValueInput>& initialValue) override;
    core::Ptr<core::AngleValueCommandInput> addAngleValueCommandInput(
        const std::string& id, const std::string& name,
        const core::Ptr<core::ValueInput>& initialValue) override;
    core::Ptr<core::IntegerSpinnerCommandInput> addIntegerSpinnerCommandInput(
        const std::string& id, const std::string& name, int min, int max, int spinStep,
        int initialValue) override;
    core::Ptr<core::FloatSpinnerCommandInput> addFloatSpinnerCommandInput(
        const std::string& id, const std::string& name, const std::string& unitType, double min,
        double max, double spinStep, double initialValue) override;
    core::Ptr<core::IntegerSliderCommandInput> addIntegerSliderCommandInput(
        const std::string& id, const std::string& name, int min, int max,
        bool hasTwoSliders) override;
    core::Ptr<core::IntegerSliderCommandInput> addIntegerSliderListCommandInput(
        const std::string& id, const std::string& name, const std::vector<int>& valueList,
        bool hasTwoSliders) override;
    core::Ptr<core::FloatSliderCommandInput> addFloatSliderCommandInput(
        const std::string& id, const std::string& name, const std::string& unitType, double min,
        double max, bool hasTwoSliders) override;
    core::Ptr<core::FloatSliderCommandInput> addFloatSliderListCommandInput(
        const std::string& id, const std::string& name, const std::string& unitType,
        const std::vector<double>& valueList, bool hasTwoSliders) override;

    /// @name For the host itself
    /// @{

    [[nodiscard]] CommandObject* owningCommand() const { return command_; }
    [[nodiscard]] InputState* parent() const { return parent_; }
    [[nodiscard]] std::size_t size() const { return members_.count(); }

    /// What `itemById` finds.
    [[nodiscard]] InputState* find(const std::string& id) const;

    /// The member of that serial number, null where there is none here.
    [[nodiscard]] InputState* withSerial(std::uint32_t serial) const;

    /// The tabs and groups among the members, in order.
    [[nodiscard]] std::vector<InputState*> containers() const;

    /// The members that are in no table now, in order.
    [[nodiscard]] std::vector<InputState*> outsideTables() const;

    /// Takes a member out and disposes of it.
    void remove(InputState& input);

    /// Disposes of all members, and of the collection with them.
    void dispose();

    /// The selections, tabs or groups in here and in all tabs and groups inside, in the order of
    /// the dialog.
    [[nodiscard]] std::vector<InputState*> ofKind(InputKind kind) const;
    /// @}

private:
    [[nodiscard]] InputState* find(const InputId& id) const;

    /// Null, with the reason noted, where the id is taken.
    template <class T, class... Arguments>
    core::Ptr<T> append(const std::string& id, const std::string& name,
                        const Arguments&... arguments);

    /// The same as the operation `Name`: null, and nothing made, when the call is refused or the
    /// inputs were deleted.
    template <CallName Name, class T, class... Arguments>
    core::Ptr<T> add(const std::string& id, const std::string& name, const Arguments&... arguments);

    /// A number that begins with `initial`; null, with the reason noted, where that is no number.
    template <class T>
    core::Ptr<T> addQuantity(const std::string& id, const std::string& name,
                             const std::string& unit, const core::Ptr<core::ValueInput>& initial,
                             const char* operation);

    /// A slider with its knobs at the ends; null, with the reason noted, for limits that leave
    /// nothing to slide.
    template <class T>
    core::Ptr<T> addSlider(const std::string& id, const std::string& name, const std::string& unit,
                           const NumberLimits& limits, bool hasTwoKnobs, const char* operation);

    /// Whether another input may not have this id, because one has it.
    [[nodiscard]] bool isTaken(const std::string& id) const;

    CommandObject* command_;
    InputState* parent_;
    bool uniqueIds_ = documentedPoints().uniqueInputIds;
    Sequence<core::Ptr<core::CommandInput>> members_;
    IdIndex index_;
    std::vector<InputState*> landmarks_;  ///< the selections, tabs and groups among the members
};

}  // namespace host::ui
