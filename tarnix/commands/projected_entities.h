#pragma once

#include <Core/CoreAll.h>

namespace tarnix {

/// Answers the command "Projected Entities As Construction".
class ProjEntitAsConstrCmdCreateHandler final : public adsk::core::CommandCreatedEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::CommandCreatedEventArgs>& eventArgs) override;
};

}  // namespace tarnix
