#include "tarnix/properties/picked_component.h"

namespace tarnix {

using namespace adsk::core;
using namespace adsk::fusion;

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
