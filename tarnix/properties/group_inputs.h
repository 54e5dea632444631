#pragma once

#include "tarnix/properties/property_store.h"

#include <Core/CoreAll.h>

#include <vector>

/// Operations on the inputs in the groups of a collection; inputs beside the groups, and the
/// selection of the component, are skipped.
namespace tarnix {

/// Empties the lines of text. Text boxes and buttons stay as they are.
void clearValues(const adsk::core::Ptr<adsk::core::CommandInputs>& inputs);

/// Lets the user change the inputs of any kind, or not.
void enableInputs(const adsk::core::Ptr<adsk::core::CommandInputs>& inputs, bool enabled);

/// The properties that the inputs hold, in the order of the dialog: lines of text and check boxes
/// by their ids, the buttons of a row by their captions. What is on is "1", what is off "0". Boxes
/// whose id is not a property's key and read-only texts hold none.
std::vector<PropertyEntry> collectValues(const adsk::core::Ptr<adsk::core::CommandInputs>& inputs);

}  // namespace tarnix
