#include "tarnix/settings/configuration_execute_handler.h"

#include "tarnix/settings/configuration_dialog.h"
#include "tarnix/settings/settings_document.h"

#include <string>

namespace tarnix {

using adsk::core::CommandEventArgs;
using adsk::core::Ptr;
using adsk::core::TextBoxCommandInput;

void ConfigTarnixCmdExecuteHandler::notify(const Ptr<CommandEventArgs>& eventArgs) {
    const Ptr<TextBoxCommandInput> address =
        eventArgs->command()->commandInputs()->itemById(kProviderAddress);
    writeHelpdeskUrl(address->isVisible() ? address->text() : std::string(defaultHelpdeskUrl));
}

}  // namespace tarnix
