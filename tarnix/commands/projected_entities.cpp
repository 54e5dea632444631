#include "tarnix/commands/projected_entities.h"

namespace tarnix {

void ProjEntitAsConstrCmdCreateHandler::notify(
    const adsk::core::Ptr<adsk::core::CommandCreatedEventArgs>& /*eventArgs*/) {}

}  // namespace tarnix
