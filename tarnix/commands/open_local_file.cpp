#include "tarnix/commands/open_local_file.h"

namespace tarnix {

void OpenLocalFileCmdCreateHandler::notify(
    const adsk::core::Ptr<adsk::core::CommandCreatedEventArgs>& /*eventArgs*/) {}

}  // namespace tarnix
