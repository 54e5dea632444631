#include "host/ui/toolbar/toolbar_controls_object.h"

#include "host/base/last_error.h"

namespace host::ui {

core::Ptr<core::CommandControl> ToolbarControlsObject::addCommand(
    const core::Ptr<core::CommandDefinition>& commandDefinition, const std::string& positionID,
    bool isBefore) {
    constexpr const char* kOperation = "ToolbarControls::addCommand";
    if (closed<"addCommand">(*this)) return {};
    const core::Ptr<CommandDefinitionObject> definition = commandDefinition;
    if (!definition) {
        fail(core::BadApiCallError, std::string(kOperation) + ": the definition is null");
        return {};
    }
    if (!definition->isValid()) {
        misuse(kOperation, "the definition " + definition->state().id + " was deleted");
        return {};
    }
    core::Ptr<CommandControlObject> made = make<CommandControlObject>(this, definition);
    const std::size_t place =
        positionID.empty() ? all_.size() : newPlaceIn(all_, positionID, isBefore);
    all_.insert(all_.begin() + static_cast<std::ptrdiff_t>(place), made);
    return made;
}

void ToolbarControlsObject::append(const core::Ptr<CommandDefinitionObject>& definition) {
    all_.push_back(make<CommandControlObject>(this, definition));
}

void ToolbarControlsObject::dispose() {
    disposeEntries(all_);
    parent_ = nullptr;
    invalidate();
}

}  // namespace host::ui
