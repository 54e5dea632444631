#pragma once

#include "tarnix/properties/edit_properties_execute_handler.h"
#include "tarnix/properties/edit_properties_input_changed_handler.h"
#include "tarnix/properties/edit_properties_validate_handler.h"

#include <Core/CoreAll.h>

namespace tarnix {

/// Answers the start of the command "Edit custom properties": makes its dialog and attaches the
/// handlers that serve it.
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
