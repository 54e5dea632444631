#pragma once

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

namespace tarnix {

/// What was picked last for a selection, null where nothing is picked.
adsk::core::Ptr<adsk::core::Selection> lastSelection(
    const adsk::core::Ptr<adsk::core::SelectionCommandInput>& input);

/// The component that a picked entity means: itself, or the component of an occurrence. Null
/// for an entity of another kind.
adsk::core::Ptr<adsk::fusion::Component> componentOf(
    const adsk::core::Ptr<adsk::core::Base>& entity);

}  // namespace tarnix
