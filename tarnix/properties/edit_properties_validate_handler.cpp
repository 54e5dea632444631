#include "tarnix/properties/edit_properties_validate_handler.h"

namespace tarnix {

void EditPropertiesCmdInputValidateEventHandler::notify(
    const adsk::core::Ptr<adsk::core::ValidateInputsEventArgs>& /*eventArgs*/) {}

}  // namespace tarnix
