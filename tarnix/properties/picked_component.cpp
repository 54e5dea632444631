#include "tarnix/properties/picked_component.h"

namespace tarnix {

using adsk::core::Base;
using adsk::core::Ptr;
using adsk::core::Selection;
using adsk::core::SelectionCommandInput;
using adsk::fusion::Component;
using adsk::fusion::Occurrence;

Ptr<Selection> lastSelection(const Ptr<SelectionCommandInput>& input) {
    // With nothing picked the index is not valid, and the host has no selection for it.
    return input->selection(input->selectionCount() - 1);
}

Ptr<Component> componentOf(const Ptr<Base>& entity) {
    if (Ptr<Component> component = entity) {
        return component;
    }
    const Ptr<Occurrence> occurrence = entity;
    return occurrence ? occurrence->component() : nullptr;
}

}  // namespace tarnix
