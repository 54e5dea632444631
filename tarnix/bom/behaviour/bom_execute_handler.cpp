#include "tarnix/bom/behaviour/bom_execute_handler.h"

#include "tarnix/bom/behaviour/bom_write_back.h"

namespace tarnix {

void BomCmdExecuteHandler::notify(const adsk::core::Ptr<adsk::core::CommandEventArgs>& eventArgs) {
    writeActiveTable(eventArgs);
}

}  // namespace tarnix
