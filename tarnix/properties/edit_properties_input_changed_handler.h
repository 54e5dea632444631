#pragma once

#include "tarnix/properties/property_store.h"

#include <Core/CoreAll.h>

#include <string>

namespace tarnix {

/// What the open dialog "Edit custom properties" does about a change of any of its inputs.
///
/// The id of the changed input is the routing key. Nothing here changes the design; that is left to
/// OK. What is thrown passes on to the host, which keeps the dialog open.
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

    /// Caption of the button that is on, empty for none. The host tells only that the row changed,
    /// and the button that was on before has to be told from the new one.
    std::string selectedBomStructure_;
};

}  // namespace tarnix
