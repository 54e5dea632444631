#pragma once

#include "tarnix/text/command_texts.h"

#include <Core/CoreAll.h>

namespace tarnix {

inline constexpr CommandTexts kProjectedEntitiesCommand = {
    .id = "QM_TX_projectedEntitiesAsConstruction",
    .name = "Projected Entities As Construction",
    .tooltip = "Set projected entities as construction geometry",
    .resourceFolder = "./Resources/ProjEntAsConstruction"};

/// Carries out "Projected Entities As Construction": all projected curves of the sketch under edit
/// become construction geometry, drawn ones stay as they are.
///
/// Without a sketch under edit nothing happens.
class ProjEntitAsConstrCmdExecuteHandler final : public adsk::core::CommandEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::CommandEventArgs>& eventArgs) override;
};

/// Answers the start of the command "Projected Entities As Construction", which has no dialog.
class ProjEntitAsConstrCmdCreateHandler final : public adsk::core::CommandCreatedEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::CommandCreatedEventArgs>& eventArgs) override;

private:
    ProjEntitAsConstrCmdExecuteHandler executeHandler_;
};

}  // namespace tarnix
