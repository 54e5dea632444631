#pragma once

#include "tarnix/settings/configuration_execute_handler.h"
#include "tarnix/settings/configuration_input_changed_handler.h"

#include <Core/CoreAll.h>

namespace tarnix {

/// Answers the start of the command "Tarnix Configuration": makes its dialog and attaches the
/// handlers that serve it.
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
