#pragma once

#include <Core/CoreAll.h>

namespace tarnix {

/// Answers the command "Tarnix Configuration".
class ConfigTarnixCmdCreateEventHandler final : public adsk::core::CommandCreatedEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::CommandCreatedEventArgs>& eventArgs) override;
};

}  // namespace tarnix
