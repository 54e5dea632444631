#include "tarnix/properties/edit_properties_created_handler.h"

#include "tarnix/properties/properties_dialog.h"

namespace tarnix {

using adsk::core::Command;
using adsk::core::CommandCreatedEventArgs;
using adsk::core::Ptr;

void EditPropertiesCmdCreateHandler::notify(const Ptr<CommandCreatedEventArgs>& eventArgs) {
    const Ptr<Command> command = eventArgs->command();
    buildPropertiesDialog(command->commandInputs());
    command->setDialogInitialSize(300, 600);
    command->inputChanged()->add(&inputChangedHandler_);
    command->execute()->add(&executeHandler_);
    command->validateInputs()->add(&validateHandler_);
}

}  // namespace tarnix
