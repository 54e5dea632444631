#include "tarnix/bom/behaviour/bom_execute_handler.h"

namespace tarnix {

void BomCmdExecuteHandler::notify(
    const adsk::core::Ptr<adsk::core::CommandEventArgs>& /*eventArgs*/) {}

}  // namespace tarnix
