#include "tarnix/commands/units_conversion.h"

namespace tarnix {

void UnitsConversionCmdCreateEventHandler::notify(
    const adsk::core::Ptr<adsk::core::CommandCreatedEventArgs>& /*eventArgs*/) {}

}  // namespace tarnix
