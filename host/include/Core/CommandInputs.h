#pragma once

#include <Core/CommandInput.h>
#include <Core/ListInputs.h>
#include <Core/Selections.h>
#include <Core/TableCommandInput.h>
#include <Core/ValueInputs.h>
#include <Core/Values.h>

#include <cstddef>
#include <string>
#include <vector>

namespace adsk::core {

/// The inputs of a command, a tab or a group.
///
/// Every input belongs to exactly one collection, even while it is a cell of a table. Only the ids
/// of tabs have to be unique: an id that is in use returns null for a tab, and a further input for
/// everything else. Inputs can be added while the dialog is open; a failure returns null.
class CommandInputs : public Base {
public:
    static const char* classType();  ///< "adsk::core::CommandInputs"

    /// The number of its own members: cells of tables included, the inputs inside its tabs and
    /// groups not.
    [[nodiscard]] virtual std::size_t count() const = 0;

    /// Its own members in order of creation; null for an index outside the collection.
    [[nodiscard]] virtual Ptr<CommandInput> item(std::size_t index) const = 0;

    /// The first input of this id in order of creation: among its own members, then inside its tabs
    /// and groups. Null when there is none; a tab does not find what another tab contains.
    [[nodiscard]] virtual Ptr<CommandInput> itemById(const std::string& id) const = 0;

    /// The command of the dialog, at any depth; never null.
    [[nodiscard]] virtual Ptr<Command> command() const = 0;

    /// Adds a check box, or a button with the icons of `resourceFolder`.
    virtual Ptr<BoolValueCommandInput> addBoolValueInput(const std::string& id,
                                                         const std::string& name, bool isCheckBox,
                                                         const std::string& resourceFolder = "",
                                                         bool initialValue = false) = 0;

    /// Adds an editable line of text.
    virtual Ptr<StringValueCommandInput> addStringValueInput(
        const std::string& id, const std::string& name, const std::string& initialValue = "") = 0;

    /// Adds a drop-down list without items; nothing is selected until an item is.
    virtual Ptr<DropDownCommandInput> addDropDownCommandInput(const std::string& id,
                                                              const std::string& name,
                                                              DropDownStyles dropDownStyle) = 0;

    /// Adds a table without rows. For `columnRatio` see `TableCommandInput::columnRatio`.
    virtual Ptr<TableCommandInput> addTableCommandInput(const std::string& id,
                                                        const std::string& name,
                                                        int numberOfColumns,
                                                        const std::string& columnRatio) = 0;

    /// Adds a tab. Null when an input of the command has this id, and in the collection of a tab or
    /// group.
    virtual Ptr<TabCommandInput> addTabCommandInput(const std::string& id, const std::string& name,
                                                    const std::string& resourceFolder = "") = 0;

    /// Adds a group, expanded and without inputs.
    virtual Ptr<GroupCommandInput> addGroupCommandInput(const std::string& id,
                                                        const std::string& name) = 0;

    /// Adds a row of buttons without items. With `isMultiSelectEnabled` they are selected
    /// independently of each other.
    virtual Ptr<ButtonRowCommandInput> addButtonRowCommandInput(const std::string& id,
                                                                const std::string& name,
                                                                bool isMultiSelectEnabled) = 0;

    /// Adds a group of radio buttons without items; nothing is selected until an item is.
    virtual Ptr<RadioButtonGroupCommandInput> addRadioButtonGroupCommandInput(
        const std::string& id, const std::string& name = "") = 0;

    /// Adds a text box. `formattedText` is interpreted as by `TextBoxCommandInput::formattedText`,
    /// and `numRows` is its height in lines.
    virtual Ptr<TextBoxCommandInput> addTextBoxCommandInput(const std::string& id,
                                                            const std::string& name,
                                                            const std::string& formattedText,
                                                            int numRows, bool isReadOnly) = 0;

    /// Adds a picture from a file, not from a folder of icons.
    virtual Ptr<ImageCommandInput> addImageCommandInput(const std::string& id,
                                                        const std::string& name,
                                                        const std::string& imageFile) = 0;

    /// Adds an input for picking entities; it accepts exactly one of any kind at first.
    virtual Ptr<SelectionCommandInput> addSelectionInput(const std::string& id,
                                                         const std::string& name,
                                                         const std::string& commandPrompt) = 0;

    /// Adds an editable number with units. Null for an unknown `unitType` and for a value that is
    /// neither a number nor an expression; an empty unit type stands for a plain number.
    virtual Ptr<ValueCommandInput> addValueInput(const std::string& id, const std::string& name,
                                                 const std::string& unitType,
                                                 const Ptr<ValueInput>& initialValue) = 0;

    /// Adds a length. Null for a value that is neither a number nor an expression.
    virtual Ptr<DistanceValueCommandInput> addDistanceValueCommandInput(
        const std::string& id, const std::string& name, const Ptr<ValueInput>& initialValue) = 0;

    /// Adds an angle. Null for a value that is neither a number nor an expression.
    virtual Ptr<AngleValueCommandInput> addAngleValueCommandInput(
        const std::string& id, const std::string& name, const Ptr<ValueInput>& initialValue) = 0;

    /// Adds a whole number with arrows. Null for a step that is not above 0, and for a value beyond
    /// the limits.
    virtual Ptr<IntegerSpinnerCommandInput> addIntegerSpinnerCommandInput(const std::string& id,
                                                                          const std::string& name,
                                                                          int min, int max,
                                                                          int spinStep,
                                                                          int initialValue) = 0;

    /// Adds a number with units and arrows; limits and value are in the host's units, the step is
    /// in `unitType`. Null as for a whole number, and for an unknown unit.
    virtual Ptr<FloatSpinnerCommandInput> addFloatSpinnerCommandInput(
        const std::string& id, const std::string& name, const std::string& unitType, double min,
        double max, double spinStep, double initialValue) = 0;

    /// Adds a slider for the whole numbers from `min` to `max`, with its knobs at the ends. Null
    /// unless `min` is below `max`.
    virtual Ptr<IntegerSliderCommandInput> addIntegerSliderCommandInput(
        const std::string& id, const std::string& name, int min, int max,
        bool hasTwoSliders = false) = 0;

    /// Adds a slider for these whole numbers alone, which have to ascend. Null for fewer than two.
    virtual Ptr<IntegerSliderCommandInput> addIntegerSliderListCommandInput(
        const std::string& id, const std::string& name, const std::vector<int>& valueList,
        bool hasTwoSliders = false) = 0;

    /// Adds a slider for numbers with units; the limits are in the host's units. Null as for whole
    /// numbers, and for an unknown unit.
    virtual Ptr<FloatSliderCommandInput> addFloatSliderCommandInput(const std::string& id,
                                                                    const std::string& name,
                                                                    const std::string& unitType,
                                                                    double min, double max,
                                                                    bool hasTwoSliders = false) = 0;

    /// Adds a slider for these numbers alone, which are in the host's units and have to ascend.
    /// Null as for whole numbers, and for an unknown unit.
    virtual Ptr<FloatSliderCommandInput> addFloatSliderListCommandInput(
        const std::string& id, const std::string& name, const std::string& unitType,
        const std::vector<double>& valueList, bool hasTwoSliders = false) = 0;
};

}  // namespace adsk::core
