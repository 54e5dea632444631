#pragma once

#include "tarnix/bom/behaviour/bom_execute_handler.h"
#include "tarnix/bom/behaviour/bom_input_changed_handler.h"
#include "tarnix/bom/model/bom_row.h"
#include "tarnix/text/command_texts.h"

#include <Core/CoreAll.h>

namespace tarnix {

inline constexpr CommandTexts kBomCommand = {.id = "QM_TX_BOM",
                                             .name = "BOM",
                                             .tooltip = "Bill of materials",
                                             .resourceFolder = "././Resources/BOM"};

/// Answers the start of the command "BOM": makes its dialog and attaches the handlers that serve
/// it.
///
/// One object, made when the command is registered, serves every opening of the dialog. The host is
/// given addresses inside it.
class BomCmdCreateEventHandler final : public adsk::core::CommandCreatedEventHandler {
public:
    /// Builds the dialog, then sets its size, attaches the handlers and names its buttons, so that
    /// all of these are left out when the building throws.
    void notify(const adsk::core::Ptr<adsk::core::CommandCreatedEventArgs>& eventArgs) override;

private:
    BomCmdInputChangedHandler inputChangedHandler;
    BomCmdExecuteHandler executeHandler;
    BomModel model;  ///< of the last opening
};

}  // namespace tarnix
