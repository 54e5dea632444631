#include "tarnix/settings/configuration_created_handler.h"

namespace tarnix {

void ConfigTarnixCmdCreateEventHandler::notify(
    const adsk::core::Ptr<adsk::core::CommandCreatedEventArgs>& /*eventArgs*/) {}

}  // namespace tarnix
