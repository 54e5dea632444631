#include "host/ui/toolbar/toolbar_controls.h"

#include "host/base/last_error.h"

#include <algorithm>

namespace host::ui {

core::Ptr<core::Base> CommandControlObject::parent() const {
    if (closed<"ToolbarControl::parent">(*this)) return {};
    return core::Ptr<core::Base>(owner_->parent());
}

std::size_t CommandControlObject::index() const {
    if (closed<"ToolbarControl::index">(*this)) return {};
    const auto& all = owner_->all();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [this](const auto& each) { return each.get() == this; });
    return static_cast<std::size_t>(found - all.begin());
}

bool CommandControlObject::deleteMe() {
    if (closed<"ToolbarControl::deleteMe">(*this)) return {};
    owner_->remove(*this);
    return true;
}

core::Ptr<core::CommandDefinition> CommandControlObject::commandDefinition() const {
    if (closed<"CommandControl::commandDefinition">(*this)) return {};
    if (!definition_->isValid()) return nullptr;
    return definition_;
}

bool CommandControlObject::isPromoted(bool value) {
    if (closed<"CommandControl::isPromoted">(*this)) return {};
    promoted_ = value && owner_->inPanel();
    return true;
}

void CommandControlObject::dispose() {
    owner_ = nullptr;
    invalidate();
}

std::size_t ToolbarControlsObject::count() const {
    if (closed<"ToolbarControls::count">(*this)) return {};
    return all_.size();
}

core::Ptr<core::ToolbarControl> ToolbarControlsObject::item(std::size_t index) const {
    if (closed<"ToolbarControls::item">(*this)) return {};
    return index < all_.size() ? all_[index] : nullptr;
}

std::size_t ToolbarControlsObject::placeOf(const std::string& id) const {
    const auto found = std::find_if(all_.begin(), all_.end(),
                                    [&](const auto& each) { return each->identifier() == id; });
    return static_cast<std::size_t>(found - all_.begin());
}

core::Ptr<core::ToolbarControl> ToolbarControlsObject::itemById(const std::string& id) const {
    if (closed<"ToolbarControls::itemById">(*this)) return {};
    const std::size_t place = placeOf(id);
    return place < all_.size() ? all_[place] : nullptr;
}

core::Ptr<core::CommandControl> ToolbarControlsObject::addCommand(
    const core::Ptr<core::CommandDefinition>& commandDefinition, const std::string& positionID,
    bool isBefore) {
    constexpr const char* kOperation = "ToolbarControls::addCommand";
    if (closed<"ToolbarControls::addCommand">(*this)) return {};
    const core::Ptr<CommandDefinitionObject> definition = commandDefinition;
    if (!definition) {
        fail(core::BadApiCallError, std::string(kOperation) + ": there is no definition");
        return {};
    }
    if (!definition->isValid()) {
        misuse(kOperation, "the definition " + definition->identifier() + " was deleted");
        return {};
    }
    core::Ptr<CommandControlObject> made = make<CommandControlObject>(this, definition);
    std::size_t place = positionID.empty() ? all_.size() : placeOf(positionID);
    if (place < all_.size() && !isBefore) {
        ++place;
    }
    all_.insert(all_.begin() + static_cast<std::ptrdiff_t>(place), made);
    return made;
}

core::Ptr<CommandControlObject> ToolbarControlsObject::append(
    const core::Ptr<CommandDefinitionObject>& definition) {
    all_.push_back(make<CommandControlObject>(this, definition));
    return all_.back();
}

void ToolbarControlsObject::remove(CommandControlObject& control) {
    const core::Ptr<CommandControlObject> kept(&control);
    std::erase(all_, kept);
    control.dispose();
}

void ToolbarControlsObject::dispose() {
    for (const core::Ptr<CommandControlObject>& each : all_) {
        each->dispose();
    }
    all_.clear();
    parent_ = nullptr;
    invalidate();
}

}  // namespace host::ui
