#include "tarnix/bom/behaviour/bom_created_handler.h"

#include "tarnix/bom/tabs/bom_dialog.h"

namespace tarnix {

using adsk::core::Command;
using adsk::core::CommandCreatedEventArgs;
using adsk::core::Ptr;

void BomCmdCreateEventHandler::notify(const Ptr<CommandCreatedEventArgs>& eventArgs) {
    const Ptr<Command> command = eventArgs->command();
    if (!command) {
        return;
    }
    buildBomDialog(model, command->commandInputs());
    command->setDialogInitialSize(800, 600);
    command->inputChanged()->add(&inputChangedHandler);
    command->execute()->add(&executeHandler);
    command->okButtonText("Save Changes and Close");
    command->cancelButtonText("Close");
}

}  // namespace tarnix
