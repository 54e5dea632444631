#pragma once

#include <Core/CoreAll.h>

namespace tarnix {

/// Answers OK of the dialog "Edit custom properties".
class EditPropertiesCmdExecuteHandler final : public adsk::core::CommandEventHandler {
public:
    /// Writes what the dialog shows to the picked component: every property, changed or not,
    /// enabled or not, in the order of the dialog. Without a pick nothing is written.
    void notify(const adsk::core::Ptr<adsk::core::CommandEventArgs>& eventArgs) override;
};

}  // namespace tarnix
