#include "tarnix/commands/move_to_origin.h"

namespace tarnix {

void MoveCompToOriginCmdCreateHandler::notify(
    const adsk::core::Ptr<adsk::core::CommandCreatedEventArgs>& /*eventArgs*/) {}

}  // namespace tarnix
