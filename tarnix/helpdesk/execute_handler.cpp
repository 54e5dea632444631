#include "tarnix/helpdesk/execute_handler.h"

namespace tarnix {

void OnExecuteEventHandler::notify(
    const adsk::core::Ptr<adsk::core::CommandEventArgs>& /*eventArgs*/) {}

}  // namespace tarnix
