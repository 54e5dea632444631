#include "tarnix/properties/edit_properties_created_handler.h"

namespace tarnix {

void EditPropertiesCmdCreateHandler::notify(
    const adsk::core::Ptr<adsk::core::CommandCreatedEventArgs>& /*eventArgs*/) {}

}  // namespace tarnix
