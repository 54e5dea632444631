#pragma once

#include "tarnix/commands/command_without_dialog.h"
#include "tarnix/text/command_texts.h"

#include <Core/CoreAll.h>

namespace tarnix {

inline constexpr CommandTexts kOnlineModelsCommand = {
    .id = "QM_TX_onLineLibrary",
    .name = "Models->F",
    .tooltip = "One step for insert on-Line models to the Fusion 360",
    .resourceFolder = "././Resources/OnLineLibrary"};

/// The id of its palette, which outlives the command.
inline constexpr const char* kOnlineModelsPaletteId = "onLineModels";

/// Carries out the command for models from the web: shows its palette, and makes it first where
/// there is none. A palette that is there keeps the place and size that the user gave it.
class OnLineLibraryExecuteHandler final : public adsk::core::CommandEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::CommandEventArgs>& eventArgs) override;
};

/// Answers the start of the command for models from the web, which has no dialog.
class OnLineLibraryCreateEventHandler final
    : public CommandWithoutDialog<OnLineLibraryExecuteHandler> {};

}  // namespace tarnix
