#pragma once

#include "tarnix/text/command_texts.h"

#include <Core/CoreAll.h>

/// The command "Tarnix Configuration": in its dialog the user chooses the support provider, the
/// default one, or another one by its web address.
namespace tarnix {

inline constexpr CommandTexts kConfigurationCommand = {
    .id = "QM_TX_configuration",
    .name = "Tarnix Configuration",
    .tooltip = "Tarnix Configuration",
    .resourceFolder = "././Resources/Configuration"};

/// Makes the inputs and shows what is stored. Any address but the default one is another
/// provider's, an empty one too.
void buildConfigurationDialog(const adsk::core::Ptr<adsk::core::Command>& command);

/// Answers OK of the dialog.
class ConfigTarnixCmdExecuteHandler final : public adsk::core::CommandEventHandler {
public:
    /// Stores what the address box shows, unchanged; the default address while it is hidden.
    void notify(const adsk::core::Ptr<adsk::core::CommandEventArgs>& eventArgs) override;
};

/// Shows the address box while another provider is chosen.
class ConfigTarnixCmdInputChangedHandler final : public adsk::core::InputChangedEventHandler {
public:
    /// Answers a change of the choice. The default address makes way for the beginning of one; any
    /// other text stays, also while the box is hidden.
    void notify(const adsk::core::Ptr<adsk::core::InputChangedEventArgs>& eventArgs) override;
};

/// Answers the start of the command: makes its dialog and attaches the handlers that serve it.
///
/// One object, made when the command is registered, serves every opening of the dialog. The host is
/// given addresses inside it.
class ConfigTarnixCmdCreateEventHandler final : public adsk::core::CommandCreatedEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::CommandCreatedEventArgs>& eventArgs) override;

private:
    ConfigTarnixCmdExecuteHandler executeHandler_;
    ConfigTarnixCmdInputChangedHandler inputChangedHandler_;
};

}  // namespace tarnix
