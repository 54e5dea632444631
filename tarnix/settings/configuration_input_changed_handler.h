#pragma once

#include <Core/CoreAll.h>

namespace tarnix {

/// Shows the address box of the dialog "Tarnix Configuration" while another provider is chosen.
class ConfigTarnixCmdInputChangedHandler final : public adsk::core::InputChangedEventHandler {
public:
    /// Answers a change of the choice. The default address makes way for the beginning of one; any
    /// other text stays, also while the box is hidden.
    void notify(const adsk::core::Ptr<adsk::core::InputChangedEventArgs>& eventArgs) override;
};

}  // namespace tarnix
