#pragma once

#include <Core/CommandInput.h>
#include <Core/ListInputs.h>
#include <Core/Selections.h>
#include <Core/TableCommandInput.h>

#include <cstddef>
#include <string>

namespace adsk::core {

/// The inputs of a command, a tab or a group.
///
/// Every input belongs to one collection, also while it stands in a table. Only the ids of tabs
/// have to differ: an id in use returns null for a tab, and a further input for everything else.
class CommandInputs : public Base {
public:
    static const char* classType();

    /// The number of its own members, those of tabs and groups inside it not counted.
    [[nodiscard]] virtual std::size_t count() const = 0;

    /// Own members in the order in which they were made; null for an index that does not exist.
    [[nodiscard]] virtual Ptr<CommandInput> item(std::size_t index) const = 0;

    /// The first input of this id: among the own members, then inside the tabs and groups of this
    /// collection. Null where there is none; a tab does not find what another one holds.
    [[nodiscard]] virtual Ptr<CommandInput> itemById(const std::string& id) const = 0;

    [[nodiscard]] virtual Ptr<Command> command() const = 0;

    /// A check box, or a button.
    virtual Ptr<BoolValueCommandInput> addBoolValueInput(const std::string& id,
                                                         const std::string& name, bool isCheckBox,
                                                         const std::string& resourceFolder = "",
                                                         bool initialValue = false) = 0;

    virtual Ptr<StringValueCommandInput> addStringValueInput(
        const std::string& id, const std::string& name, const std::string& initialValue = "") = 0;

    virtual Ptr<DropDownCommandInput> addDropDownCommandInput(const std::string& id,
                                                              const std::string& name,
                                                              DropDownStyles dropDownStyle) = 0;

    virtual Ptr<TableCommandInput> addTableCommandInput(const std::string& id,
                                                        const std::string& name,
                                                        int numberOfColumns,
                                                        const std::string& columnRatio) = 0;

    /// Null where an input of the command has this id already.
    virtual Ptr<TabCommandInput> addTabCommandInput(const std::string& id, const std::string& name,
                                                    const std::string& resourceFolder = "") = 0;

    virtual Ptr<GroupCommandInput> addGroupCommandInput(const std::string& id,
                                                        const std::string& name) = 0;

    virtual Ptr<ButtonRowCommandInput> addButtonRowCommandInput(const std::string& id,
                                                                const std::string& name,
                                                                bool isMultiSelectEnabled) = 0;

    virtual Ptr<RadioButtonGroupCommandInput> addRadioButtonGroupCommandInput(
        const std::string& id, const std::string& name = "") = 0;

    virtual Ptr<TextBoxCommandInput> addTextBoxCommandInput(const std::string& id,
                                                            const std::string& name,
                                                            const std::string& formattedText,
                                                            int numRows, bool isReadOnly) = 0;

    virtual Ptr<ImageCommandInput> addImageCommandInput(const std::string& id,
                                                        const std::string& name,
                                                        const std::string& imageFile) = 0;

    virtual Ptr<SelectionCommandInput> addSelectionInput(const std::string& id,
                                                         const std::string& name,
                                                         const std::string& commandPrompt) = 0;
};

}  // namespace adsk::core
