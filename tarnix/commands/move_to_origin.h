#pragma once

#include "tarnix/text/command_texts.h"

#include <Core/CoreAll.h>

namespace tarnix {

inline constexpr CommandTexts kMoveToOriginCommand = {
    .id = "QM_TX_moveComponentToOrigin",
    .name = "Move To Origin",
    .tooltip = "Move selected component to the origin",
    .resourceFolder = "././Resources/MoveComponentToOrigin"};

/// Carries out "Move To Origin" when its dialog is accepted: the selected occurrences get the
/// identity as their placement, all in one step, and are grounded there if the user wants that.
///
/// With no design on the screen nothing happens. An input that is not there, or a selection that
/// is none, throws; whether the host moved anything is not asked.
class MoveCompToOriginCmdExecuteHendler final : public adsk::core::CommandEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::CommandEventArgs>& eventArgs) override;

    /// @name The inputs of the open dialog, set when it is made
    /// @{
    adsk::core::Ptr<adsk::core::SelectionCommandInput> selectionInput;
    adsk::core::Ptr<adsk::core::BoolValueCommandInput> groundInput;
    /// @}
};

/// Answers the start of the command "Move To Origin": makes its dialog and attaches the handler
/// that carries it out.
class MoveCompToOriginCmdCreateHandler final : public adsk::core::CommandCreatedEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::CommandCreatedEventArgs>& eventArgs) override;

private:
    MoveCompToOriginCmdExecuteHendler executeHandler_;
};

}  // namespace tarnix
