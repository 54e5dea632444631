#pragma once

#include <Core/CoreAll.h>

namespace tarnix {

/// Answers OK of the dialog "Tarnix Configuration".
class ConfigTarnixCmdExecuteHandler final : public adsk::core::CommandEventHandler {
public:
    /// Stores what the address box shows, as it stands; the default address while it is hidden.
    void notify(const adsk::core::Ptr<adsk::core::CommandEventArgs>& eventArgs) override;
};

}  // namespace tarnix
