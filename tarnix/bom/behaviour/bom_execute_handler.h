#pragma once

#include <Core/CoreAll.h>

namespace tarnix {

/// Answers "Save Changes and Close" of the BOM dialog.
class BomCmdExecuteHandler final : public adsk::core::CommandEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::CommandEventArgs>& eventArgs) override;
};

}  // namespace tarnix
