#include "tarnix/commands/online_models.h"

namespace tarnix {

void OnLineLibraryCreateEventHandler::notify(
    const adsk::core::Ptr<adsk::core::CommandCreatedEventArgs>& /*eventArgs*/) {}

}  // namespace tarnix
