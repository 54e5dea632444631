#pragma once

#include <Core/CoreAll.h>

namespace tarnix {

/// Leaves the validity of the inputs as the host has it. Names of properties that cannot be used
/// are answered while they are typed, by the Save button.
class EditPropertiesCmdInputValidateEventHandler final
    : public adsk::core::ValidateInputsEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::ValidateInputsEventArgs>& eventArgs) override;
};

}  // namespace tarnix
