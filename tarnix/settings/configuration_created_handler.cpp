#include "tarnix/settings/configuration_created_handler.h"

#include "tarnix/settings/configuration_dialog.h"

namespace tarnix {

using adsk::core::Command;
using adsk::core::CommandCreatedEventArgs;
using adsk::core::Ptr;

void ConfigTarnixCmdCreateEventHandler::notify(const Ptr<CommandCreatedEventArgs>& eventArgs) {
    const Ptr<Command> command = eventArgs->command();
    buildConfigurationDialog(command);
    command->execute()->add(&executeHandler_);
    command->inputChanged()->add(&inputChangedHandler_);
}

}  // namespace tarnix
