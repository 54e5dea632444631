#pragma once

#include <Core/CoreAll.h>

/// What is done to the inputs in the groups of a collection; inputs beside the groups, and the
/// selection of the component, are skipped.
namespace tarnix {

/// Empties the lines of text. Text boxes and buttons stay as they are.
void clearValues(const adsk::core::Ptr<adsk::core::CommandInputs>& inputs);

/// Lets the user change the inputs of any kind, or not.
void enableInputs(const adsk::core::Ptr<adsk::core::CommandInputs>& inputs, bool enabled);

}  // namespace tarnix
