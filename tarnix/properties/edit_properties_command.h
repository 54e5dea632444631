#pragma once

#include "tarnix/properties/property_store.h"
#include "tarnix/text/command_texts.h"

#include <Core/CoreAll.h>

#include <string>

/// The command "Edit custom properties": the properties of one picked component in a dialog.
///
/// `properties_dialog.h` makes what it shows; this is what happens while it is open. Nothing
/// changes the design before OK. What is thrown passes on to the host, which keeps the dialog open.
namespace tarnix {

inline constexpr CommandTexts kEditPropertiesCommand = {
    .id = "QEMA_EditPropertiesCmd",
    .name = "Edit custom properties",
    .tooltip = "Dialog for editing custom properties",
    .resourceFolder = "././Resources/Properties"};

/// Answers OK.
class EditPropertiesCmdExecuteHandler final : public adsk::core::CommandEventHandler {
public:
    /// Writes what the dialog shows to the picked component: every property, changed or not,
    /// enabled or not, in the order of the dialog. Without a pick nothing is written.
    void notify(const adsk::core::Ptr<adsk::core::CommandEventArgs>& eventArgs) override;
};

/// Leaves the validity of the inputs as the host has it. Names of properties that cannot be used
/// are answered while they are typed, by the Save button.
class EditPropertiesCmdInputValidateEventHandler final
    : public adsk::core::ValidateInputsEventHandler {
public:
    void notify(
        const adsk::core::Ptr<adsk::core::ValidateInputsEventArgs>& /*eventArgs*/) override {}
};

/// Answers a change of any input. The id of the changed input is the routing key.
class EditPropertiesCmdInputChangedHandler final : public adsk::core::InputChangedEventHandler {
public:
    /// Does what the changed input asks for: loads the picked component, keeps one button of the
    /// BOM structure on, edits or saves the list of custom properties. Throws a plain
    /// `std::exception` for any other input that lies in no other.
    void notify(const adsk::core::Ptr<adsk::core::InputChangedEventArgs>& eventArgs) override;

private:
    void onSelectionChanged(const adsk::core::Ptr<adsk::core::CommandInput>& input,
                            const adsk::core::Ptr<adsk::core::InputChangedEventArgs>& eventArgs);

    /// Keeps at most one button of the BOM structure on, the one just pressed.
    void onBomStructureChanged(const adsk::core::Ptr<adsk::core::CommandInput>& input);

    /// Loads properties into the inputs of a collection: the buttons of a row by their captions,
    /// lines of text by their ids. A property that is missing clears its input.
    void fillInputs(const adsk::core::Ptr<adsk::core::CommandInputs>& inputs,
                    const ComponentProperties& properties);

    /// Caption of the button that is on, empty for none. The host reports only that the row
    /// changed, and the button that was on before has to be distinguished from the new one.
    std::string selectedBomStructure_;
};

/// Answers the start of the command: makes its dialog and attaches the handlers that serve it.
///
/// One object, made when the command is registered, serves every opening of the dialog. The host is
/// given addresses inside it.
class EditPropertiesCmdCreateHandler final : public adsk::core::CommandCreatedEventHandler {
public:
    /// Builds the dialog, then sets its size and attaches the handlers, so that both are left out
    /// when the building throws.
    void notify(const adsk::core::Ptr<adsk::core::CommandCreatedEventArgs>& eventArgs) override;

private:
    EditPropertiesCmdExecuteHandler executeHandler_;
    EditPropertiesCmdInputChangedHandler inputChangedHandler_;
    EditPropertiesCmdInputValidateEventHandler validateHandler_;
};

}  // namespace tarnix
