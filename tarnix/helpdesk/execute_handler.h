#pragma once

#include <Core/CoreAll.h>

namespace tarnix {

/// Executes the helpdesk commands: one handler for all eight, which have no dialog.
class OnExecuteEventHandler final : public adsk::core::CommandEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::CommandEventArgs>& eventArgs) override;
};

}  // namespace tarnix
