#pragma once

#include <Core/CoreAll.h>

namespace tarnix {

/// Answers the command "Edit custom properties".
class EditPropertiesCmdCreateHandler final : public adsk::core::CommandCreatedEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::CommandCreatedEventArgs>& eventArgs) override;
};

}  // namespace tarnix
